// SPDX-License-Identifier: MIT
// Clock, quantiles, resource counts and the test window.
#include "bench/Common.h"

#include "tests/support/GdiCounter.h"

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <sstream>

namespace bench {

double Now() {
    LARGE_INTEGER ticks;
    LARGE_INTEGER perSecond;
    ::QueryPerformanceCounter(&ticks);
    ::QueryPerformanceFrequency(&perSecond);
    constexpr double microseconds = 1e6;
    return static_cast<double>(ticks.QuadPart) * microseconds / static_cast<double>(perSecond.QuadPart);
}

double Quantile(std::vector<double>& values, double share) {
    if (values.empty())
        return 0;
    const auto place = static_cast<std::ptrdiff_t>(static_cast<double>(values.size() - 1) * share);
    std::nth_element(values.begin(), values.begin() + place, values.end());
    return values[static_cast<std::size_t>(place)];
}

Holdings Count() {
    const testkit::ObjectCounts counts = testkit::CountObjects();
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof(memory);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof(memory));
    constexpr SIZE_T kibi = 1024;
    const int gdi = counts.pens + counts.brushes + counts.fonts + counts.bitmaps + counts.regions +
                    counts.dcs + counts.otherGdi;
    return {gdi, counts.windows + counts.menus, static_cast<long>(memory.PagefileUsage / kibi)};
}

Row::Row(const std::string& name) : m_text("{\"row\": \"" + name + "\"") {
}

Row& Row::Member(const std::string& key, const std::string& text) {
    m_text += ", \"" + key + "\": " + text;
    return *this;
}

Row& Row::Add(const std::string& key, double value) {
    std::ostringstream text;
    constexpr int digits = 5;
    text.precision(digits);
    text << value;
    return Member(key, text.str());
}

Row& Row::Add(const std::string& key, int value) {
    return Member(key, std::to_string(value));
}

Row& Row::Add(const std::string& key, const Holdings& holdings) {
    return Member(key + "_gdi", std::to_string(holdings.gdi))
        .Member(key + "_user", std::to_string(holdings.user))
        .Member(key + "_memory_kib", std::to_string(holdings.memory));
}

void Row::Print() const {
    std::printf("%s}\n", m_text.c_str());
    std::fflush(stdout);
}

Stage::Stage(int width, int height) {
    const LPCTSTR name = AfxRegisterWndClass(0);
    CreateEx(0, name, "bench", WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, width, height), nullptr, 0);
    ShowWindow(SW_SHOW);
    UpdateWindow();
    Pump();
}

Stage::~Stage() {
    DestroyWindow();
}

void Pump() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

} // namespace bench

// SPDX-License-Identifier: MIT
// The memory bitmap, and the rows' times of whole repaints.
#include "bench/Picture.h"

#include "bench/GraphSeries.h"

namespace bench {

namespace {

constexpr int kRepeats = 31;
constexpr int kWarm = 3;

void AddTimes(Row& row, const std::string& name, std::vector<double> times) {
    row.Add(name + "_median_ms", Quantile(times, kMedian) / kMicrosecondsPerMillisecond)
        .Add(name + "_min_ms", Quantile(times, 0) / kMicrosecondsPerMillisecond);
}

} // namespace

Picture::Picture(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    m_dc = ::CreateCompatibleDC(nullptr);
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    m_before = ::SelectObject(m_dc, m_bitmap);
}

Picture::~Picture() {
    ::SelectObject(m_dc, m_before);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_dc);
}

void Picture::Take(CWnd& control) {
    control.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(m_dc), PRF_CLIENT);
}

Row& AddPaints(Row& row, CWnd& control, const std::string& name) {
    Picture picture(kWidth, kHeight);
    AddTimes(row, name + "window",
             Time(
                 kRepeats, kWarm,
                 [&] {
                     control.InvalidateRect(nullptr, FALSE);
                     control.SendMessage(WM_PAINT);
                 }));
    AddTimes(row, name + "memory", Time(kRepeats, kWarm, [&] { picture.Take(control); }));
    return row;
}

} // namespace bench

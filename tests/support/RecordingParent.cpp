// SPDX-License-Identifier: MIT
// What the parent window records, and the message pump of the tests.
#include "tests/support/RecordingParent.h"

#include "tests/support/Pointer.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace testkit {

namespace {
const MSG* g_dispatched = nullptr; // the message that Pump() dispatches, until its window procedure gets it
} // namespace

RecordingParent::~RecordingParent() {
    if (m_hWnd != nullptr)
        DestroyWindow();
}

BOOL RecordingParent::CreateVisible(int width, int height) {
    const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                             reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), nullptr);
    if (!CreateEx(0, name, _T("parent"), WS_POPUP | WS_CLIPCHILDREN, 0, 0, width, height, nullptr, nullptr))
        return FALSE;
    ParkPointer();
    ShowWindow(SW_SHOW);
    UpdateWindow();
    Pump();
    return TRUE;
}

std::vector<std::string> RecordingParent::Log() const {
    std::vector<std::string> lines;
    for (const Entry& entry : m_entries) {
        std::ostringstream line;
        if (!entry.remark.empty()) {
            line << entry.remark;
        } else if (entry.message == WM_NOTIFY) {
            line << (entry.posted ? "posted " : "") << "notify " << static_cast<int>(entry.code) << " id "
                 << entry.idFrom;
            if (entry.wParam != entry.idFrom)
                line << " w=" << entry.wParam;
            if (m_describe)
                line << m_describe(entry);
        } else if (entry.message == WM_COMMAND) {
            line << "command 0x" << std::hex << entry.wParam;
        } else {
            line << (entry.posted ? "" : "sent ") << "message " << entry.message
                 << " w=" << static_cast<INT_PTR>(entry.wParam) << " l=" << entry.lParam;
        }
        lines.push_back(line.str());
    }
    return lines;
}

void RecordingParent::Remark(const std::string& text) {
    Entry entry{};
    entry.remark = text;
    m_entries.push_back(entry);
}

void RecordingParent::SetRecordSize(std::size_t bytes) {
    m_recordSize = std::min(std::max(bytes, sizeof(NMHDR)), kRecordBytes);
}

LRESULT RecordingParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        Entry entry{message, wParam, lParam, header->code, header->hwndFrom, header->idFrom};
        std::memcpy(entry.record, header, m_recordSize);
        Note(entry);
    } else if (message == WM_COMMAND || message == WM_CONTEXTMENU ||
               (message >= WM_USER && message < 0xC000)) {
        Note({message, wParam, lParam});
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

void RecordingParent::Note(Entry entry) {
    entry.posted = g_dispatched != nullptr && g_dispatched->hwnd == m_hWnd &&
                   g_dispatched->message == entry.message && g_dispatched->wParam == entry.wParam &&
                   g_dispatched->lParam == entry.lParam;
    g_dispatched = nullptr;
    m_entries.push_back(entry);
    if (const auto hook = onNoted)
        hook(entry);
}

void Pump() {
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        g_dispatched = &message;
        DispatchMessage(&message);
        g_dispatched = nullptr;
    }
}

} // namespace testkit

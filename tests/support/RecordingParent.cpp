#include "tests/support/RecordingParent.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace testkit {

RecordingParent::~RecordingParent() {
    if (m_hWnd != nullptr)
        DestroyWindow();
}

BOOL RecordingParent::CreateVisible(int width, int height) {
    const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                             reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), nullptr);
    if (!CreateEx(0, name, "parent", WS_POPUP | WS_CLIPCHILDREN, 0, 0, width, height, nullptr, nullptr))
        return FALSE;
    ShowWindow(SW_SHOW);
    UpdateWindow();
    Pump();
    return TRUE;
}

std::vector<std::string> RecordingParent::Log() const {
    std::vector<std::string> lines;
    for (const Entry& entry : m_entries) {
        std::ostringstream line;
        if (entry.message == WM_NOTIFY)
            line << "notify " << static_cast<int>(entry.code) << " id " << entry.idFrom;
        else if (entry.message == WM_COMMAND)
            line << "command 0x" << std::hex << entry.wParam;
        else
            line << "message " << entry.message << " w=" << static_cast<INT_PTR>(entry.wParam)
                 << " l=" << entry.lParam;
        lines.push_back(line.str());
    }
    return lines;
}

void RecordingParent::SetRecordSize(std::size_t bytes) {
    m_recordSize = std::min(std::max(bytes, sizeof(NMHDR)), kRecordBytes);
}

LRESULT RecordingParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        Entry entry{message, wParam, lParam, header->code, header->hwndFrom, header->idFrom, {}};
        std::memcpy(entry.record, header, m_recordSize);
        m_entries.push_back(entry);
    } else if (message == WM_COMMAND || (message >= WM_USER && message < 0xC000)) {
        m_entries.push_back({message, wParam, lParam, 0, nullptr, 0, {}});
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

void Pump() {
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

} // namespace testkit

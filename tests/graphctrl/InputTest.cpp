// SPDX-License-Identifier: MIT
// Notes what the control does with input.

#include "tests/graphctrl/InputTest.h"

#include <sstream>

namespace {

// Input that a handler may hand on, and what is noted of it.
constexpr struct {
    UINT message;
    const char* remark;
} kHandedOn[] = {{WM_KEYDOWN, "default key"},      {WM_LBUTTONDOWN, "default down"},
                 {WM_LBUTTONUP, "default up"},     {WM_LBUTTONDBLCLK, "default double-click"},
                 {WM_MOUSEMOVE, "default move"},   {WM_RBUTTONDOWN, "default right"},
                 {WM_CONTEXTMENU, "default menu"}, {WM_SETFOCUS, "focus"}};

} // namespace

GraphInputTest* GraphInputTest::s_current = nullptr;

void GraphInputTest::SetUp() {
    GraphTest::SetUp();
    if (HasFatalFailure())
        return;
    graph.onDefault = [this](UINT message, WPARAM, LPARAM) {
        for (const auto& each : kHandedOn)
            if (each.message == message)
                parent.Remark(each.remark);
    };
    s_current = this;
    m_events = ::SetWinEventHook(EVENT_OBJECT_SELECTION, EVENT_OBJECT_SELECTIONWITHIN,
                                 ::GetModuleHandle(nullptr), &GraphInputTest::OnEvent,
                                 ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_INCONTEXT);
    ASSERT_NE(m_events, nullptr);
}

void GraphInputTest::TearDown() {
    ::UnhookWinEvent(m_events);
    s_current = nullptr;
    GraphTest::TearDown();
}

void CALLBACK GraphInputTest::OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD,
                                      DWORD) {
    if (s_current == nullptr || window != s_current->graph.m_hWnd)
        return;
    std::ostringstream text;
    if (event == EVENT_OBJECT_SELECTION && object == OBJID_CLIENT)
        text << "event selection " << child;
    else if (event == EVENT_OBJECT_SELECTIONREMOVE && object == OBJID_CLIENT && child == CHILDID_SELF)
        text << "event selection gone";
    else
        text << "event " << event << " of object " << object << " child " << child;
    s_current->parent.Remark(text.str());
}

void GraphInputTest::Mark(int index) {
    graph.SetSelectionMarkPos(index);
    ASSERT_EQ(graph.m_SelectionMarkPos, index);
    Settle();
}

std::string GraphInputTest::ToldMouse(UINT code, UINT flags, CPoint point, int index, int count) {
    std::ostringstream text;
    text << "notify " << code << " id " << kControlId << " flags " << flags << " at " << point.x << ","
         << point.y << " index " << index << " count " << count;
    return text.str();
}

std::string GraphInputTest::PostedMark(int index) {
    return "message 1124 w=" + std::to_string(index) + " l=0";
}

std::string GraphInputTest::Event(int index) {
    return index < 0 ? "event selection gone" : "event selection " + std::to_string(index + 1);
}

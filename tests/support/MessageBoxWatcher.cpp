// SPDX-License-Identifier: MIT
// The hook that finds message boxes, reads their texts and ends them.
#include "tests/support/MessageBoxWatcher.h"

#include "tests/support/Utf8.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace testkit {
namespace {

constexpr int kDialogClassAtom = 32770;
constexpr int kLastStandardButton = IDCONTINUE;

std::string TextOf(HWND window) {
    std::wstring wide(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    wide.resize(static_cast<std::size_t>(GetWindowTextW(window, &wide[0], static_cast<int>(wide.size()))));
    return Utf8(wide.c_str());
}

bool IsDialog(HWND window) {
    return GetClassLongPtr(window, GCW_ATOM) == kDialogClassAtom;
}

UINT IconOf(HWND picture) {
    const auto shown = reinterpret_cast<HICON>(SendMessage(picture, STM_GETICON, 0, 0));
    const std::pair<LPCTSTR, UINT> icons[] = {{IDI_HAND, MB_ICONHAND},
                                              {IDI_QUESTION, MB_ICONQUESTION},
                                              {IDI_EXCLAMATION, MB_ICONEXCLAMATION},
                                              {IDI_ASTERISK, MB_ICONASTERISK}};
    for (const auto& [name, icon] : icons)
        if (shown != nullptr && shown == LoadIcon(nullptr, name))
            return icon;
    return 0;
}

} // namespace

MessageBoxWatcher* MessageBoxWatcher::s_current = nullptr;

MessageBoxWatcher::MessageBoxWatcher(int answer) : m_answer(answer) {
    if (s_current != nullptr)
        throw std::logic_error("another watcher is at work");
    m_hook = SetWindowsHookEx(WH_CALLWNDPROCRET, &MessageBoxWatcher::Hook, nullptr, GetCurrentThreadId());
    if (m_hook == nullptr)
        throw std::runtime_error("the hook could not be set");
    s_current = this;
}

MessageBoxWatcher::~MessageBoxWatcher() {
    UnhookWindowsHookEx(m_hook);
    s_current = nullptr;
}

LRESULT CALLBACK MessageBoxWatcher::Hook(int code, WPARAM wParam, LPARAM lParam) {
    const auto* message = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && message->message == WM_INITDIALOG && s_current != nullptr &&
        IsDialog(message->hwnd))
        s_current->Answer(message->hwnd);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void MessageBoxWatcher::Answer(HWND dialog) {
    Box box;
    box.caption = TextOf(dialog);
    for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        const LONG style = GetWindowLong(child, GWL_STYLE);
        if ((style & WS_VISIBLE) == 0)
            continue;
        const int id = GetDlgCtrlID(child);
        if (id >= IDOK && id <= kLastStandardButton) {
            box.buttons.push_back(id);
            if ((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
                box.defaultButton = id;
        } else {
            box.icon |= IconOf(child);
            box.text += TextOf(child);
        }
    }
    std::sort(box.buttons.begin(), box.buttons.end());
    m_boxes.push_back(box);
    // The dialog is ended while it is initialized, so it never appears on the screen.
    EndDialog(dialog, m_answer);
}

} // namespace testkit

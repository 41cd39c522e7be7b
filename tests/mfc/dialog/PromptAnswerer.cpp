#include "tests/mfc/dialog/PromptAnswerer.h"

namespace {

PromptAnswerer* s_current = nullptr;

bool IsMessageBox(HWND window) {
    char className[16] = {};
    ::GetClassName(window, className, sizeof(className));
    return std::string(className) == "#32770" && CWnd::FromHandlePermanent(window) == nullptr;
}

std::string Prompt(HWND box) {
    for (HWND child = ::GetWindow(box, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        char className[16] = {};
        char text[1024] = {};
        ::GetClassName(child, className, sizeof(className));
        if (std::string(className) == "Static" && ::GetWindowText(child, text, sizeof(text)) > 0)
            return text;
    }
    return {};
}

} // namespace

PromptAnswerer::PromptAnswerer() : m_hook(::SetWindowsHookEx(WH_CBT, Hook, nullptr, ::GetCurrentThreadId())) {
    s_current = this;
}

PromptAnswerer::~PromptAnswerer() {
    ::UnhookWindowsHookEx(m_hook);
    s_current = nullptr;
}

LRESULT CALLBACK PromptAnswerer::Hook(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && window != s_current->m_answered && IsMessageBox(window)) {
        s_current->m_answered = window;
        s_current->texts.push_back(Prompt(window));
        ::PostMessage(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

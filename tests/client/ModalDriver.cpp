#include "tests/client/ModalDriver.h"

#include <string>

namespace {

ModalDriver* s_driver = nullptr;

bool IsMessageBox(HWND window) {
    char className[16] = {};
    ::GetClassName(window, className, sizeof(className));
    return std::string(className) == "#32770" && CWnd::FromHandlePermanent(window) == nullptr;
}

} // namespace

ModalDriver::ModalDriver(std::vector<Step> steps)
    : m_steps(std::move(steps)),
      m_idleHook(::SetWindowsHookEx(WH_CALLWNDPROC, IdleHook, nullptr, ::GetCurrentThreadId())),
      m_activationHook(::SetWindowsHookEx(WH_CBT, ActivationHook, nullptr, ::GetCurrentThreadId())) {
    s_driver = this;
}

ModalDriver::~ModalDriver() {
    ::UnhookWindowsHookEx(m_idleHook);
    ::UnhookWindowsHookEx(m_activationHook);
    s_driver = nullptr;
}

LRESULT CALLBACK ModalDriver::IdleHook(int code, WPARAM wParam, LPARAM lParam) {
    const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    // A modal loop without messages tells the dialog's owner.
    if (code == HC_ACTION && sent->message == WM_ENTERIDLE && sent->wParam == MSGF_DIALOGBOX) {
        const auto window = reinterpret_cast<HWND>(sent->lParam);
        if (!IsMessageBox(window))
            s_driver->RunNext(window);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK ModalDriver::ActivationHook(int code, WPARAM wParam, LPARAM lParam) {
    // Not every system's message boxes tell when they are idle.
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && window != s_driver->m_messageBox && IsMessageBox(window)) {
        s_driver->m_messageBox = window;
        s_driver->RunNext(window);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void ModalDriver::RunNext(HWND window) {
    if (m_next == m_steps.size()) {
        ::PostMessage(window, WM_COMMAND, IDCANCEL, 0); // out of steps: never wait for a person
        return;
    }
    const Step& step = m_steps[m_next++];
    step(window, dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(window)));
    ::PostMessage(window, WM_NULL, 0, 0); // the loop goes idle again, for the next step
}

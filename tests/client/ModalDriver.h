#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

/// Plays the user of modal dialogs: each time the dialog on top is shown and has nothing to do, the next step
/// runs. A message box that comes up takes a step, too, and has no CDialog.
class ModalDriver {
public:
    using Step = std::function<void(HWND window, CDialog* dialog)>;

    explicit ModalDriver(std::vector<Step> steps);
    ~ModalDriver();
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

    std::size_t StepsLeft() const { return m_steps.size() - m_next; }

private:
    static LRESULT CALLBACK IdleHook(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK ActivationHook(int code, WPARAM wParam, LPARAM lParam);
    void RunNext(HWND window);

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    HHOOK m_idleHook;
    HHOOK m_activationHook;
    HWND m_messageBox = nullptr;
};

#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

/// Answers every message box of this thread with OK and keeps its text. Dialogs that have an object of the
/// class library are left alone, so that a test can run one at the same time.
class PromptAnswerer {
public:
    PromptAnswerer();
    ~PromptAnswerer();
    PromptAnswerer(const PromptAnswerer&) = delete;
    PromptAnswerer& operator=(const PromptAnswerer&) = delete;

    /// Texts in the order shown.
    std::vector<std::string> texts;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);
    HHOOK m_hook;
    HWND m_answered = nullptr;
};

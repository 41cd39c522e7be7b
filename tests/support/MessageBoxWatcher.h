// SPDX-License-Identifier: MIT
// Answers the message boxes of the code under test.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace testkit {

/// Answers the message boxes that the code under test shows on this thread, and records their contents.
/// Without a watcher, a message box waits for a user. Only one watcher may exist at a time. The watcher
/// treats every dialog that opens as a message box.
class MessageBoxWatcher {
public:
    struct Box {
        std::string caption;
        std::string text;
        std::vector<int> buttons; ///< command IDs of the buttons, ascending
        int defaultButton = 0;    ///< command ID of the button that Enter presses
        UINT icon = 0;            ///< MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK or 0
    };

    /// `answer` is the button (IDOK, IDYES, IDNO ...) that all boxes are answered with.
    explicit MessageBoxWatcher(int answer = IDOK);
    MessageBoxWatcher(const MessageBoxWatcher&) = delete;
    MessageBoxWatcher& operator=(const MessageBoxWatcher&) = delete;
    ~MessageBoxWatcher();

    void SetAnswer(int answer) { m_answer = answer; }
    /// The boxes in the order of their appearance.
    const std::vector<Box>& Boxes() const { return m_boxes; }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);
    void Answer(HWND dialog);

    static MessageBoxWatcher* s_current;
    int m_answer;
    HHOOK m_hook = nullptr;
    std::vector<Box> m_boxes;
};

} // namespace testkit

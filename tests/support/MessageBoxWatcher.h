#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace testkit {

/// Answers the message boxes that the code under test shows on this thread, and notes what they said. Without
/// one, a message box would wait for a person. One watcher at a time; it works from construction to
/// destruction, and takes every dialog that opens meanwhile for a message box.
class MessageBoxWatcher {
public:
    struct Box {
        std::string caption;
        std::string text;
        std::vector<int> buttons; ///< command IDs of the buttons, ascending
        int defaultButton = 0;    ///< command ID of the button that Enter presses
        UINT icon = 0;            ///< MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK or 0
    };

    /// Every box is answered as if the button `answer` (IDOK, IDYES, IDNO ...) were pressed.
    explicit MessageBoxWatcher(int answer = IDOK);
    MessageBoxWatcher(const MessageBoxWatcher&) = delete;
    MessageBoxWatcher& operator=(const MessageBoxWatcher&) = delete;
    ~MessageBoxWatcher();

    void SetAnswer(int answer) { m_answer = answer; }
    /// The boxes seen so far, oldest first.
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

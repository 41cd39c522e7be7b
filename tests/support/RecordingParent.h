// SPDX-License-Identifier: MIT
// A parent window that records the messages of the controls under test.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

namespace testkit {

/// A parent window that records the messages of its child windows in order: WM_NOTIFY with a copy of the
/// notification record, WM_COMMAND, WM_CONTEXTMENU that a child passed on, and private messages from WM_USER
/// on. Posted messages are recorded when Pump delivers them.
class RecordingParent : public CWnd {
public:
    /// The largest number of bytes of a notification record that is copied.
    static constexpr std::size_t kRecordBytes = 80;

    struct Entry {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        UINT code = 0;                           ///< of a WM_NOTIFY's header
        HWND from = nullptr;                     ///< of a WM_NOTIFY's header
        UINT_PTR idFrom = 0;                     ///< of a WM_NOTIFY's header
        unsigned char record[kRecordBytes] = {}; ///< the bytes of a WM_NOTIFY's record
        bool posted = false;                     ///< posted and delivered by Pump, not sent
        std::string remark = {};                 ///< the text of Remark; `message` is 0 then
    };

    RecordingParent() = default;
    ~RecordingParent() override;

    /// Makes and shows a top-level window in the corner of the screen, with a client area of `width` x
    /// `height` pixels. FALSE when there is no display.
    BOOL CreateVisible(int width, int height);

    const std::vector<Entry>& Entries() const { return m_entries; }
    /// The entries as text: "notify 1254 id 7", "command 0x10001", "message 1124 w=3 l=0". Unusual properties
    /// are added: a notification that was posted or whose wParam is not the sender's identifier, a private
    /// message that was sent.
    std::vector<std::string> Log() const;
    void Forget() { m_entries.clear(); }
    /// Adds a line of the test to the log, for events that are not messages to this window.
    void Remark(const std::string& text);

    /// Sets the number of bytes of a notification record that are copied: the size of the record that the
    /// control under test sends. Initially the size of the header.
    void SetRecordSize(std::size_t bytes);
    /// Sets the function that describes the fields of a notification record. Log writes its result behind the
    /// WM_NOTIFY.
    void SetDescription(std::function<std::string(const Entry&)> describe) { m_describe = describe; }

    /// Called while the parent handles a message, after the message is recorded; initially empty. The
    /// function may do what hosts do: handle messages, change or destroy the control, destroy this window,
    /// replace this function. The entry is a copy.
    std::function<void(const Entry&)> onNoted;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Note(Entry entry);

    std::vector<Entry> m_entries;
    std::function<std::string(const Entry&)> m_describe;
    std::size_t m_recordSize = sizeof(NMHDR);
};

/// Delivers all messages in this thread's queue, paint messages included.
void Pump();

} // namespace testkit

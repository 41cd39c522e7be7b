#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

namespace testkit {

/// A parent window that notes, in order, what its children tell it: WM_NOTIFY with a copy of the record,
/// WM_COMMAND, WM_CONTEXTMENU that a child passed on, and the private messages from WM_USER on. Posted
/// messages are noted when Pump() delivers them.
class RecordingParent : public CWnd {
public:
    /// The longest part of a notification's record that is copied.
    static constexpr std::size_t kRecordBytes = 64;

    struct Entry {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        UINT code = 0;                           ///< of a WM_NOTIFY's header
        HWND from = nullptr;                     ///< of a WM_NOTIFY's header
        UINT_PTR idFrom = 0;                     ///< of a WM_NOTIFY's header
        unsigned char record[kRecordBytes] = {}; ///< the bytes of a WM_NOTIFY's record
        bool posted = false;                     ///< delivered by Pump(), not sent
        std::string remark = {};                 ///< of Remark(); `message` is 0 then
    };

    RecordingParent() = default;
    ~RecordingParent() override;

    /// Makes and shows a top-level window whose client area is `width` x `height` pixels, at the screen's
    /// corner. FALSE when there is no display.
    BOOL CreateVisible(int width, int height);

    const std::vector<Entry>& Entries() const { return m_entries; }
    /// The entries as text, one each: "notify 1254 id 7", "command 0x10001", "message 1124 w=3 l=0". What is
    /// unusual is written out: a notification that was posted or whose wParam is not the sender's identifier,
    /// a private message that was sent.
    std::vector<std::string> Log() const;
    void Forget() { m_entries.clear(); }
    /// Puts a line of the test's own into the log, for what happens elsewhere between two messages.
    void Remark(const std::string& text);

    /// How many bytes of a notification's record are copied from here on: the size of the record that the
    /// control under test sends. At first only the header.
    void SetRecordSize(std::size_t bytes);
    /// What Log() writes behind a WM_NOTIFY: the fields of the record, which only the control's tests know.
    void SetDescription(std::function<std::string(const Entry&)> describe) { m_describe = describe; }

    /// Runs inside the parent's handling of a message, after it was noted; empty at first. It may do what
    /// hosts do there: pump, change or destroy the control, destroy this window, set another hook. The entry
    /// is a copy.
    std::function<void(const Entry&)> onNoted;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Note(Entry entry);

    std::vector<Entry> m_entries;
    std::function<std::string(const Entry&)> m_describe;
    std::size_t m_recordSize = sizeof(NMHDR);
};

/// Delivers every message that waits for this thread, paints included, and returns.
void Pump();

} // namespace testkit

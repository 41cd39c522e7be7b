#pragma once

#include <afxwin.h>

#include <string>

namespace kavlix::monitor {

/// Calls `copy`, which is to put something on the clipboard as `owner`, and tells whether it came there: the
/// owner is this window then and what is on the clipboard has changed.
template <class Copy> bool CopyReaches(const CWnd& owner, Copy copy) {
    const DWORD before = ::GetClipboardSequenceNumber();
    const bool made = copy();
    // Not every system gives the number.
    const bool changed = before == 0 || ::GetClipboardSequenceNumber() != before;
    return made && changed && ::GetClipboardOwner() == owner.m_hWnd;
}

/// What to say about it.
inline std::string CopyTextOf(bool reached) {
    return reached ? "Copied: the picture is on the clipboard"
                   : "Not copied: another program holds the clipboard. Try again";
}

} // namespace kavlix::monitor

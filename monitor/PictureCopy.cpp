// SPDX-License-Identifier: MIT
// Copies a picture to the clipboard as a metafile, and checks whether a copy has reached the clipboard.

#include "monitor/PictureCopy.h"

namespace kavlix::monitor {
namespace {

constexpr int kFrameUnits = 100; // units in a millimetre: a metafile's frame is in 0.01 mm

} // namespace

bool CopyReaches(const CWnd& owner, const std::function<bool()>& copy) {
    const DWORD before = ::GetClipboardSequenceNumber();
    const bool made = copy();
    // A sequence number of 0 means that the system has none.
    const bool changed = before == 0 || ::GetClipboardSequenceNumber() != before;
    return made && changed && ::GetClipboardOwner() == owner.m_hWnd;
}

bool CopyAsMetafile(CWnd& owner, const std::function<void(CDC&)>& draw) {
    CRect client;
    owner.GetClientRect(&client);
    CClientDC screen(&owner);
    const auto frame = [&screen](int pixels, int millimetres, int resolution) {
        return ::MulDiv(pixels, kFrameUnits * screen.GetDeviceCaps(millimetres),
                        screen.GetDeviceCaps(resolution));
    };
    // Without explicit bounds, GDI would include the clipped parts of the picture.
    const CRect bounds(0, 0, frame(client.right, HORZSIZE, HORZRES), frame(client.bottom, VERTSIZE, VERTRES));
    CDC dc;
    if (!dc.Attach(::CreateEnhMetaFile(screen.m_hDC, nullptr, &bounds, _T("Kavlix Monitor\0Picture\0"))))
        return false;
    draw(dc);
    const HENHMETAFILE picture = ::CloseEnhMetaFile(dc.Detach());
    if (picture == nullptr)
        return false;
    bool taken = false;
    if (owner.OpenClipboard()) {
        ::EmptyClipboard();
        taken = ::SetClipboardData(CF_ENHMETAFILE, picture) != nullptr;
        ::CloseClipboard();
    }
    if (!taken)
        ::DeleteEnhMetaFile(picture);
    return taken;
}

std::string CopyTextOf(bool reached) {
    return reached ? "Copied: the picture is on the clipboard"
                   : "Not copied: another program holds the clipboard. Try again";
}

} // namespace kavlix::monitor

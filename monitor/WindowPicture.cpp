// SPDX-License-Identifier: MIT
// Copies a window from the screen into a picture file.

#include "monitor/WindowPicture.h"

#include <kavlix/PictureFile.h>

#include <algorithm>

#include "monitor/recording/FilePath.h"

namespace kavlix::monitor {
namespace {

constexpr int kSizingAttempts = 3;

CRect ScreenArea() {
    const int left = GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = GetSystemMetrics(SM_YVIRTUALSCREEN);
    return CRect(left, top, left + GetSystemMetrics(SM_CXVIRTUALSCREEN),
                 top + GetSystemMetrics(SM_CYVIRTUALSCREEN));
}

void MoveBy(CWnd& frame, CSize distance) {
    CRect window;
    frame.GetWindowRect(&window);
    frame.SetWindowPos(nullptr, window.left + distance.cx, window.top + distance.cy, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void PaintNow(CWnd& frame) {
    frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

/// Copies the part of the picture's area that is on the screen.
void CopyVisible(CWnd& frame, CDC& picture) {
    PaintNow(frame);
    CRect window;
    frame.GetWindowRect(&window);
    const CRect area = PictureArea(frame);
    CRect visible;
    if (!visible.IntersectRect(area, ScreenArea()))
        return;
    CWindowDC source(&frame);
    picture.BitBlt(visible.left - area.left, visible.top - area.top, visible.Width(), visible.Height(),
                   &source, visible.left - window.left, visible.top - window.top, SRCCOPY);
    GdiFlush();
}

/// Copies the whole area of the picture. A frame whose area lies partly outside the screen is moved to copy
/// one part after another, and moved back.
void CopyWhole(CWnd& frame, CDC& picture) {
    const CRect screen = ScreenArea();
    const CRect area = PictureArea(frame);
    const CSize overlap(std::min(screen.right, area.right) - std::max(screen.left, area.left),
                        std::min(screen.bottom, area.bottom) - std::max(screen.top, area.top));
    if (overlap == area.Size()) {
        CopyVisible(frame, picture);
        return;
    }
    for (int y = 0; y < area.Height(); y += screen.Height()) {
        for (int x = 0; x < area.Width(); x += screen.Width()) {
            const CRect now = PictureArea(frame);
            MoveBy(frame, CSize(screen.left - x - now.left, screen.top - y - now.top));
            CopyVisible(frame, picture);
        }
    }
    const CRect now = PictureArea(frame);
    MoveBy(frame, CSize(area.left - now.left, area.top - now.top));
}

} // namespace

CRect PictureArea(const CWnd& frame) {
    CRect area;
    frame.GetClientRect(&area);
    frame.ClientToScreen(&area);
    MENUBARINFO menu{};
    menu.cbSize = sizeof menu;
    if (GetMenuBarInfo(frame.m_hWnd, OBJID_MENU, 0, &menu) && menu.rcBar.bottom > menu.rcBar.top)
        area.top = std::min(area.top, menu.rcBar.top);
    return area;
}

void SizePictureArea(CWnd& frame, CSize size) {
    // The area may still differ afterwards, because the menu bar may need another number of lines: measure
    // and correct.
    for (int i = 0; i < kSizingAttempts; ++i) {
        const CSize missing = size - PictureArea(frame).Size();
        if (missing == CSize(0, 0))
            return;
        CRect window;
        frame.GetWindowRect(&window);
        frame.SetWindowPos(nullptr, 0, 0, window.Width() + missing.cx, window.Height() + missing.cy,
                           SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

std::string SavePicture(CWnd& frame, const std::string& path) {
    const CSize size = PictureArea(frame).Size();
    if (ScreenArea().IsRectEmpty() || size.cx <= 0 || size.cy <= 0)
        return "there is nothing to be seen of the window";
    // A metafile can store the pixels of a bitmap, but not those of a window.
    CWindowDC screen(&frame);
    CBitmap pixels; // lives longer than the DC that it is selected into
    CDC copy;
    if (!copy.CreateCompatibleDC(&screen) || !pixels.CreateCompatibleBitmap(&screen, size.cx, size.cy))
        return "there is not enough memory for a picture of this size";
    copy.SelectObject(&pixels);
    CopyWhole(frame, copy);
    const bool saved = kavlix::SavePicture(recording::PathOf(path).c_str(), size, [&](CDC& picture) {
        picture.BitBlt(0, 0, size.cx, size.cy, &copy, 0, 0, SRCCOPY);
    });
    return saved ? "" : path + ": cannot be written, or the name does not end in .png, .bmp or .emf";
}

} // namespace kavlix::monitor

// Copies a window from the screen and writes it as PNG.

#include "monitor/WindowPicture.h"

#include <algorithm>
#include <cstring>
#include <vector>

// The headers of GDI+ use the macros min and max, which NOMINMAX removes: give GDI+ the functions instead.
#include <objidl.h>
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace kavlix::monitor {
namespace {

constexpr int kBitsPerPixel = 24;
constexpr int kSizingAttempts = 3;

/// Starts GDI+ on construction and shuts it down on destruction.
class GdiPlus {
public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        m_started = Gdiplus::GdiplusStartup(&m_token, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiPlus() {
        if (m_started)
            Gdiplus::GdiplusShutdown(m_token);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    bool Started() const { return m_started; }

private:
    ULONG_PTR m_token = 0;
    bool m_started = false;
};

/// A bitmap in memory, with rows from the top down, selected into a DC.
class PixelPage {
public:
    explicit PixelPage(CSize size) : m_size(size) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.cx;
        info.bmiHeader.biHeight = -size.cy;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = kBitsPerPixel;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        if (m_bitmap && m_dc.CreateCompatibleDC(nullptr))
            m_old = ::SelectObject(m_dc.m_hDC, m_bitmap);
    }
    ~PixelPage() {
        if (m_old)
            ::SelectObject(m_dc.m_hDC, m_old);
        m_dc.DeleteDC();
        if (m_bitmap)
            ::DeleteObject(m_bitmap);
    }
    PixelPage(const PixelPage&) = delete;
    PixelPage& operator=(const PixelPage&) = delete;

    bool Ready() const { return m_old != nullptr; }
    CDC& Dc() { return m_dc; }
    CSize Size() const { return m_size; }
    BYTE* Bits() const { return static_cast<BYTE*>(m_bits); }

    /// Bytes from one row to the next.
    int Stride() const { return static_cast<int>((m_size.cx * kBitsPerPixel + 31) / 32 * 4); }

private:
    CSize m_size;
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    void* m_bits = nullptr;
};

bool FindPngEncoder(CLSID& id) {
    UINT count = 0;
    UINT bytes = 0;
    if (Gdiplus::GetImageEncodersSize(&count, &bytes) != Gdiplus::Ok || bytes == 0)
        return false;
    // GDI+ puts the records and their texts into one block of `bytes` bytes.
    std::vector<Gdiplus::ImageCodecInfo> block(bytes / sizeof(Gdiplus::ImageCodecInfo) + 1);
    if (Gdiplus::GetImageEncoders(count, bytes, block.data()) != Gdiplus::Ok)
        return false;
    for (UINT i = 0; i < count; ++i) {
        if (std::wcscmp(block[i].MimeType, L"image/png") == 0) {
            id = block[i].Clsid;
            return true;
        }
    }
    return false;
}

std::string WritePng(const PixelPage& page, const std::string& path) {
    const GdiPlus gdiPlus;
    CLSID encoder;
    if (!gdiPlus.Started() || !FindPngEncoder(encoder))
        return "this system has no PNG encoder";
    std::vector<WCHAR> wide(path.size() + 1);
    if (MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide.data(), static_cast<int>(wide.size())) == 0)
        return path + ": this is no file name";
    Gdiplus::Bitmap bitmap(page.Size().cx, page.Size().cy, page.Stride(), PixelFormat24bppRGB, page.Bits());
    if (bitmap.Save(wide.data(), &encoder, nullptr) != Gdiplus::Ok)
        return path + ": cannot be written";
    return {};
}

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
void CopyVisible(CWnd& frame, PixelPage& page) {
    PaintNow(frame);
    CRect window;
    frame.GetWindowRect(&window);
    const CRect area = PictureArea(frame);
    CRect visible;
    if (!visible.IntersectRect(area, ScreenArea()))
        return;
    CWindowDC source(&frame);
    page.Dc().BitBlt(visible.left - area.left, visible.top - area.top, visible.Width(), visible.Height(),
                     &source, visible.left - window.left, visible.top - window.top, SRCCOPY);
    GdiFlush();
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
    // In the new width the menu bar may need two lines, which makes the area smaller: measure and correct.
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
    const CRect screen = ScreenArea();
    const CRect area = PictureArea(frame);
    if (screen.IsRectEmpty() || area.IsRectEmpty())
        return "there is nothing to be seen of the window";
    PixelPage page(area.Size());
    if (!page.Ready())
        return "there is not enough memory for a picture of this size";

    const CSize overlap(std::min(screen.right, area.right) - std::max(screen.left, area.left),
                        std::min(screen.bottom, area.bottom) - std::max(screen.top, area.top));
    if (overlap == area.Size()) {
        CopyVisible(frame, page);
    } else {
        for (int y = 0; y < area.Height(); y += screen.Height()) {
            for (int x = 0; x < area.Width(); x += screen.Width()) {
                const CRect now = PictureArea(frame);
                MoveBy(frame, CSize(screen.left - x - now.left, screen.top - y - now.top));
                CopyVisible(frame, page);
            }
        }
        const CRect now = PictureArea(frame);
        MoveBy(frame, CSize(area.left - now.left, area.top - now.top));
    }
    return WritePng(page, path);
}

} // namespace kavlix::monitor

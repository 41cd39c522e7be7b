// SPDX-License-Identifier: MIT
// CGraphCtrl: paints the caption band and its maximize icon. GraphCtrlInput handles clicks on the icon.
#include <kavlix/GraphCtrl.h>

#include <algorithm>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/OutOfMemory.h"
#include "gdi/Text.h"
#include "plot/Numeric.h"

using namespace kavlix;

namespace {

constexpr int kCaptionPadding = 120; // the band's height beyond the height of its font, logical units
constexpr int kIconTop = 50;         // from the band's top edge down to the icon, logical units
constexpr int kIconBottom = 70;      // from the icon down to the band's bottom edge, logical units
constexpr int kIconRight = 50;       // from the icon to the band's right edge, logical units
constexpr int kIconExtraWidth = 50;  // the icon is this much wider than high, logical units
// A font at least this high, in logical units, is drawn only if the control is more than half as high.
constexpr int kHugeFont = 1000 * kUnitsPerPixel;

// Limit of the font size, in tenths of a point, so that the size fits an int when it is scaled to logical
// units.
constexpr int kLargestFontSize = 1 << 22;

void FillBar(CDC& dc, const CRect& rect, const CBrush& brush) {
    Select(dc, brush);
    dc.Rectangle(&rect);
}

void FillBody(CDC& dc, const CRect& rect) {
    dc.SelectStockObject(WHITE_BRUSH);
    dc.Rectangle(&rect);
}

} // namespace

void CGraphCtrl::DrawCaption(CDC& dc) {
    if (m_hWnd == nullptr)
        return;
    // CreatePointFont makes a font for a DC whose logical units are pixels, so the size is first scaled to
    // the control's logical units.
    CSize size(0, std::clamp(m_CaptionFontSize, -kLargestFontSize, kLargestFontSize));
    dc.DPtoLP(&size);
    CFont captionFont;
    captionFont.CreatePointFont(size.cy, m_CaptionFontFace);
    CBrush band;
    band.CreateSolidBrush(m_CaptionColor);
    StockAfterGuard brushAfter(dc, NULL_BRUSH);
    SelectGuard font(dc, captionFont);
    const int height = ToCoordinate(static_cast<std::int64_t>(dc.GetTextExtent(_T("Gg"), 2).cy));

    CRect client;
    GetClientRect(&client);
    if (m_ShowBorder)
        client.BottomRight() -= CSize(1, 1);
    m_rectCaption = ToLogical(dc, client + dc.GetViewportOrg());
    m_rectCaption.bottom = m_rectCaption.top + height + kCaptionPadding;
    Select(dc, band);
    dc.Rectangle(&m_rectCaption);

    // GDI renders each glyph before it draws the text. Glyphs far larger than the control take seconds and
    // cannot be read.
    if (height < kHugeFont || height < 2 * ToLogical(dc, client).Height()) {
        CString text;
        GetWindowText(text);
        dc.SetTextColor(m_CaptionTextColor);
        dc.SetTextAlign(TA_CENTER | TA_TOP);
        DrawTextAt(dc, (m_rectCaption.left + m_rectCaption.right) / 2, m_rectCaption.top, text);
    }

    if (m_ShowIconMaximize) {
        m_rectIconMaximize.top = m_rectCaption.top + kIconTop;
        m_rectIconMaximize.bottom = m_rectCaption.bottom - kIconBottom;
        m_rectIconMaximize.right = m_rectCaption.right - kIconRight;
        m_rectIconMaximize.left = m_rectIconMaximize.right - m_rectIconMaximize.Height() - kIconExtraWidth;
        DrawIconMaximize(dc);
    }
}

void CGraphCtrl::DrawIconMaximize(CDC& dc) {
    if (m_rectIconMaximize.IsRectNull()) // the last paint showed no icon
        return;
    CPen pen;
    pen.CreatePen(PS_SOLID, 0, m_CaptionColor);
    CBrush bar;
    bar.CreateSolidBrush(m_CaptionColor);
    StockAfterGuard penAfter(dc, NULL_PEN);
    StockAfterGuard brushAfter(dc, NULL_BRUSH);

    dc.SelectStockObject(WHITE_BRUSH);
    dc.SelectStockObject(NULL_PEN);
    dc.Rectangle(&m_rectIconMaximize);
    Select(dc, pen);

    CSize pixel(1, 1);
    dc.DPtoLP(&pixel);
    CRect icon = m_rectIconMaximize;
    if (m_IconMaximizePressed)
        icon.OffsetRect(pixel);
    // Parts of the icon: the four arguments are distances from the icon's edges in pixels.
    const auto part = [&](int left, int top, int right, int bottom) {
        return CRect(icon.left + left * pixel.cx, icon.top + top * pixel.cy, icon.right - right * pixel.cx,
                     icon.bottom - bottom * pixel.cy);
    };
    const auto barAt = [&](int left, int top, int right) {
        CRect rect = part(left, top, right, 0);
        rect.bottom = rect.top + pixel.cy;
        return rect;
    };
    if (m_IconMaximized == TRUE) {
        FillBar(dc, barAt(3, 1, 2), bar);
        FillBody(dc, part(3, 2, 2, 5));
        FillBar(dc, barAt(1, 4, 4), bar);
        FillBody(dc, part(1, 5, 4, 2));
    } else {
        FillBar(dc, barAt(1, 1, 2), bar);
        FillBody(dc, part(1, 2, 2, 2));
    }
}

void CGraphCtrl::RepaintIcon() {
    if (m_rectIconMaximize.IsRectEmpty())
        return;
    const bool painted = WithinResources([this] {
        CClientDC dc(this);
        SavedDcGuard saved(dc);
        SetMapModeAnisotropic(dc);
        DrawIconMaximize(dc);
    });
    if (!painted)
        Redraw();
}

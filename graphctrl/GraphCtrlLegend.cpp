// SPDX-License-Identifier: MIT
// CGraphCtrl: the legend, its board and its rows.
#include <kavlix/GraphCtrl.h>

#include <cstdint>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Text.h"
#include "plot/Numeric.h"

using namespace kavlix;

namespace {

constexpr int kShadowOffset = 100;  // from the board to its shadow, right and down, logical units
constexpr int kLegendClipInset = 3; // pixels by which the clip region of the rows is narrowed on the right

} // namespace

void CGraphCtrl::DrawLegendArea(CDC& dc, int right, CRgn& clientClip) {
    CBrush board;
    board.CreateSolidBrush(m_LegendColor);
    StockAfterGuard brushAfter(dc, NULL_BRUSH);
    if (m_ShowLegendBoard) {
        dc.SelectStockObject(NULL_PEN);
        dc.SelectStockObject(LTGRAY_BRUSH);
        dc.Rectangle(m_rectLegend + CPoint(kShadowOffset, kShadowOffset));
        Select(dc, board);
        dc.Rectangle(m_rectLegend);
    }
    CRect area = m_rectLegend;
    if (!m_ShowLegendBoard)
        area.right = right;
    CRect clip = ToDevice(dc, area);
    clip.right -= kLegendClipInset;
    ClipGuard legendClip(dc, clip, clientClip);
    DrawLegend(dc);
}

void CGraphCtrl::DrawLegend(CDC& dc) {
    constexpr COLORREF kHiddenSwatch = RGB(255, 255, 255);
    constexpr int kTextRaise = 6; // the text begins 1/6 of the swatch's height above the swatch

    SelectGuard font(dc, m_LegendFont);
    dc.SetTextColor(m_LegendTextColor);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.SelectStockObject(NULL_PEN);
    StockAfterGuard brushAfter(dc, NULL_BRUSH);

    // 64-bit sums: derived classes may set margin and height to any int.
    const std::int64_t margin = m_LegendMargin;
    const std::int64_t side = m_LegendItemHeight;
    const std::int64_t left = m_rectLegend.left + margin;
    std::int64_t top = m_rectLegend.top + margin;
    for (const CDataset& dataset : m_Datasets) {
        if (dataset.m_Legend.IsEmpty())
            continue;
        CBrush swatch;
        swatch.CreateSolidBrush(dataset.m_Visible ? dataset.GetColor() : kHiddenSwatch);
        {
            SelectGuard brush(dc, swatch);
            dc.Rectangle(ToCoordinate(left), ToCoordinate(top), ToCoordinate(left + side),
                         ToCoordinate(top + side));
        }
        DrawTextAt(dc, ToCoordinate(left + margin + side), ToCoordinate(top - side / kTextRaise),
                   dataset.m_Legend);
        top += margin + side;
    }
}

int CGraphCtrl::LegendRowAt(CPoint point) const {
    // Every dataset counts as one row here, although DrawLegend draws no row for a dataset without a legend
    // text. Hosts rely on this numbering.
    const std::int64_t rowHeight = std::int64_t{m_LegendMargin} + m_LegendItemHeight;
    std::int64_t top = std::int64_t{m_rectLegend.top} + m_LegendMargin / 2;
    for (int i = 0; i < DatasetCount; ++i, top += rowHeight)
        if (!m_Datasets[i].m_Legend.IsEmpty() && point.y >= top && point.y < top + rowHeight)
            return i;
    return -1;
}

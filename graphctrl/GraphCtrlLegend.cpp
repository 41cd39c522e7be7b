#include <kavlix/GraphCtrl.h>

#include <cstdint>

#include "gdi/Guards.h"
#include "gdi/Text.h"
#include "plot/Numeric.h"

using namespace kavlix;

void CGraphCtrl::DrawLegend(CDC& dc) {
    constexpr COLORREF kHiddenSwatch = RGB(255, 255, 255);
    constexpr int kTextRaise = 6; // the text begins 1/6 of a row above its swatch

    SelectGuard font(dc, m_LegendFont);
    dc.SetTextColor(m_LegendTextColor);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.SelectStockObject(NULL_PEN);
    StockAfterGuard brushAfter(dc, NULL_BRUSH);

    // Derived classes may set margin and height to anything.
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

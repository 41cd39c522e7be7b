// SPDX-License-Identifier: MIT
// DatasetPainter: bars, impulses and filled areas.
#include "chartdraw/DatasetPainter.h"

#include <algorithm>
#include <optional>

#include "chartdraw/core/ChartAreas.h"
#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"

namespace kavlix {

ColumnRows DatasetPainter::OutlineOf(const DrawnDataset& dataset) {
    ColumnRows rows(m_plot.left, m_plot.right);
    CoverLine(dataset.points, BordersOf(dataset.xMap, ToRect(m_plot)), dataset.yMap, dataset.isStepped, rows);
    return rows;
}

void DatasetPainter::DrawArea(const DrawnDataset& dataset, double baseline, COLORREF color) {
    const std::optional<int> base = BaselineRow(dataset.yMap, baseline);
    if (!base)
        return;
    ColumnRows rows = OutlineOf(dataset);
    rows.ExtendTo(*base);
    Fill(rows, color);
}

void DatasetPainter::DrawArea(const DrawnDataset& dataset, const DrawnDataset& other, COLORREF color) {
    ColumnRows rows = OutlineOf(dataset);
    rows.ExtendTo(OutlineOf(other));
    Fill(rows, color);
}

void DatasetPainter::DrawBars(const DrawnDataset& dataset, double baseline, double width, COLORREF color) {
    DrawBars(dataset, baseline, BarShape(dataset.xMap, width), color);
}

void DatasetPainter::DrawImpulses(const DrawnDataset& dataset, double baseline) {
    DrawBars(dataset, baseline, BarShape(dataset.xMap, std::max(dataset.lineSize, 1)), dataset.color);
}

void DatasetPainter::DrawBars(const DrawnDataset& dataset, double baseline, const BarShape& bars,
                              COLORREF color) {
    const std::optional<int> base = BaselineRow(dataset.yMap, baseline);
    if (!base)
        return;
    ColumnRows rows(m_plot.left, m_plot.right);
    CoverBars(dataset.points, bars, dataset.yMap, *base, rows);
    Fill(rows, color);
}

void DatasetPainter::Fill(const ColumnRows& rows, COLORREF color) {
    const std::optional<std::uint32_t> ink = DirectColour(color);
    if (m_plotRaster && ink) {
        ::GdiFlush(); // GDI must finish its pending calls before pixels are written directly
        rows.VisitAreas(ToRect(m_plot), [&](const Rect& area) {
            m_plotRaster->Fill({area.left + m_origin.x, area.top + m_origin.y, area.right + m_origin.x,
                                area.bottom + m_origin.y},
                               *ink);
        });
        return;
    }
    CBrush brush;
    if (!brush.CreateSolidBrush(color))
        return;
    SavedDcGuard saved(m_dc);
    Select(m_dc, brush);
    rows.VisitAreas(ToRect(m_plot), [&](const Rect& area) {
        m_dc.PatBlt(area.left, area.top, area.Width(), area.Height(), PATCOPY);
    });
}

} // namespace kavlix

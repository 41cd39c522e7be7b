// SPDX-License-Identifier: MIT
// DirectLine: the strokes that begin or end outside the pixel table.
#include "graphctrl/DirectLine.h"

#include "gdi/ShapeConversion.h"

namespace kavlix {

/// Adds a sample whose stroke from the previous sample has an end outside the pixel table. A stroke with both
/// ends beyond the same edge is invisible and left out. Any other stroke is stored in logical units, because
/// the pixel of an end is unknown. PaintFar lets GDI convert all stored strokes in one call.
void DirectLine::GoFar(double value, const PixelColumn& column, int row) {
    const auto isBeyond = [](const PixelEdges& edges, int from, int to) {
        return from == to && !edges.HasPixel(from);
    };
    const bool isUnseen =
        isBeyond(m_target.rows, m_last.row, row) || isBeyond(m_target.columns, m_last.pixel, column.pixel);
    m_line.Jump(column.pixel, row);
    if (isUnseen)
        return;
    if (m_far.size() >= kMaxPendingPoints)
        PaintFar();
    m_far.push_back({m_last.position, m_target.yMap.Position(m_last.value).value_or(0)});
    m_far.push_back({column.position, m_target.yMap.Position(value).value_or(0)});
}

void DirectLine::PaintFar() {
    if (m_far.empty())
        return;
    m_target.dc.LPtoDP(m_far.data(), static_cast<int>(m_far.size()));
    for (std::size_t i = 0; i < m_far.size(); i += 2)
        m_raster.Stroke(ToPoint(m_far[i]), ToPoint(m_far[i + 1]), m_colour);
    m_far.clear();
}

void DirectLine::End() {
    m_line.End();
    m_isOpen = false;
    PaintFar();
}

} // namespace kavlix

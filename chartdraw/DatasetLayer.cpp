// SPDX-License-Identifier: MIT
// DatasetLayer: its bitmap, and what moves and paints it.
#include "chartdraw/DatasetLayer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "gdi/Bitmap.h"
#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"

namespace kavlix {

DatasetLayer::DatasetLayer(const CRect& plot) : m_plot(plot), m_area(plot), m_ends(plot.left, plot.right) {
    m_area.InflateRect(kOverhang, kOverhang);
    void* memory = nullptr;
    if (!m_dc.CreateCompatibleDC(nullptr) ||
        !MakeDirectBitmap(m_bitmap, nullptr, CSize(Stride(), m_area.Height()), &memory))
        return;
    m_previous = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
    m_pixels = static_cast<std::uint32_t*>(memory);
}

DatasetLayer::~DatasetLayer() {
    if (m_previous != nullptr)
        ::SelectObject(m_dc.GetSafeHdc(), m_previous);
}

void DatasetLayer::MoveLeft(int columns) {
    ::GdiFlush();
    m_ends.MoveLeft(columns);
    MovePixels(columns);
    // Lines do not reach beyond the plot.
    for (const int begin : {m_offset, m_offset + m_area.Width() - kOverhang})
        Clear(begin, kOverhang);
}

/// Makes the columns of the bitmap from `begin` on see-through.
void DatasetLayer::Clear(int begin, int count) {
    for (int row = 0; row < m_area.Height(); ++row)
        std::fill_n(At(begin, row), count, PixelRaster::kSeeThrough);
}

void DatasetLayer::MovePixels(int columns) {
    const int offset = m_offset + columns;
    if (offset >= 0 && offset <= 2 * kMargin) {
        m_offset = offset;
        return;
    }
    // From the end of the margin: the next moves are likely to go the same way.
    const int target = columns > 0 ? 0 : 2 * kMargin;
    const int kept = std::max(m_area.Width() - std::abs(columns), 0);
    const int from = m_offset + std::max(columns, 0);
    const int to = target + std::max(-columns, 0);
    for (int row = 0; row < m_area.Height() && kept > 0; ++row)
        std::memmove(At(to, row), At(from, row), static_cast<std::size_t>(kept) * sizeof *m_pixels);
    m_offset = target;
}

void DatasetLayer::PaintAll(const Paint& paint) {
    m_ends = ColumnEnds(m_plot.left, m_plot.right);
    PaintColumns({static_cast<int>(m_plot.left), static_cast<int>(m_plot.right)}, 0, paint);
}

void DatasetLayer::PaintColumns(const ColumnSpan& span, int reach, const Paint& paint) {
    CRect painted(span.from == m_plot.left ? m_area.left : span.from, m_area.top,
                  span.to == m_plot.right ? m_area.right : span.to, m_area.bottom);
    const int begin = m_offset + static_cast<int>(painted.left - m_area.left);
    ::GdiFlush();
    Clear(begin, painted.Width());
    m_ends.Clear(span.from, span.to);
    CRect part(span.from - reach, m_plot.top, span.to + reach, m_plot.bottom);
    part.IntersectRect(&part, &m_plot);
    SavedDcGuard saved(m_dc);
    m_dc.SetViewportOrg(m_offset - m_area.left, -m_area.top);
    m_dc.IntersectClipRect(&painted);
    paint(m_dc, part, &m_ends);
}

void DatasetLayer::LayOver(const PixelRaster& raster, const POINT& origin) const {
    CRect area = m_area;
    area.OffsetRect(origin);
    ::GdiFlush();
    raster.Overlay(At(m_offset, 0), Stride(), ToRect(area));
}

} // namespace kavlix

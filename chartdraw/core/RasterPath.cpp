// SPDX-License-Identifier: MIT
// Long strokes: which of their columns are painted already, and the exact pixels of the other columns.
#include "chartdraw/core/RasterPath.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "chartdraw/core/StrokeColumns.h"

namespace kavlix {
namespace {

constexpr int kBlock = 32;   // columns in a block
constexpr int kLongJump = 8; // columns; ThinLine paints shorter strokes without a look at painted rows
// Value of Block::top while the block's common rows must be found again.
constexpr double kUnknown = std::numeric_limits<double>::infinity();

} // namespace

RasterPath::RasterPath(const PixelRaster& raster, std::uint32_t colour)
    : m_raster(raster), m_colour(colour), m_clip(raster.Clip()), m_line(raster, colour) {
}

void RasterPath::Add(const Point& pixel) {
    if (!m_isOpen || std::abs(pixel.x - m_last.x) < kLongJump) {
        m_line.To(pixel.x, pixel.y);
    } else {
        m_line.Jump(pixel.x, pixel.y);
        PaintStroke(m_last, pixel);
    }
    m_isOpen = true;
    m_last = pixel;
}

void RasterPath::Break() {
    m_line.End();
    m_isOpen = false;
}

void RasterPath::PaintStroke(const Point& from, const Point& to) {
    const int first = std::max(std::min(from.x, to.x), m_clip.left);
    const int last = std::min(std::max(from.x, to.x), m_clip.right - 1);
    if (first > last || std::max(from.y, to.y) < m_clip.top || std::min(from.y, to.y) >= m_clip.bottom)
        return;
    if (m_columns.empty()) {
        m_columns.resize(static_cast<std::size_t>(m_clip.Width()));
        m_blocks.resize(static_cast<std::size_t>((m_clip.Width() + kBlock - 1) / kBlock));
    }
    // `a` and `b` are rows of the exact straight line: at the left edge of a block's first column and at the
    // right edge of its last column. Between them the stroke's pixels differ from the line by at most one
    // row.
    const double slope = static_cast<double>(to.y - from.y) / (to.x - from.x);
    const auto rowAt = [&](int column) { return from.y + (column + 0.5 - from.x) * slope; };
    double a = rowAt(first - 1);
    int unpainted = first;
    for (int begin = first; begin <= last;) {
        const auto block = static_cast<std::size_t>((begin - m_clip.left) / kBlock);
        const int end = std::min(m_clip.left + (static_cast<int>(block) + 1) * kBlock - 1, last);
        const double b = rowAt(end);
        const double low = (slope < 0 ? b : a) - 1;
        const double high = (slope < 0 ? a : b) + 1;
        const auto isPainted = [&] { return m_blocks[block].top <= low && high <= m_blocks[block].bottom; };
        bool isDone = isPainted();
        if (!isDone) {
            if (m_blocks[block].top == kUnknown)
                FindCommonRows(block);
            isDone = isPainted() || high < m_clip.top || low >= m_clip.bottom;
        }
        if (isDone) {
            if (unpainted < begin)
                PaintColumns(from, to, unpainted, begin - 1);
            unpainted = end + 1;
        }
        begin = end + 1;
        a = b;
    }
    if (unpainted <= last)
        PaintColumns(from, to, unpainted, last);
}

void RasterPath::FindCommonRows(std::size_t block) {
    const std::size_t begin = block * kBlock;
    const std::size_t end = std::min(begin + kBlock, m_columns.size());
    Rows common = m_columns[begin];
    for (std::size_t i = begin + 1; i < end; ++i) {
        common.top = std::max(common.top, m_columns[i].top);
        common.bottom = std::min(common.bottom, m_columns[i].bottom);
    }
    m_blocks[block].top = common.top == m_clip.top ? -kUnknown : common.top;
    m_blocks[block].bottom = common.bottom == m_clip.bottom - 1 ? kUnknown : common.bottom;
}

/// Paints the same pixels as PixelRaster::Stroke, but only in the columns from `first` to `last`. The stroke
/// must cross these columns.
void RasterPath::PaintColumns(const Point& from, const Point& to, int first, int last) {
    VisitStrokeColumns(
        from, to, first, last, [this](int x, int top, int bottom) { PaintColumn(x, top, bottom); });
}

void RasterPath::PaintColumn(int x, int top, int bottom) {
    top = std::max(top, m_clip.top);
    bottom = std::min(bottom, m_clip.bottom - 1);
    if (top > bottom)
        return;
    const auto column = static_cast<std::size_t>(x - m_clip.left);
    Rows& rows = m_columns[column];
    if (rows.top <= top && bottom <= rows.bottom)
        return;
    m_raster.Run(x, top, bottom, m_colour);
    const bool touches = top <= rows.bottom + 1 && bottom >= rows.top - 1 && rows.top <= rows.bottom;
    if (touches)
        rows = {std::min(rows.top, top), std::max(rows.bottom, bottom)};
    else if (bottom - top > rows.bottom - rows.top)
        rows = {top, bottom};
    else
        return;
    m_blocks[column / kBlock].top = kUnknown;
}

} // namespace kavlix

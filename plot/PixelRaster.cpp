// SPDX-License-Identifier: MIT
// Strokes, dotted lines and rectangles written straight into memory.
#include "plot/PixelRaster.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "plot/PixelLine.h"

namespace kavlix {
namespace {

/// Copies the pixels without the highest bit, which kSeeThrough has.
template <int kCount> void OverlayBlock(const std::uint32_t* from, std::uint32_t* to) {
    constexpr int kHighest = 31;
    std::uint32_t layer[kCount];
    std::uint32_t below[kCount];
    std::memcpy(layer, from, sizeof layer);
    std::uint32_t all = ~std::uint32_t{0};
    for (int i = 0; i < kCount; ++i)
        all &= layer[i];
    if (all >> kHighest != 0)
        return;
    std::memcpy(below, to, sizeof below);
    for (int i = 0; i < kCount; ++i) {
        const std::uint32_t mask = ~std::uint32_t{0} * (layer[i] >> kHighest);
        below[i] = (below[i] & mask) | (layer[i] & ~mask);
    }
    std::memcpy(to, below, sizeof below);
}

} // namespace

PixelRaster::PixelRaster(std::uint32_t* origin, std::ptrdiff_t stride, const Rect& clip)
    : m_origin(origin), m_stride(stride), m_clip(clip) {
    m_clip.right = std::max(m_clip.right, m_clip.left);
    m_clip.bottom = std::max(m_clip.bottom, m_clip.top);
}

void PixelRaster::Fill(const Rect& area, std::uint32_t colour) const {
    const int left = std::max(area.left, m_clip.left);
    const int right = std::min(area.right, m_clip.right);
    if (right - left == 1) {
        Run(left, area.top, area.bottom - 1, colour);
        return;
    }
    const int bottom = std::min(area.bottom, m_clip.bottom);
    for (int y = std::max(area.top, m_clip.top); y < bottom && left < right; ++y)
        std::fill(At(left, y), At(right, y), colour);
}

void PixelRaster::Dots(const Point& from, const Point& to, const DotPattern& pattern,
                       std::uint32_t colour) const {
    const bool isUpright = from.x == to.x;
    const int across = isUpright ? from.x : from.y;
    const bool isSeen = isUpright ? across >= m_clip.left && across < m_clip.right
                                  : across >= m_clip.top && across < m_clip.bottom;
    if (!isSeen)
        return;
    const int begin = isUpright ? from.y : from.x;
    const int end = isUpright ? to.y : to.x;
    const int low = isUpright ? m_clip.top : m_clip.left;
    const int high = (isUpright ? m_clip.bottom : m_clip.right) - 1;
    // First and last pixel inside the clip, counted from the start of the line.
    const int direction = end < begin ? -1 : 1;
    const int first = std::max(direction > 0 ? low - begin : begin - high, 0);
    const int last = std::min(direction > 0 ? high - begin : begin - low, std::abs(end - begin) - 1);
    const std::ptrdiff_t step = (isUpright ? m_stride : 1) * direction;
    if (first > last)
        return;
    const int along = begin + direction * first;
    std::uint32_t* pixel = isUpright ? At(across, along) : At(along, across);
    for (int base = first - first % pattern.period; base <= last; base += pattern.period) {
        for (const int dot : pattern.dots) {
            const int k = base + dot;
            if (k >= first && k <= last)
                pixel[step * (k - first)] = colour;
        }
    }
}

void PixelRaster::DotColumns(const std::vector<int>& columns, int from, int to, const DotPattern& pattern,
                             std::uint32_t colour) const {
    std::vector<int> seen;
    for (const int column : columns)
        if (column >= m_clip.left && column < m_clip.right)
            seen.push_back(column);
    const int direction = to < from ? -1 : 1;
    const int first = std::max(direction > 0 ? m_clip.top - from : from - (m_clip.bottom - 1), 0);
    const int last =
        std::min(direction > 0 ? m_clip.bottom - 1 - from : from - m_clip.top, std::abs(to - from) - 1);
    for (int base = first - first % pattern.period; base <= last; base += pattern.period) {
        for (const int dot : pattern.dots) {
            const int k = base + dot;
            if (k < first || k > last)
                continue;
            std::uint32_t* row = At(0, from + direction * k);
            for (const int column : seen)
                row[column] = colour;
        }
    }
}

void PixelRaster::Overlay(const std::uint32_t* pixels, std::ptrdiff_t stride, const Rect& area) const {
    constexpr int kBlock = 16; // pixels that are looked at together, without a branch for each
    const Rect seen = ClippedTo(area).Clip();
    for (int y = seen.top; y < seen.bottom; ++y) {
        const std::uint32_t* from = pixels + stride * (y - area.top) + (seen.left - area.left);
        std::uint32_t* to = At(seen.left, y);
        int left = seen.Width();
        for (; left >= kBlock; left -= kBlock, from += kBlock, to += kBlock)
            OverlayBlock<kBlock>(from, to);
        for (; left > 0; --left)
            OverlayBlock<1>(from++, to++);
    }
}

void PixelRaster::Stroke(const Point& from, const Point& to, std::uint32_t colour) const {
    if (from.x == to.x) {
        if (from.y < to.y)
            Run(from.x, from.y, to.y - 1, colour);
        else if (from.y > to.y)
            Run(from.x, to.y + 1, from.y, colour);
        return;
    }
    const PixelLine line(from, to);
    std::int64_t first = 0;
    std::int64_t end = 0;
    if (!line.FindInside(m_clip, first, end))
        return;
    const std::int64_t along = line.Steps();
    const std::int64_t across = line.Moves();

    const std::ptrdiff_t alongStep = (line.IsSteep() ? m_stride : 1) * (line.StepsDown() ? -1 : 1);
    const std::ptrdiff_t acrossStep = (line.IsSteep() ? 1 : m_stride) * (line.MovesDown() ? -1 : 1);
    const auto place = [&](std::int64_t step, std::int64_t moves) {
        const std::int64_t offset =
            m_stride * std::int64_t{from.y} + from.x + alongStep * step + acrossStep * moves;
        return m_origin + static_cast<std::ptrdiff_t>(offset);
    };
    if (across == 1) { // two straight runs
        const std::int64_t change = std::clamp(line.StepOf(1), first, end);
        const auto run = [&](std::int64_t step, std::int64_t runEnd, std::int64_t moves) {
            if (step == runEnd)
                return;
            std::uint32_t* pixel = place(step, moves);
            *pixel = colour;
            while (++step < runEnd)
                *(pixel += alongStep) = colour;
        };
        run(first, change, 0);
        run(change, end, 1);
        return;
    }
    std::int64_t error = 2 * first * across + along - line.AtHalf();
    const std::int64_t moves = error / (2 * along);
    error -= moves * 2 * along;
    std::uint32_t* pixel = place(first, moves);
    *pixel = colour;
    for (std::int64_t step = first + 1; step < end; ++step) {
        pixel += alongStep;
        error += 2 * across;
        if (error >= 2 * along) {
            error -= 2 * along;
            pixel += acrossStep;
        }
        *pixel = colour;
    }
}

} // namespace kavlix

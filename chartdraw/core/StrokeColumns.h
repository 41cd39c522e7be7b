// SPDX-License-Identifier: MIT
// The pixels of a stroke, column by column.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "plot/Shapes.h"

namespace kavlix {

/// Calls `take(x, top, bottom)` with the rows that a stroke one pixel wide paints in each of the columns from
/// `first` to `last`, which it must cross. The pixels are those of PixelRaster::Stroke, so the last one is left out.
template <class Take>
void VisitStrokeColumns(const Point& from, const Point& to, int first, int last, Take take) {
    const bool isLeftwards = to.x < from.x;
    const bool isUpwards = to.y < from.y;
    const std::int64_t dx = std::llabs(std::int64_t{to.x} - from.x);
    const std::int64_t dy = std::llabs(std::int64_t{to.y} - from.y);
    const int way = isUpwards ? -1 : 1;
    const int count = last - first + 1;
    const int begin = isLeftwards ? last : first;
    const std::int64_t start = std::llabs(std::int64_t{begin} - from.x);
    if (dy > dx) {
        // Halfway between two pixels, the line takes the smaller coordinate.
        const std::int64_t atHalf = isLeftwards ? 0 : 1;
        const auto stepOf = [&](std::int64_t column) {
            return column == 0 ? 0 : std::min(((2 * column - 1) * dy + atHalf + 2 * dx - 1) / (2 * dx), dy);
        };
        std::int64_t step = stepOf(start);
        for (int i = 0; i < count; ++i) {
            const std::int64_t next = stepOf(start + i + 1);
            if (next > step) {
                const int a = from.y + way * static_cast<int>(step);
                const int b = from.y + way * static_cast<int>(next - 1);
                take(isLeftwards ? begin - i : begin + i, std::min(a, b), std::max(a, b));
            }
            step = next;
        }
        return;
    }
    const std::int64_t atHalf = isUpwards ? 0 : 1;
    std::int64_t error = 2 * start * dy + dx - atHalf;
    const std::int64_t moves = error / (2 * dx);
    error -= moves * 2 * dx;
    int y = from.y + way * static_cast<int>(moves);
    for (int i = 0; i < count && start + i < dx; ++i) {
        take(isLeftwards ? begin - i : begin + i, y, y);
        error += 2 * dy;
        if (error >= 2 * dx) {
            error -= 2 * dx;
            y += way;
        }
    }
}

} // namespace kavlix

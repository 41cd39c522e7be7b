// SPDX-License-Identifier: MIT
// Places in the plot, for horizontal and upright graphs alike.
#include "graph/GraphPass.h"

#include <algorithm>
#include <cstdint>

namespace kavlix {

PlaneRect GraphPass::Between(Span along, Span value) const {
    const PlanePoint a = At(along.from, value.from);
    const PlanePoint b = At(along.to, value.to);
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

bool GraphPass::Covers(const StackSegment& later, const StackSegment& earlier) const {
    const auto pixel = [this](std::int64_t value) {
        const double position = values.Position(values.Clamp(static_cast<double>(value)));
        return horizontal ? canvas.X(position) : canvas.Y(position);
    };
    const bool isDrawn =
        values.Clamp(static_cast<double>(later.low)) != values.Clamp(static_cast<double>(later.high));
    const int at = pixel(later.low);
    return isDrawn && at == pixel(later.high) && at == pixel(earlier.low) && at == pixel(earlier.high);
}

} // namespace kavlix

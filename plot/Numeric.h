#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace kavlix {

constexpr double kPi = 3.14159265358979323846;

/// GDI takes coordinates of up to 27 bits. Positions saturate there, which also leaves room to add marker
/// sizes and margins without overflow.
constexpr int kCoordinateLimit = 1 << 27;

/// `value` truncated toward zero and held within [low, high]; 0 for NaN. The one way from double to int.
inline int TruncateToInt(double value, int low = std::numeric_limits<int>::min(),
                         int high = std::numeric_limits<int>::max()) {
    if (value >= high)
        return high;
    if (value <= low)
        return low;
    return value == value ? static_cast<int>(value) : 0;
}

/// `value` truncated toward zero and held within what GDI can draw; 0 for NaN.
inline int ToCoordinate(double value) {
    return TruncateToInt(value, -kCoordinateLimit, kCoordinateLimit);
}

/// `value` held within what GDI can draw.
inline int ToCoordinate(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, -kCoordinateLimit, kCoordinateLimit));
}

} // namespace kavlix

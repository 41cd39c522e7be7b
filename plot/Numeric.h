// SPDX-License-Identifier: MIT
// Pi, the limits of GDI, and conversions from double to int that are defined for every value.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace kavlix {

constexpr double kPi = 3.14159265358979323846;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// Positions are limited to this value, in both directions, before GDI gets them. So marker sizes and margins
/// can be added to them without overflow.
constexpr int kCoordinateLimit = 1 << 27;

/// The largest number of UTF-16 units that GDI draws in one call.
constexpr int kLongestText = 8192;

/// `value` truncated toward zero and limited to [low, high]; 0 for NaN. Use this function unless `value` is
/// known to be in the range of an int: for other values a cast is undefined.
inline int TruncateToInt(double value, int low = std::numeric_limits<int>::min(),
                         int high = std::numeric_limits<int>::max()) {
    if (value >= high)
        return high;
    if (value <= low)
        return low;
    return value == value ? static_cast<int>(value) : 0;
}

/// `value` truncated toward zero and limited to kCoordinateLimit; 0 for NaN.
inline int ToCoordinate(double value) {
    return TruncateToInt(value, -kCoordinateLimit, kCoordinateLimit);
}

/// `value` limited to kCoordinateLimit.
inline int ToCoordinate(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, -kCoordinateLimit, kCoordinateLimit));
}

} // namespace kavlix

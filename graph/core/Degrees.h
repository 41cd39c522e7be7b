// SPDX-License-Identifier: MIT
// Angles in degrees.
#pragma once

#include "plot/Numeric.h"

namespace kavlix {

constexpr int kFullTurn = 360;
constexpr int kHalfTurn = 180;
constexpr int kQuarterTurn = 90;

inline double Radians(double degrees) {
    return degrees * kPi / kHalfTurn;
}

inline double DegreesOf(double radians) {
    return radians * kHalfTurn / kPi;
}

} // namespace kavlix

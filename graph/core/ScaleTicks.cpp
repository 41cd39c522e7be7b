// SPDX-License-Identifier: MIT
// Choosing strides of 1, 2 or 5 times a power of ten.
#include "graph/core/ScaleTicks.h"

#include <algorithm>
#include <cstdlib>

namespace kavlix {
namespace {

constexpr std::int64_t kLongestStride = 1'000'000'000'000; // more than the range of any axis

/// The smallest of 1, 2, 5, 10, 20 ... whose product with `distance` is at least `gap`.
std::int64_t Stride(double distance, double gap) {
    if (!(distance > 0))
        return kLongestStride;
    for (std::int64_t power = 1; power < kLongestStride; power *= 10)
        for (const int factor : {1, 2, 5})
            if (static_cast<double>(power * factor) * distance >= gap)
                return power * factor;
    return kLongestStride;
}

std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
    const std::int64_t quotient = a / b;
    return quotient * b > a ? quotient - 1 : quotient;
}

std::int64_t CeilDivide(std::int64_t a, std::int64_t b) {
    return -FloorDivide(-a, b);
}

} // namespace

ScaleTicks ChooseTicks(std::int64_t min, std::int64_t max, std::int64_t step, double extent, double tickGap,
                       double labelGap, bool fromZero) {
    constexpr int kDefaultSteps = 10;
    const std::int64_t low = std::min(min, max);
    const std::int64_t high = std::max(min, max);
    ScaleTicks ticks;
    ticks.step = step != 0 ? std::abs(step) : std::max<std::int64_t>((high - low) / kDefaultSteps, 1);
    const bool passesZero = low < 0 && high > 0 && min % ticks.step == 0;
    ticks.anchor = fromZero || passesZero ? 0 : min;

    const double range = high > low ? static_cast<double>(high - low) : 1.0;
    const double distance = static_cast<double>(ticks.step) / range * extent;
    ticks.every = Stride(distance, tickGap);
    ticks.labelEvery = ticks.every;
    if (ticks.every < kLongestStride)
        ticks.labelEvery *= Stride(distance * static_cast<double>(ticks.every), std::max(labelGap, tickGap));
    ticks.first = CeilDivide(CeilDivide(low - ticks.anchor, ticks.step), ticks.every) * ticks.every;
    ticks.last = FloorDivide(high - ticks.anchor, ticks.step);
    return ticks;
}

RoundLimits ChooseLimits(std::int64_t low, std::int64_t high, int steps) {
    if (low == high) {
        --low;
        ++high;
    }
    const double wanted = static_cast<double>(high - low) / std::max(steps, 1);
    RoundLimits limits;
    limits.step = Stride(1.0, wanted);
    limits.min = FloorDivide(low, limits.step) * limits.step;
    limits.max = CeilDivide(high, limits.step) * limits.step;
    return limits;
}

} // namespace kavlix

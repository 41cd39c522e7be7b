// SPDX-License-Identifier: MIT
// Chooses a power of ten and an axis for values that must become whole numbers.

#include "monitor/recording/WholeScale.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kavlix::recording {
namespace {

constexpr double kFewestUnits = 100;  // least units between lowest and highest value, so that values differ
constexpr double kMostUnits = 9999;   // most units of a value if the span then keeps kFewestUnits
constexpr double kLargest = 99999999; // most units of a value in any case
constexpr int kLargestPower = 300;    // exponent of ten: 10^300 and its inverse are within a double's range
constexpr double kWantedTicks = 7;

/// The least of 1, 2 and 5 times a power of ten that is not below `least`.
double RoundStep(double least) {
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= least)
            return factor * power;
    return 10 * power;
}

} // namespace

int WholeScale::ToWhole(double value) const {
    return static_cast<int>(std::lround(std::clamp(value * factor, -1e9, 1e9)));
}

std::string WholeScale::UnitText() const {
    if (factor == 1)
        return {};
    char text[48];
    std::snprintf(text, sizeof text, " (x %.10g)", 1 / factor);
    return text;
}

WholeScale ChooseWholeScale(const ValueSpan& values, bool fromZero) {
    WholeScale scale;
    const double low = fromZero ? std::min(values.min, 0.0) : values.min;
    const double high = fromZero ? std::max(values.max, 0.0) : values.max;
    const double largest = std::max(std::abs(low), std::abs(high));
    if (!values.any || largest == 0)
        return scale;
    // Half the span, because the whole span may exceed the range of a double. If all values are equal, their
    // distance from 0 stands in for the span.
    const double range = high > low ? high / 2 - low / 2 : largest / 2;
    const auto units = [](double value, int power) { return value * std::pow(10, power); };
    int power = 0;
    while (power < kLargestPower && 2 * units(range, power) < kFewestUnits)
        ++power;
    while (power > -kLargestPower - 10 && units(largest, power) > kMostUnits &&
           (2 * units(range, power - 1) >= kFewestUnits || units(largest, power) > kLargest))
        --power;
    scale.factor = std::pow(10, power);
    const double bottom = low * scale.factor;
    const double top = high * scale.factor;
    const double step = std::max(1.0, RoundStep(std::max(top - bottom, 1.0) / kWantedTicks));
    scale.step = static_cast<int>(step);
    scale.min = static_cast<int>(std::floor(bottom / step) * step);
    scale.max = static_cast<int>(std::ceil(top / step) * step);
    if (scale.min == scale.max)
        scale.max += scale.step;
    return scale;
}

} // namespace kavlix::recording

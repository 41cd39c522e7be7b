// SPDX-License-Identifier: MIT
// The choice of round axis steps, and the texts of tick labels.
#include "plot/RoundScale.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "plot/NumberFormat.h"

namespace kavlix {
namespace {

constexpr double kMantissas[] = {10, 20, 25, 50};
/// Larger values are limited to this one: sums and products in this file then stay finite.
constexpr double kLargestValue = 1e300;
constexpr double kSmallestRange = 1e-290;
/// The narrowest range, as a share of the largest absolute value in it. In a narrower range a double has too
/// few digits for the ticks.
constexpr double kNarrowestRange = 1e-12;
constexpr double kMostParts = 1e15; // largest multiple of the host's step; beyond it a double loses digits
constexpr double kRoomAround = 0.5; // space on each side of a single value, as a share of this value
/// Tolerance for rounding errors, as a share of a step: a number this close to a multiple of the step counts
/// as this multiple.
constexpr double kRounding = 1e-9;
constexpr std::size_t kLongestPlainLabel = 8; // characters

/// `value` * 10^`exponent`.
double Shift(double value, int exponent) {
    return Scaled(value, -exponent);
}

std::string Plain(double value, int decimals) {
    char text[512];
    const int length = std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return std::string(text, static_cast<std::size_t>(std::clamp<int>(length, 0, sizeof text - 1)));
}

} // namespace

RoundScale RoundScale::Around(const ValueBounds& values, int mostSteps) {
    double min = 0;
    double max = 1;
    if (!values.IsEmpty()) {
        min = std::clamp(values.min, -kLargestValue, kLargestValue);
        max = std::clamp(values.max, -kLargestValue, kLargestValue);
    }
    const double size = std::max(std::abs(min), std::abs(max));
    if (min == max) {
        const double room = size == 0 ? 1 : std::max(size * kRoomAround, kSmallestRange);
        min -= room;
        max += room;
    } else if (const double least = std::max(size * kNarrowestRange, kSmallestRange); max - min < least) {
        const double middle = min + (max - min) / 2;
        min = middle - least / 2;
        max = middle + least / 2;
    }

    RoundScale scale;
    scale.m_found = true;
    // A range from below 0 to above 0 needs two steps, however large a step is.
    const int most = std::max(mostSteps, 2);
    // Start one power of ten too low: the first step that fits is the finest one.
    scale.m_exponent = ExponentOf((max - min) / most) - 2;
    for (;; ++scale.m_exponent) {
        for (const double mantissa : kMantissas) {
            scale.m_mantissa = mantissa;
            const double step = scale.Step();
            const double first = std::floor(min / step + kRounding);
            const double last = std::ceil(max / step - kRounding);
            if (last - first > most)
                continue;
            // Adding 0 turns a negative zero into zero.
            scale.m_min = Shift(first * mantissa, scale.m_exponent) + 0.0;
            scale.m_max = Shift(last * mantissa, scale.m_exponent) + 0.0;
            scale.FindTicks();
            return scale;
        }
    }
}

RoundScale RoundScale::Fixed(double min, double max, double step, int mostSteps) {
    RoundScale scale;
    scale.m_exponent = 0;
    scale.m_min = std::clamp(min, -kLargestValue, kLargestValue);
    scale.m_max = std::clamp(max, -kLargestValue, kLargestValue);
    const double range = scale.m_max - scale.m_min;
    const int most = std::max(mostSteps, 2);
    const double size = std::max(std::abs(scale.m_min), std::abs(scale.m_max));
    if (!(range >= std::max(size * kNarrowestRange, kSmallestRange)))
        return Around({scale.m_min, scale.m_max}, mostSteps);
    const double parts = range / step / most;
    if (!(step > 0) || !(step <= kLargestValue) || parts > kMostParts) {
        scale.m_exponent = ExponentOf(range / most) - 2;
        for (bool fits = false; !fits; scale.m_exponent += !fits) {
            for (const double mantissa : kMantissas) {
                scale.m_mantissa = mantissa;
                fits = range / scale.Step() <= most + kRounding;
                if (fits)
                    break;
            }
        }
        scale.m_found = true;
    } else {
        double times = 1;
        for (double power = 1; times < parts - kRounding; power *= 10)
            for (const double mantissa : {1.0, 2.0, 5.0, 10.0})
                if (times < parts - kRounding)
                    times = mantissa * power;
        scale.m_mantissa = step * times;
        scale.m_found = false;
    }
    scale.FindTicks();
    return scale;
}

double RoundScale::Step() const {
    return Shift(m_mantissa, m_exponent);
}

void RoundScale::FindTicks() {
    const double step = Step();
    m_first = std::ceil(m_min / step - kRounding);
    const double last = std::floor(m_max / step + kRounding);
    constexpr double kMostTicks = 100000;
    m_count = last >= m_first ? static_cast<int>(std::min(last - m_first + 1, kMostTicks)) : 0;
    if (m_found) {
        const bool wholePower = m_mantissa != 25;
        m_decimals = std::max(0, -(m_exponent + (wholePower ? 1 : 0)));
        return;
    }
    m_decimals = DecimalsOfStep(step);
}

double RoundScale::Tick(int i) const {
    return Shift((m_first + i) * m_mantissa, m_exponent) + 0.0;
}

std::string RoundScale::Label(int i) const {
    const double value = Tick(i);
    // All labels of the axis use the same form, so the choice depends on the first and last tick and the
    // step.
    std::size_t plain = 0;
    std::size_t power = 0;
    for (const double each : {Tick(0), Tick(m_count - 1), Step()}) {
        constexpr double kLongest = 1e60;
        plain = std::max(plain, std::abs(each) > kLongest || m_decimals > kMostDecimals
                                    ? std::string::npos
                                    : Plain(each, m_decimals).size());
        power = std::max(power, PowerLabel(each).size());
    }
    return plain <= kLongestPlainLabel || plain <= power ? Plain(value, m_decimals) : PowerLabel(value);
}

std::string RoundScale::PowerLabel(double value) const {
    // As many digits as the step needs.
    return PowerText(value, m_found ? m_exponent + (m_mantissa != 25 ? 1 : 0) : -m_decimals);
}

} // namespace kavlix

// SPDX-License-Identifier: MIT
// The values and texts of a value axis' ticks.
#include "graphctrl/core/AxisTicks.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "plot/Numeric.h"

namespace kavlix {

ValueTicks::ValueTicks(double min, double max, int ticks, int exponent)
    : m_value(min), m_step((max - min) / (ticks - 1)) {
    const double power = std::pow(10.0, exponent);
    if (power != 0) {
        m_step /= power;
        m_value /= power;
    }
}

namespace {

/// More decimal places than GDI draws characters are useless.
int Precision(int decimals) {
    return std::clamp(decimals, 0, kLongestText);
}

} // namespace

std::string FormatTick(double value, int decimals) {
    // The exact value of a double has at most this many decimal places. Further places are appended as zeros.
    constexpr int kRealDecimals = 1074;
    const int precision = std::min(Precision(decimals), kRealDecimals);
    const int length = std::snprintf(nullptr, 0, "%.*f", precision, value);
    if (length <= 0)
        return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), "%.*f", precision, value);
    text.pop_back();
    if (std::isfinite(value))
        text.append(static_cast<std::size_t>(Precision(decimals) - precision), '0');
    return text;
}

int LongestTick(int decimals) {
    constexpr int kBeforeDecimals = 311; // sign, 309 digits and decimal point of the largest double
    return kBeforeDecimals + Precision(decimals);
}

} // namespace kavlix

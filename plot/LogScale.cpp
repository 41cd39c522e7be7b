// SPDX-License-Identifier: MIT
// The choice of a logarithmic axis' ticks.
#include "plot/LogScale.h"

#include <algorithm>
#include <cmath>

#include "plot/NumberFormat.h"
#include "plot/Numeric.h"
#include "plot/RoundScale.h"

namespace kavlix {
namespace {

using Mantissas = std::vector<int>;

/// A tick is a mantissa times ten to a multiple of `every`.
struct LogStep {
    Mantissas mantissas;
    int every = 1;
    double decades; ///< the least distance of two neighbours
};

constexpr double kDecadesOf2 = 0.30103;       // from 1 to 2, as from 5 to 10
constexpr double kDecadesOf9To10 = 0.0457575; // the least of 1 to 10

/// Values at the ends of the range count in spite of rounding.
constexpr double kRounding = 1e-9;

std::vector<double> TicksOf(const LogStep& step, double min, double max) {
    std::vector<double> ticks;
    const auto firstMultiple = static_cast<int>(std::floor(std::floor(std::log10(min)) / step.every));
    for (int exponent = (firstMultiple - 1) * step.every;; exponent += step.every)
        for (const int mantissa : step.mantissas) {
            const double value = Scaled(mantissa, -exponent);
            if (!(value <= max * (1 + kRounding)))
                return ticks;
            if (value >= min * (1 - kRounding))
                ticks.push_back(value);
        }
}

std::string PowerLabel(double value) {
    constexpr int kDigits = 9; // as far as rounding errors of ticks cannot reach
    return PowerText(value, ExponentOf(value) - kDigits);
}

} // namespace

LogScale::LogScale(double min, double max, int length, int room) {
    if (!(min > 0) || !(min < max) || !std::isfinite(max) || length <= 0)
        return;
    const double decades = std::log10(max) - std::log10(min);
    if (!(decades > 0))
        return;
    const double pixels = length / decades; // per decade
    LogStep labels = {{1, 2, 5}, 1, kDecadesOf2};
    if (labels.decades * pixels < room) {
        labels = {{1}, 1, 1};
        for (int power = 1; labels.every * pixels < room && power <= 100; power *= 10)
            for (const int times : {1, 2, 3, 5})
                if (labels.every * pixels < room)
                    labels.every = times * power;
    }
    m_ticks = TicksOf(labels, min, max);

    if (m_ticks.size() < 2 && decades >= 1) {
        // Too little room: two ticks far from each other.
        std::vector<double> ticks = TicksOf({{1}, 1, 1}, min, max);
        if (ticks.size() < 2)
            ticks = TicksOf({{1, 2, 5}, 1, kDecadesOf2}, min, max);
        m_ticks = {ticks.front(), ticks.back()};
    } else if (m_ticks.size() < 2) {
        // On an axis of ratios, equal steps are narrowest at the upper end.
        const double roomAtMax = max * std::log(10.0) * room / pixels;
        const int steps = TruncateToInt((max - min) / roomAtMax, 1, 20);
        const RoundScale scale = RoundScale::Fixed(min, max, 0, steps);
        std::vector<double> ticks;
        for (int i = 0; i < scale.TickCount(); ++i)
            if (const double value = scale.Tick(i); value >= min && value <= max)
                ticks.push_back(value);
        if (ticks.size() > m_ticks.size()) {
            m_ticks = ticks;
            m_decimals = scale.Decimals();
        }
    }

    const LogStep minors[] = {
        {{1, 2, 3, 4, 5, 6, 7, 8, 9}, 1, kDecadesOf9To10}, {{1, 2, 5}, 1, kDecadesOf2}, {{1}, 1, 1}};
    for (const LogStep& minor : minors)
        if (minor.decades * pixels >= kMinorTickRoom) {
            for (const double value : TicksOf(minor, min, max))
                if (!std::binary_search(m_ticks.begin(), m_ticks.end(), value))
                    m_minorTicks.push_back(value);
            break;
        }
}

std::string LogScale::PlainLabel(double value) const {
    return FixedText(value, m_decimals >= 0 ? m_decimals : DecimalsOfStep(value));
}

std::string LogScale::Label(int i) const {
    std::size_t plain = 0;
    std::size_t power = 0;
    constexpr std::size_t kLongestPlainLabel = 8; // characters
    for (const double tick : m_ticks) {
        plain = std::max(plain,
                         DecimalsOfStep(tick) == kMostDecimals ? std::string::npos : PlainLabel(tick).size());
        power = std::max(power, PowerLabel(tick).size());
    }
    const double value = m_ticks[static_cast<std::size_t>(i)];
    return plain <= kLongestPlainLabel || plain <= power ? PlainLabel(value) : PowerLabel(value);
}

} // namespace kavlix

// SPDX-License-Identifier: MIT
// Chooses a range with round ticks that covers the values.

#include "monitor/recording/ValueScale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace kavlix::recording {
namespace {

constexpr int kMinTicks = 2;
constexpr int kMaxTicks = 1000;
constexpr double kSmallest = 1e-300; // values that are all nearer to 0 count as 0

/// Values whose span is at most this share of their magnitude count as equal: labels could not show the span.
constexpr double kConstantShare = 1e-9;
constexpr double kRoomShare = 0.1; // room above and below equal values, as a share of their magnitude

/// The axis reaches 0 when the value nearest to 0 is at most this share of the farthest one.
constexpr double kZeroShare = 1.0 / 3.0;

/// Tolerance of a division, as a share of a step: without it, rounding errors would cost a whole step.
constexpr double kRoundingSlack = 1e-9;
constexpr double kFinerByFar = 2.5; // a new range at least this number of times shorter replaces the old one

// An axis needs no unit when its largest absolute value is in this range.
constexpr double kPlainFrom = 1e-2;
constexpr double kPlainBelow = 1e4; // excluded

/// A step of mantissa * 10^exponent.
struct Step {
    std::int64_t mantissa = 1;
    int exponent = 0;
    double value = 1;
};

/// The round steps, as tenths of a power of ten. The penalty makes ChooseStep prefer a less round step only
/// to a rounder one that is more than 1.2 times as long.
struct Mantissa {
    std::int64_t tenths;
    double penalty;
};
constexpr Mantissa kMantissas[] = {{10, 1.0}, {15, 1.2}, {20, 1.0}, {25, 1.0}, {30, 1.2},
                                   {40, 1.2}, {50, 1.0}, {60, 1.2}, {80, 1.2}};

/// multiple * step, rounded only once where the power of ten is exact, so that 3 * 0.1 gives 0.3.
double Multiple(std::int64_t multiple, const Step& step) {
    const double whole = static_cast<double>(multiple * step.mantissa);
    return step.exponent >= 0 ? whole * std::pow(10.0, step.exponent)
                              : whole / std::pow(10.0, -step.exponent);
}

Step MakeStep(std::int64_t tenths, int exponent) {
    Step step;
    const bool whole = tenths % 10 == 0;
    step.mantissa = whole ? tenths / 10 : tenths;
    step.exponent = whole ? exponent : exponent - 1;
    step.value = Multiple(1, step);
    return step;
}

std::int64_t FloorSteps(double value, const Step& step) {
    return static_cast<std::int64_t>(std::floor(value / step.value + kRoundingSlack));
}

std::int64_t CeilSteps(double value, const Step& step) {
    return static_cast<std::int64_t>(std::ceil(value / step.value - kRoundingSlack));
}

/// The span that the axis covers: cut to kScaleLimit, extended to 0 where 0 is near, never of zero width.
ValueSpan SpanToShow(const ValueSpan& span) {
    ValueSpan shown;
    shown.any = true;
    shown.min = span.any ? std::clamp(span.min, -kScaleLimit, kScaleLimit) : 0;
    shown.max = span.any ? std::clamp(span.max, -kScaleLimit, kScaleLimit) : 0;
    const double farthest = std::max(std::abs(shown.min), std::abs(shown.max));
    if (farthest < kSmallest) {
        shown.min = 0;
        shown.max = 1;
        return shown;
    }
    if (shown.max - shown.min <= farthest * kConstantShare) {
        shown.min -= farthest * kRoomShare;
        shown.max += farthest * kRoomShare;
        return shown;
    }
    if (shown.min > 0 && shown.min <= shown.max * kZeroShare)
        shown.min = 0;
    else if (shown.max < 0 && shown.max >= shown.min * kZeroShare)
        shown.max = 0;
    return shown;
}

/// The best round step, not below `wanted`, with which `intervals` steps cover the span.
Step ChooseStep(const ValueSpan& span, std::int64_t intervals, double wanted) {
    const int exponent = static_cast<int>(std::floor(std::log10(wanted)));
    Step best;
    double bestCost = 0;
    for (int power = exponent - 1; power <= exponent + 3; ++power) {
        for (const Mantissa& mantissa : kMantissas) {
            const Step step = MakeStep(mantissa.tenths, power);
            const double cost = step.value * mantissa.penalty;
            if (step.value >= wanted * (1 - kRoundingSlack) && (bestCost == 0 || cost < bestCost) &&
                CeilSteps(span.max, step) - FloorSteps(span.min, step) <= intervals) {
                best = step;
                bestCost = cost;
            }
        }
    }
    return best;
}

/// The multiple of the step at which the axis begins. A span that begins or ends at 0 keeps 0 as an end of
/// the axis; any other span is centred. With values of one sign, centring cannot reach across 0, because
/// SpanToShow extends spans near 0.
std::int64_t FirstMultiple(const ValueSpan& span, const Step& step, std::int64_t intervals) {
    const std::int64_t low = FloorSteps(span.min, step);
    const std::int64_t high = CeilSteps(span.max, step);
    if (span.min == 0)
        return 0;
    return span.max == 0 ? -intervals : low - (intervals - (high - low)) / 2;
}

std::string UnitText(int exponent) {
    static constexpr const char* kPrefixes[] = {"y", "z", "a", "f", "p", "n", "u", "m", "",
                                                "k", "M", "G", "T", "P", "E", "Z", "Y"};
    constexpr int kLargest = 24;
    if (exponent < -kLargest || exponent > kLargest)
        return "10^" + std::to_string(exponent);
    return kPrefixes[(exponent + kLargest) / 3];
}

void SetUnit(ValueScale& scale, int exponent, int stepExponent) {
    scale.unitExponent = exponent;
    scale.decimals = std::max(0, exponent - stepExponent);
    scale.unit = UnitText(exponent);
}

/// Chooses a unit for large or small numbers if it makes the labels shorter.
void ChooseUnit(ValueScale& scale, int stepExponent) {
    SetUnit(scale, 0, stepExponent);
    const double farthest = std::max(std::abs(scale.min), std::abs(scale.max));
    if (farthest < kPlainBelow && farthest >= kPlainFrom)
        return;
    ValueScale withUnit = scale;
    const int exponent = 3 * static_cast<int>(std::floor((std::log10(farthest) + kRoundingSlack) / 3));
    SetUnit(withUnit, exponent, stepExponent);
    if (LongestLabel(withUnit) < LongestLabel(scale))
        scale = withUnit;
}

/// The control computes the ticks by repeated addition, so a tick at 0 may come out slightly negative and be
/// printed as "-0.0". Extending the range by less than a pixel avoids that.
void AvoidNegativeZero(ValueScale& scale) {
    const std::vector<std::string> labels = ValueLabels(scale);
    const bool any = std::any_of(labels.begin(), labels.end(), [](const std::string& label) {
        return label.front() == '-' && label.find_first_not_of("-0.") == std::string::npos;
    });
    if (any)
        scale.max += (scale.max - scale.min) * kRoundingSlack;
}

} // namespace

ValueScale ChooseValueScale(const ValueSpan& span, int ticks) {
    const ValueSpan shown = SpanToShow(span);
    ValueScale scale;
    scale.ticks = std::clamp(ticks, kMinTicks, kMaxTicks);
    const std::int64_t intervals = scale.ticks - 1;
    Step step;
    if (intervals == 1) {
        // The two labels need not be neighbouring multiples of a step: any two round values do.
        constexpr std::int64_t kParts = 6;
        step = ChooseStep(shown, kParts, (shown.max - shown.min) / static_cast<double>(kParts));
        scale.min = Multiple(FloorSteps(shown.min, step), step);
        scale.max = Multiple(CeilSteps(shown.max, step), step);
    } else {
        step = ChooseStep(shown, intervals, (shown.max - shown.min) / static_cast<double>(intervals));
        const std::int64_t first = FirstMultiple(shown, step, intervals);
        scale.min = Multiple(first, step);
        scale.max = Multiple(first + intervals, step);
    }
    // Rounding errors of the division must not leave a value outside.
    scale.min = std::min(scale.min, shown.min);
    scale.max = std::max(scale.max, shown.max);
    scale.step = (scale.max - scale.min) / static_cast<double>(intervals);
    ChooseUnit(scale, step.exponent);
    AvoidNegativeZero(scale);
    return scale;
}

bool FollowValues(ValueScale& scale, const ValueSpan& span, int ticks) {
    ValueScale fresh = ChooseValueScale(span, ticks);
    const bool fits = !span.any || (span.min >= scale.min && span.max <= scale.max);
    const bool fine = !span.any || scale.max - scale.min < kFinerByFar * (fresh.max - fresh.min);
    if (fits && fine && scale.ticks == fresh.ticks)
        return false;
    scale = std::move(fresh);
    return true;
}

std::vector<std::string> ValueLabels(const ValueScale& scale) {
    constexpr std::size_t kLongest = 800;
    constexpr int kMostDecimals = 400;
    std::vector<std::string> labels;
    const double power = std::pow(10.0, scale.unitExponent);
    const double step = (scale.max - scale.min) / static_cast<double>(std::max(scale.ticks - 1, 1)) / power;
    double value = scale.min / power;
    for (int i = 0; i < scale.ticks; ++i) {
        char buffer[kLongest];
        const std::to_chars_result result =
            std::to_chars(buffer, buffer + kLongest, value, std::chars_format::fixed,
                          std::clamp(scale.decimals, 0, kMostDecimals));
        labels.emplace_back(buffer, result.ptr);
        value += step;
    }
    return labels;
}

int LongestLabel(const ValueScale& scale) {
    std::size_t longest = 0;
    for (const std::string& label : ValueLabels(scale))
        longest = std::max(longest, label.size());
    return static_cast<int>(longest);
}

} // namespace kavlix::recording

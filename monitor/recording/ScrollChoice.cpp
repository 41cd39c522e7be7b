// SPDX-License-Identifier: MIT
// Which series of a recording share a graph, and how wide the view is.

#include "monitor/recording/ScrollChoice.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kavlix::recording {
namespace {

/// Series share a graph when the larger magnitude is at most this multiple of the smaller one.
constexpr double kSameMagnitude = 4;

/// A recording that fills less than 1/kFilledPart of a view gets the next shorter view.
constexpr int kFilledPart = 3;

double Magnitude(const ValueSpan& span) {
    return std::max(std::abs(span.min), std::abs(span.max));
}

bool SameMagnitude(double a, double b) {
    return std::max(a, b) <= kSameMagnitude * std::min(a, b);
}

} // namespace

std::vector<bool> DivideByMagnitude(const std::vector<ValueSpan>& spans) {
    std::vector<bool> below(spans.size(), false);
    for (std::size_t i = 1; i < spans.size(); ++i)
        below[i] = !SameMagnitude(Magnitude(spans[i]), Magnitude(spans[0]));
    if (std::find(below.begin(), below.end(), true) == below.end() && spans.size() > 1)
        std::fill(below.begin() + 1, below.end(), true);
    return below;
}

std::size_t ChooseViewRange(Time length) {
    constexpr std::size_t count = std::size(kViewRanges);
    const auto covers = [length](int range) { return range * kMicrosPerSecond >= length; };
    const std::size_t found = static_cast<std::size_t>(
        std::find_if(std::begin(kViewRanges), std::end(kViewRanges), covers) - std::begin(kViewRanges));
    if (found == count)
        return count - 1;
    return found > 0 && length * kFilledPart < kViewRanges[found] * kMicrosPerSecond ? found - 1 : found;
}

} // namespace kavlix::recording

// SPDX-License-Identifier: MIT
// Zooming, panning and the limits of one axis's visible range.
#include "chartdraw/core/ViewAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace kavlix {
namespace {

constexpr double kLargestValue = 1e300;
constexpr double kMostDecades = 300;
/// Twice the narrowest range of RoundScale, so that ticks never widen a visible range.
constexpr double kNarrowestRange = 2e-12;
constexpr double kSmallestRange = 2e-290;
/// The narrowest range of a time axis: ten of its finest steps, and a few steps of a double.
constexpr double kNarrowestTime = 1e-8; // seconds
constexpr double kNarrowestTimeSteps = 16 * std::numeric_limits<double>::epsilon();
constexpr double kFewestDecades = 1e-9;
/// Panning keeps the width until the narrowest range of the new place exceeds it by this factor; otherwise the
/// width would change by a few bits with each step.
constexpr double kPannedWidth = 0.75;
constexpr double kRoom = 0.5;             // room on either side of the reach, as a share of its width
constexpr double kDecadesBelowMax = 1e-3; // lower end of a logarithmic range whose own has no logarithm

ViewAxis::Span Between(double min, double max) {
    return {min, max, max - min, 0, {min, max}};
}

} // namespace

double ViewAxis::ToScale(double value) const {
    return m_isLogarithmic ? std::log10(value) : value;
}

double ViewAxis::FromScale(double position) const {
    return m_isLogarithmic ? std::pow(10.0, position) : position;
}

double ViewAxis::Limit() const {
    return m_isLogarithmic ? kMostDecades : kLargestValue;
}

double ViewAxis::NarrowestAt(double min, double width) const {
    if (m_isLogarithmic)
        return kFewestDecades;
    const double largest = std::max(std::abs(min), std::abs(min + width));
    return m_isTime ? std::max(largest * kNarrowestTimeSteps, kNarrowestTime)
                    : std::max(largest * kNarrowestRange, kSmallestRange);
}

/// `range` in the units of the axis. What cannot be shown is replaced: ends that are NaN or have no logarithm,
/// ends beyond the limits, ends in the wrong order, and ends too close to each other.
ViewAxis::Span ViewAxis::SpanOf(const ViewRange& range) const {
    ViewRange values = std::isnan(range.min) || std::isnan(range.max) ? ViewRange() : range;
    if (values.max < values.min)
        std::swap(values.min, values.max);
    if (m_isLogarithmic && !(values.max > 0))
        values.max = 1;
    if (m_isLogarithmic && !(values.min > 0))
        values.min = values.max * kDecadesBelowMax;
    Span span = Between(std::clamp(ToScale(values.min), -Limit(), Limit()),
                        std::clamp(ToScale(values.max), -Limit(), Limit()));
    if (const double narrowest = NarrowestAt(span.min, span.width); span.width < narrowest) {
        const double min = std::clamp(span.min - (narrowest - span.width) / 2, -Limit(), Limit() - narrowest);
        span = Between(min, min + narrowest);
    }
    span.values = span.min == ToScale(values.min) && span.max == ToScale(values.max)
                      ? values
                      : ViewRange{FromScale(span.min), FromScale(span.max)};
    return span;
}

/// The range in which the user can move the axis, see the class.
ViewAxis::Span ViewAxis::Reach() const {
    double min = m_home.min;
    double max = m_home.max;
    if (!m_data.IsEmpty()) {
        const Span data = SpanOf({m_data.min, m_data.max});
        min = std::min(min, data.min);
        max = std::max(max, data.max);
    }
    const double room = (max - min) * kRoom;
    return Between(std::max(std::min(min - room, Shown().min), -Limit()),
                   std::min(std::max(max + room, Shown().max), Limit()));
}

double ViewAxis::ShareOf(double value) const {
    return (ToScale(value) - Shown().min) / Shown().width;
}

double ViewAxis::ValueAt(double share) const {
    return FromScale(Shown().min + share * Shown().width);
}

bool ViewAxis::SetLogarithmic(bool isLogarithmic) {
    if (isLogarithmic == m_isLogarithmic)
        return false;
    const ViewRange home = m_home.values;
    const ViewRange before = Range();
    m_isLogarithmic = isLogarithmic;
    m_home = SpanOf(home);
    m_state.isMoved = false;
    return Range() != before;
}

bool ViewAxis::SetHome(const ViewRange& home) {
    const ViewRange before = Range();
    m_home = SpanOf(home);
    return Range() != before;
}

bool ViewAxis::Fit() {
    const ViewRange before = Range();
    m_state.isMoved = false;
    return Range() != before;
}

bool ViewAxis::Set(const ViewRange& range) {
    return Show(SpanOf(range));
}

bool ViewAxis::Show(const Span& span) {
    const ViewRange before = Range();
    m_state = {true, span};
    return Range() != before;
}

/// Shows a range of the width `width` from `min` + `rest`, or the nearest one inside `reach`.
bool ViewAxis::ShowWithin(const Span& reach, double min, double width, double rest) {
    if (std::isnan(min) || std::isnan(width))
        return false;
    const auto place = [&](double wanted, double wantedWidth) {
        width = std::min(wantedWidth, reach.width);
        min = std::clamp(wanted, reach.min, reach.max - width);
    };
    const double wanted = min;
    place(wanted, width);
    if (const double narrowest = NarrowestAt(min, width); width < narrowest * kPannedWidth)
        place(min - (narrowest - width) / 2, narrowest);
    if (min != wanted)
        rest = 0;
    if (min == Shown().min && width == Shown().width) {
        m_state.span.rest = rest;
        return false;
    }
    Span span{min, std::min(min + width, Limit()), width, rest, {}};
    span.values = {FromScale(span.min), FromScale(span.max)};
    return Show(span);
}

bool ViewAxis::Zoom(double share, double factor) {
    if (!(factor > 0) || !std::isfinite(share))
        return false;
    const Span now = Shown();
    const double narrowest = std::min(NarrowestAt(now.min + share * now.width, 0), now.width);
    const double width = std::min(std::max(now.width * factor, narrowest), Reach().width);
    return ShowWithin(Reach(), now.min + (now.rest + share * (now.width - width)), width, 0);
}

bool ViewAxis::Pan(double share) {
    const Span& now = Shown();
    const double step = now.rest + share * now.width;
    // The exact sum is `min` + `rest`.
    const double min = now.min + step;
    const double added = min - now.min;
    const double rest = (now.min - (min - added)) + (step - added);
    return ShowWithin(Reach(), min, now.width, rest);
}

bool ViewAxis::ZoomTo(double from, double to) {
    const Span& now = Shown();
    return ShowWithin(Reach(), now.min + std::min(from, to) * now.width, std::abs(to - from) * now.width, 0);
}

bool ViewAxis::Place(double value, double share) {
    const double width = Shown().width;
    return ShowWithin(Between(-Limit(), Limit()), ToScale(value) - share * width, width, 0);
}

bool ViewAxis::Restore(const State& state) {
    const ViewRange before = Range();
    m_state = state;
    return Range() != before;
}

bool ViewAxis::PanFrom(const State& state, double share) {
    const ViewRange before = Range();
    m_state = state;
    if (share != 0) {
        m_state.isMoved = true;
        Pan(share);
    }
    return Range() != before;
}

} // namespace kavlix

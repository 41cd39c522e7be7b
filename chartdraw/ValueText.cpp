// SPDX-License-Identifier: MIT
// Numbers and times as texts of an axis.
#include "chartdraw/ValueText.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "chartdraw/ChartAxisState.h"
#include "plot/NumberFormat.h"

namespace kavlix {
namespace {

constexpr double kSharesOfPixel = 100; // parts of a pixel that texts tell apart

/// The smallest distance between two values that matters: a part of a pixel.
double Resolution(const ChartDrawState& state, int axis) {
    const AxisLayout& layout = state.Layout(axis);
    const CRect& plot = state.Plot();
    const int length = static_cast<int>(axis == ChartDrawState::kX ? plot.Width() : plot.Height());
    return (layout.max - layout.min) / (std::max(length, 1) * kSharesOfPixel);
}

CString NumberText(ChartDrawState& state, int axis, double value) {
    constexpr int kFewestDigits = 6;
    constexpr int kMostDigits = 15;
    const ChartAxisState& properties = state.AxisState(axis);
    const double resolution = Resolution(state, axis);
    int digits = kFewestDigits;
    if (properties.kind == CChartAxis::Linear && resolution > 0 && std::isfinite(value))
        digits = std::clamp(ExponentOf(value) - ExponentOf(resolution) + 1, kFewestDigits, kMostDigits);
    const int exponent = properties.engineering ? PrefixExponent(value) : 0;
    const double scaled = Scaled(value, exponent);
    const std::string number =
        properties.decimals >= 0 ? FixedText(scaled, properties.decimals) : ShortText(scaled, digits);
    return CString(number.c_str()) + properties.UnitText(exponent);
}

} // namespace

CString ValueText(ChartDrawState& state, int axis, double value) {
    ChartAxisState& properties = state.AxisState(axis);
    if (properties.label)
        return properties.label(value);
    if (properties.kind != CChartAxis::Time || !std::isfinite(value))
        return NumberText(state, axis, value);
    const TimePoint point = TimeOrigin(properties.origin).Point(value);
    constexpr int kNanoDigits = 9;
    const double resolution = std::max(Resolution(state, axis) * kSharesOfPixel, 1e-9); // a pixel
    const int digits = resolution >= 1 ? 0 : std::clamp(-ExponentOf(resolution), 0, kNanoDigits);
    const ZoneOffsets& zone = properties.zone.Offsets();
    const CString text = properties.Texts().Full(zone.ToLocal(point.second), point.nano, digits);
    return zone.IsRepeated(point.second) ? text + TickTexts::Mark() : text;
}

CString DistanceText(ChartDrawState& state, int axis, double distance) {
    if (state.AxisState(axis).kind != CChartAxis::Time)
        return NumberText(state, axis, distance);
    constexpr int kDigits = 6;
    return CString(DurationText(distance, kDigits).c_str());
}

} // namespace kavlix

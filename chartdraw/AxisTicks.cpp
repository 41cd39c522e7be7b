// SPDX-License-Identifier: MIT
// Ticks and labels of linear, logarithmic and time axes.
#include "chartdraw/AxisTicks.h"

#include <cmath>
#include <string>

#include "plot/LogScale.h"
#include "plot/NumberFormat.h"

namespace kavlix {
namespace {

constexpr double kYLabelRoom = 2.5; // text heights from a Y label's top to the next one's, if possible
constexpr double kXLabelGap = 1.2;  // text heights between two X labels, if possible
constexpr int kMostSteps = 100;

/// Number of steps of `room` pixels that fit into `length` pixels, limited to 2 to kMostSteps.
int StepsIn(int length, double room) {
    return std::clamp(static_cast<int>(length / std::max(room, 1.0)), 2, kMostSteps);
}

int Pixels(const AxisRoom& room, double textHeights) {
    return static_cast<int>(textHeights * room.textHeight);
}

CString Wide(const std::string& ascii) {
    return CString(ascii.c_str());
}

/// Text of a value by the properties of the axis; empty when none of them says how.
CString ChosenText(const ChartAxisState& axis, double value) {
    if (axis.label)
        return axis.label(value);
    return axis.decimals < 0 ? CString() : Wide(FixedText(value, axis.decimals));
}

AxisLabel Label(const AxisRoom& room, double value, const CString& text) {
    return {value, text, room.width(text)};
}

AxisLayout Range(const ChartAxisState& axis, double min, double max) {
    AxisLayout layout;
    layout.isLogarithmic = axis.kind == CChartAxis::Logarithmic;
    layout.isInverted = axis.inverted;
    layout.min = min;
    layout.max = max;
    layout.step = 0;
    return layout;
}

AxisLayout LinearLayout(const ChartAxisState& axis, const AxisRoom& room, const RoundScale& scale) {
    AxisLayout layout = Range(axis, scale.Min(), scale.Max());
    layout.step = scale.Step();
    layout.goesThroughZero = layout.min < 0 && layout.max > 0;
    // All labels have the same prefix, so that they can be compared.
    const int exponent = PrefixExponent(std::max(std::abs(layout.min), std::abs(layout.max)));
    const int decimals = axis.decimals >= 0 ? axis.decimals : DecimalsOfStep(Scaled(layout.step, exponent));
    const bool isChosen = axis.label || (axis.decimals >= 0 && !axis.engineering);
    for (int i = 0; i < scale.TickCount(); ++i) {
        const double value = scale.Tick(i);
        const CString text =
            isChosen           ? ChosenText(axis, value)
            : axis.engineering ? Wide(FixedText(Scaled(value, exponent), decimals)) + axis.UnitText(exponent)
                               : Wide(scale.Label(i));
        layout.ticks.push_back(Label(room, value, text));
    }
    return layout;
}

AxisLayout LogLayout(const ChartAxisState& axis, const AxisRoom& room, double min, double max, int space) {
    AxisLayout layout = Range(axis, min, max);
    const LogScale scale(min, max, room.length, space);
    for (int i = 0; i < static_cast<int>(scale.Ticks().size()); ++i) {
        const double value = scale.Ticks()[static_cast<std::size_t>(i)];
        CString text = ChosenText(axis, value);
        if (axis.engineering && !axis.label) {
            // Each label has its own prefix: a shared one makes most of them long.
            const int exponent = PrefixExponent(value);
            const double scaled = Scaled(value, exponent);
            constexpr int kDigits = 6;
            text = Wide(axis.decimals >= 0 ? FixedText(scaled, axis.decimals) : ShortText(scaled, kDigits)) +
                   axis.UnitText(exponent);
        } else if (!axis.label && axis.decimals < 0) {
            text = Wide(scale.Label(i));
        }
        layout.ticks.push_back(Label(room, value, text));
    }
    layout.minorTicks = scale.MinorTicks();
    return layout;
}

TimeLabelWidths WidthsOf(ChartAxisState& axis, const AxisRoom& room, const TimeStep& step) {
    const auto key = std::make_pair(step.unit, step.count);
    if (const auto known = axis.stepWidths.find(key); known != axis.stepWidths.end())
        return known->second;
    const auto widest = [&](const std::vector<CString>& texts) {
        int width = 0;
        for (const CString& text : texts)
            width = std::max(width, room.width(text));
        return width;
    };
    const TickTexts& texts = axis.Texts();
    const TimeLabelWidths widths = {widest(texts.WidestLabels(step)), widest(texts.WidestPeriods(step)),
                                    room.width(TickTexts::Mark())};
    axis.stepWidths.emplace(key, widths);
    return widths;
}

} // namespace

AxisLayout FindLinearTicks(const ChartAxisState& axis, const AxisRoom& room,
                           const std::function<RoundScale(int mostSteps)>& scale) {
    if (!room.isHorizontal)
        return LinearLayout(axis, room, scale(StepsIn(room.length, kYLabelRoom * room.textHeight)));
    AxisLayout layout;
    double refused = 0; // the last step whose labels did not fit
    for (int steps = StepsIn(room.length, 2 * room.textHeight); steps >= 2; --steps) {
        const RoundScale found = scale(steps);
        if (found.Step() == refused)
            continue;
        refused = found.Step();
        layout = LinearLayout(axis, room, found);
        const double distance = refused / (found.Max() - found.Min()) * room.length;
        if (layout.WidestLabel() + kXLabelGap * room.textHeight <= distance)
            break;
    }
    return layout;
}

AxisLayout FindLogTicks(const ChartAxisState& axis, const AxisRoom& room, double min, double max) {
    int space = Pixels(room, 2);
    AxisLayout layout = LogLayout(axis, room, min, max, space);
    constexpr int kTries = 4;
    for (int i = 0; i < kTries && room.isHorizontal; ++i) {
        const int needed = layout.WidestLabel() + Pixels(room, kXLabelGap);
        if (needed <= space)
            break;
        space = needed;
        layout = LogLayout(axis, room, min, max, space);
    }
    return layout;
}

AxisLayout FindTimeTicks(ChartAxisState& axis, const AxisRoom& room, double min, double max) {
    AxisLayout layout = Range(axis, min, max);
    const int widestChosen =
        axis.label ? std::max(room.width(axis.label(min)), room.width(axis.label(max))) : 0;
    const auto measure = [&](const TimeStep& step) {
        if (!room.isHorizontal)
            return TimeLabelWidths{room.textHeight, 0, 0};
        return axis.label ? TimeLabelWidths{widestChosen, 0, 0} : WidthsOf(axis, room, step);
    };
    const int gap = Pixels(room, room.isHorizontal ? kXLabelGap : 1);
    const TimeScale scale(min, max, axis.origin, room.length, gap, axis.zone.Offsets(), measure);
    const TickTexts& texts = axis.Texts();
    const TimeStep& step = scale.Step();
    layout.step = scale.Ticks().empty() ? 0 : step.ShortestSeconds();
    for (const TimeTick& tick : scale.Ticks()) {
        CString text = axis.label ? axis.label(tick.value) : texts.Label(step, tick);
        const bool hasPeriod = !axis.label && !step.IsYears();
        if (hasPeriod && room.isHorizontal && tick.startsPeriod)
            layout.periods.push_back(Label(room, tick.value, texts.Period(step, tick.local)));
        else if (hasPeriod && !room.isHorizontal && (tick.startsPeriod || layout.ticks.empty()))
            text = texts.Period(step, tick.local) + _T("  ") + text;
        layout.ticks.push_back(Label(room, tick.value, text));
    }
    if (!axis.label && room.isHorizontal)
        layout.start = Label(room, min, texts.Period(step, scale.Start()));
    layout.minorTicks = scale.MinorTicks();
    return layout;
}

} // namespace kavlix

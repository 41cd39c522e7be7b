// SPDX-License-Identifier: MIT
// What a host has set for an axis of a chart, and what the layout finds for it.
#pragma once

#include <kavlix/ChartDraw.h>

#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "chartdraw/AxisLayout.h"
#include "chartdraw/TextWidths.h"
#include "chartdraw/TickTexts.h"
#include "chartdraw/TimeZones.h"
#include "plot/NumberFormat.h"

namespace kavlix {

/// The properties of an axis. Its range belongs to the view, see ChartDrawState::RangeOf.
struct ChartAxisState {
    ChartAxisState(CChartDraw& chart, int axis) : chart(chart), axis(axis) {}

    CChartDraw& chart;
    int axis; ///< ChartDrawState::AxisNumber
    CChartAxis::Kind kind = CChartAxis::Linear;
    bool inverted = false;
    CString title; ///< of the second Y axis; those of the others are CChartDraw's
    CString unit;
    int decimals = -1; ///< -1: as many as the step needs
    bool engineering = false;
    CChartAxis::LabelFunction label;
    double origin = 0;
    bool alwaysShown = false;
    AxisZone zone;

    bool showsPeriods = true; ///< whether the layout has room for the second row of a time axis
    AxisLayout layout;
    TextWidths widths;
    /// Widths of the labels of time steps, by unit and count.
    std::map<std::pair<TimeStep::Unit, std::int64_t>, TimeLabelWidths> stepWidths;

    /// The font in which widths are measured from now on.
    void UseFont(int pixels, const CString& face) {
        if (widths.UseFont(pixels, face))
            stepWidths.clear();
    }

    /// A blank and the unit with the prefix of 10^`exponent`; empty when there is neither.
    CString UnitText(int exponent) const {
        constexpr int kMicro = -6;
        const CString prefix =
            exponent == kMicro ? CString(L"\u00b5") : CString(PrefixText(exponent).c_str());
        const CString text = prefix + unit;
        return text.IsEmpty() ? text : _T(" ") + text;
    }
    /// Texts of times, made when the first time axis is laid out.
    const TickTexts& Texts() {
        if (!texts)
            texts = std::make_unique<TickTexts>();
        return *texts;
    }

private:
    std::unique_ptr<TickTexts> texts;
};

} // namespace kavlix

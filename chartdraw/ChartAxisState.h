// SPDX-License-Identifier: MIT
// What a host has set for an axis of a chart.
#pragma once

#include <kavlix/ChartDraw.h>

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
};

} // namespace kavlix

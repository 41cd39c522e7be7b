// SPDX-License-Identifier: MIT
// ValueText: the text of a value of an axis, finer than the labels of its ticks.
#pragma once

#include <afxwin.h>

#include "chartdraw/ChartDrawState.h"

namespace kavlix {

/// A value of an axis as a reader expects it beside the axis' labels: date and time on a time axis, by the axis'
/// decimals, prefix or function if the host has set one, with the unit. It tells values apart that are a
/// hundredth of a pixel from each other at the last layout.
CString ValueText(ChartDrawState& state, int axis, double value);
/// The distance of two values of an axis, on a time axis in seconds, minutes, hours and days.
CString DistanceText(ChartDrawState& state, int axis, double distance);

} // namespace kavlix

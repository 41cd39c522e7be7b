// SPDX-License-Identifier: MIT
// What the user does to a chart: the view with its history, and the gesture that is going on.
#pragma once

#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawState.h"

namespace kavlix {

struct ChartInputState {
    UINT flags = CChartDraw::ViewFixed;
    ValueBounds shown[ChartDrawState::kAxes]; ///< ranges at the last layout; empty before the first one
};

} // namespace kavlix

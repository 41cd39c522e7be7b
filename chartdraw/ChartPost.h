// SPDX-License-Identifier: MIT
// The message by which points of other threads reach a chart.
#pragma once

#include <afxwin.h>

#include "chartdraw/core/PostQueue.h"

namespace kavlix {

struct ChartPostState {
    PostQueue queue;
    bool isPausing = false; ///< a timer will say that the chart is ready for more points
};

/// Registered message: the chart takes the queued points.
extern const UINT g_postedMessage;

} // namespace kavlix

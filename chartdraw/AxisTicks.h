// SPDX-License-Identifier: MIT
// Finds the ticks of an axis and their texts.
#pragma once

#include <functional>

#include "chartdraw/AxisLayout.h"
#include "chartdraw/ChartAxisState.h"
#include "plot/RoundScale.h"

namespace kavlix {

/// The room for an axis' ticks, and the size of texts.
struct AxisRoom {
    int length = 0; ///< of the axis, pixels
    int textHeight = 0;
    bool isHorizontal = false;
    std::function<int(const CString& text)> width; ///< of a text, pixels
};

/// Ticks of a linear axis. `scale` finds a scale with at most `mostSteps` steps. The finest one is taken whose labels
/// leave some room between them.
AxisLayout FindLinearTicks(const ChartAxisState& axis, const AxisRoom& room,
                           const std::function<RoundScale(int mostSteps)>& scale);
/// Ticks of a logarithmic axis, 0 < `min` < `max`.
AxisLayout FindLogTicks(const ChartAxisState& axis, const AxisRoom& room, double min, double max);
/// Ticks of a time axis, `min` < `max`.
AxisLayout FindTimeTicks(ChartAxisState& axis, const AxisRoom& room, double min, double max);

} // namespace kavlix

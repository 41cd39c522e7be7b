// SPDX-License-Identifier: MIT
// The pixels at which the markers of a series stand.
#pragma once

#include "chartdraw/core/ChartSeries.h"
#include "chartdraw/core/PixelSet.h"
#include "plot/AxisMap.h"

namespace kavlix {

/// Adds to `places` the pixel of each point inside its area. Blocks of points whose pixels are all in the set
/// already are skipped.
void FindMarkerPlaces(const ChartSeries& series, const AxisMap& xMap, const AxisMap& yMap, PixelSet& places);

} // namespace kavlix

// SPDX-License-Identifier: MIT
// CChartDraw: the ranges in view, and what changes them.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"

using namespace kavlix;

ChartDrawState::WantedRange ChartDrawState::RangeOf(int) const {
    return {};
}

ValueBounds ChartDrawState::DataBounds(int axis) const {
    ValueBounds bounds;
    for (const auto& dataset : chart.m_Datasets) {
        if (!dataset->visible || (axis != kX && dataset->usesY2 != (axis == kY2)))
            continue;
        ValueBounds own = axis == kX ? dataset->points.XBounds() : dataset->points.YBounds();
        if (axis == kX && !own.IsEmpty())
            own = {ToAxis(*dataset, own.min), ToAxis(*dataset, own.max)};
        bounds.Add(own);
    }
    return bounds;
}

void ChartDrawState::LaidOut(int axis, double min, double max) {
    input->shown[axis] = {min, max};
}

// SPDX-License-Identifier: MIT
// CChartAxis: the properties of an axis, and the maps between values and positions.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"

using namespace kavlix;

CChartAxis::CChartAxis(CChartDraw& chart, int nAxis)
    : m_State(std::make_unique<ChartAxisState>(chart, nAxis)) {
}

CChartAxis::~CChartAxis() = default;

AxisMap ChartDrawState::Map(int axis) const {
    return axis == kX ? chart.XMap() : chart.YMap();
}

AxisMap ChartDrawState::XMap(const CChartDraw::Dataset&) const {
    return Map(kX);
}

AxisMap ChartDrawState::YMap(const CChartDraw::Dataset& dataset) const {
    return Map(dataset.usesY2 ? kY2 : kY);
}

double ChartDrawState::ToAxis(const CChartDraw::Dataset& dataset, double x) const {
    return x + (dataset.origin - xAxis.m_State->origin);
}

double ChartDrawState::ToDataset(const CChartDraw::Dataset& dataset, double value) const {
    return value - (dataset.origin - xAxis.m_State->origin);
}

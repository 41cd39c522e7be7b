// SPDX-License-Identifier: MIT
// CChartLegend: the list of the datasets: properties, layout, drawing and mouse.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawState.h"

using namespace kavlix;

struct kavlix::ChartLegendState {
    CChartDraw& chart;
};

CChartLegend::CChartLegend(CChartDraw& chart) : m_State(new ChartLegendState{chart}) {
}

CChartLegend::~CChartLegend() = default;

void ChartDrawState::LayOutLegend(CDC&, CRect&) {
}

void ChartDrawState::PlaceLegend(CDC&) {
}

void ChartDrawState::DrawLegend(CDC&) {
}

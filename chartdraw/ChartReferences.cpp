// SPDX-License-Identifier: MIT
// CChartReferences: lines and bands at values: properties, drawing and mouse.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawState.h"

using namespace kavlix;

struct kavlix::ChartReferencesState {
    CChartDraw& chart;
};

CChartReferences::CChartReferences(CChartDraw& chart) : m_State(new ChartReferencesState{chart}) {
}

CChartReferences::~CChartReferences() = default;

void ChartDrawState::DrawBands(CDC&) {
}

void ChartDrawState::DrawReferenceLines(CDC&) {
}

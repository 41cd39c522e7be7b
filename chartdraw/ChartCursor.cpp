// SPDX-License-Identifier: MIT
// CChartCursor: cursors at samples, and their readout.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawState.h"

using namespace kavlix;

struct kavlix::ChartCursorState {
    CChartDraw& chart;
};

CChartCursor::CChartCursor(CChartDraw& chart) : m_State(new ChartCursorState{chart}) {
}

CChartCursor::~CChartCursor() = default;

void ChartDrawState::DrawCursors(CDC&) {
}

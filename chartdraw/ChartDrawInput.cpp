// SPDX-License-Identifier: MIT
// CChartDraw: mouse and keyboard.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"

using namespace kavlix;

void ChartDrawState::DrawZoomBox(CDC&) {
}

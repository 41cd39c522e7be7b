// SPDX-License-Identifier: MIT
// All public headers of Kavlix, for hosts that include a single one.
#pragma once

#include <kavlix/Characters.h>
#include <kavlix/ChartAxis.h>
#include <kavlix/ChartCursor.h>
#include <kavlix/ChartDraw.h>
#include <kavlix/ChartLegend.h>
#include <kavlix/ChartNotify.h>
#include <kavlix/ChartReferences.h>
#include <kavlix/ChartStatistics.h>
#include <kavlix/Dataset.h>
#include <kavlix/Export.h>
#include <kavlix/Graph.h>
#include <kavlix/GraphCtrl.h>
#include <kavlix/GraphNotify.h>
#include <kavlix/GraphSeries.h>
#include <kavlix/PictureFile.h>
#include <kavlix/PieChartCtrl.h>
#include <kavlix/ScrollGraphCtrl.h>
#include <kavlix/Version.h>

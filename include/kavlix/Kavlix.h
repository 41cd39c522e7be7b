#pragma once

/// Everything a host needs of Kavlix.
#include <kavlix/ChartDraw.h>
#include <kavlix/Dataset.h>
#include <kavlix/Export.h>
#include <kavlix/Graph.h>
#include <kavlix/GraphCtrl.h>
#include <kavlix/GraphNotify.h>
#include <kavlix/GraphSeries.h>
#include <kavlix/PieChartCtrl.h>
#include <kavlix/ScrollGraphCtrl.h>

// SPDX-License-Identifier: MIT
// Smallest sides, and sizes of any magnitude.

#include <gtest/gtest.h>

#include <climits>

#include "graphctrl/core/GraphLayout.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

LayoutInput Defaults(int widthPixels, int heightPixels) {
    LayoutInput input;
    input.client = {0, 0, widthPixels * 30, heightPixels * 30};
    input.xTickLabelHeight = 1500;
    input.yTickLabelWidth = 1500;
    input.y2TickLabelWidth = 1500;
    input.legendWidth = 3000;
    return input;
}

TEST(GraphLayoutTest, PlotAndLegendNeed51UnitsEachWay) {
    LayoutInput input = Defaults(300, 200);
    for (const bool enough : {false, true}) {
        input.xTickLabelHeight = enough ? 4149 : 4150; // plot height 51 and 50
        EXPECT_EQ(ComputeLayout(input).HasPlot(), enough);
        input.xTickLabelHeight = 1500;
        input.legendWidth = enough ? 51 : 50;
        EXPECT_EQ(ComputeLayout(input).HasLegend(), enough);
        input.legendWidth = 3000;
        input.yTickLabelWidth = 1500 + 3370 - (enough ? 51 : 50); // plot width
        EXPECT_EQ(ComputeLayout(input).HasPlot(), enough);
        input.yTickLabelWidth = 1500;
    }
}

TEST(GraphLayoutTest, AnySizeGivesDrawableCoordinates) {
    const int extremes[] = {INT_MIN, -3000, 0, 3000, INT_MAX};
    for (const int height : extremes)
        for (const int width : extremes)
            for (const int legend : extremes)
                for (const bool twoAxis : {false, true}) {
                    LayoutInput input = Defaults(300, 200);
                    input.twoAxis = twoAxis;
                    input.xTickLabelHeight = height;
                    input.yTickLabelWidth = width;
                    input.y2TickLabelWidth = width;
                    input.legendWidth = legend;
                    const GraphLayout layout = ComputeLayout(input);
                    for (const Rect& rect :
                         {layout.title, layout.yTickLabel, layout.yAxis, layout.y2TickLabel, layout.y2Axis,
                          layout.xTickLabel, layout.xAxis, layout.plot, layout.legend})
                        for (const int side : {rect.left, rect.top, rect.right, rect.bottom}) {
                            ASSERT_LE(side, kCoordinateLimit);
                            ASSERT_GE(side, -kCoordinateLimit);
                        }
                }
    const GraphLayout empty = ComputeLayout(Defaults(0, 0));
    EXPECT_FALSE(empty.HasPlot());
    EXPECT_FALSE(empty.HasLegend());
}

} // namespace
} // namespace kavlix

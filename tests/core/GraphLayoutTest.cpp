#include <gtest/gtest.h>

#include <climits>
#include <ostream>

#include "graphctrl/GraphLayout.h"
#include "graphctrl/Numeric.h"

namespace kavlix {

// For GoogleTest's messages.
void PrintTo(const Rect& rect, std::ostream* out) {
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

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

TEST(GraphLayoutTest, DefaultsAt300x200) {
    const GraphLayout layout = ComputeLayout(Defaults(300, 200));
    EXPECT_EQ(layout.labelUnit, 400);
    EXPECT_EQ(layout.title, (Rect{200, 200, 8800, 1100}));
    EXPECT_EQ(layout.yTickLabel, (Rect{600, 1100, 2100, 3800}));
    EXPECT_EQ(layout.yAxis, (Rect{2100, 1100, 2200, 3800}));
    EXPECT_EQ(layout.y2TickLabel, (Rect{8800, 1100, 8800, 3800}));
    EXPECT_EQ(layout.y2Axis, (Rect{8800, 1100, 8800, 3800}));
    EXPECT_EQ(layout.xTickLabel, (Rect{2200, 3900, 5600, 5400}));
    EXPECT_EQ(layout.xAxis, (Rect{2200, 3800, 5600, 3900}));
    EXPECT_EQ(layout.plot, (Rect{2230, 1100, 5600, 3800}));
    EXPECT_EQ(layout.legend, (Rect{5800, 1100, 8800, 5400}));
    EXPECT_EQ(layout.yLabel, (Point{200, 2450}));
    EXPECT_EQ(layout.xLabel, (Point{3900, 5400}));
    EXPECT_EQ(layout.xTicks, 4);
    EXPECT_EQ(layout.yTicks, 5);
    EXPECT_TRUE(layout.HasPlot());
    EXPECT_TRUE(layout.HasLegend());
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

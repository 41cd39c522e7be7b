// SPDX-License-Identifier: MIT
// Data, scales and invalidation of a chart.
#include "tests/chartdraw/ChartTest.h"

#include <cmath>
#include <limits>

TEST(ChartDataTest, IndicesOutsideTheirRangeChangeNothing) {
    CChartDraw chart;
    EXPECT_EQ(chart.AddDataset(), 0);
    EXPECT_EQ(chart.AddDataset(), 1);
    const double ys[] = {1, 2, 3}, xs[] = {9, 8, 7};
    EXPECT_TRUE(chart.SetData(1, xs, ys, 3));
    EXPECT_TRUE(chart.AddData(1, 6, 4));
    double x = -1, y = -1;
    for (const int bad : {-1, 2, 1000}) {
        EXPECT_FALSE(chart.AddData(bad, 1, 1));
        EXPECT_FALSE(chart.SetData(bad, xs, ys, 3));
        EXPECT_FALSE(chart.ResetData(bad) || chart.RemoveDataset(bad) || chart.SetColor(bad, 0));
        EXPECT_FALSE(chart.SetLineSize(bad, 1) || chart.ShowLine(bad, 1) || chart.ShowDataset(bad, 1) ||
                     chart.SetMarkerType(bad, CDataset::MarkerNone));
        EXPECT_EQ(chart.GetDatasetSize(bad), -1);
        EXPECT_FALSE(chart.GetData(bad, 0, x, y));
        EXPECT_FALSE(chart.GetData(1, bad == 2 ? 4 : bad, x, y));
    }
    EXPECT_FALSE(chart.SetData(1, xs, nullptr, 3));
    EXPECT_FALSE(chart.SetData(1, xs, ys, -1));
    EXPECT_EQ(x, -1);
    EXPECT_EQ(chart.GetDatasetSize(1), 4);
    EXPECT_TRUE(chart.GetData(1, 3, x, y));
    EXPECT_EQ(x, 6);
    EXPECT_EQ(y, 4);
    EXPECT_TRUE(chart.SetData(1, nullptr, ys, 3));
    EXPECT_TRUE(chart.GetData(1, 2, x, y));
    EXPECT_EQ(x, 2) << "its index";
    EXPECT_TRUE(chart.SetData(1, nullptr, nullptr, 0));
    EXPECT_EQ(chart.GetDatasetSize(1), 0);
    EXPECT_TRUE(chart.RemoveDataset(0));
    EXPECT_EQ(chart.GetDatasetCount(), 1);
    chart.RemoveAllDatasets();
    EXPECT_EQ(chart.GetDatasetCount(), 0);
    EXPECT_FALSE(chart.CopyToClipboard() || chart.CopyToFile("x.bmp") || chart.SaveImage("x.png"));
}

TEST_F(ChartTest, ScalesFollowWhatIsShownOrWhatIsSet) {
    const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
    double min = 0, max = 0, step = 0;
    const auto scales = [&] {
        chart.CalcDatas();
        chart.GetXScale(min, max, step);
        std::string text =
            std::to_string(static_cast<int>(min)) + ".." + std::to_string(static_cast<int>(max));
        chart.GetYScale(min, max, step);
        return text + " " + std::to_string(static_cast<int>(min)) + ".." +
               std::to_string(static_cast<int>(max));
    };
    EXPECT_EQ(scales(), "0..1 0..1");
    Add({0, 50, 100});
    const int low = Add({-1000});
    EXPECT_EQ(scales(), "0..2 -1000..500");
    chart.ShowDataset(low, FALSE);
    EXPECT_EQ(scales(), "0..2 0..100");
    for (const auto& [x, y] : {std::pair{inf, 1.0}, {1.0, -inf}, {nan, 1e9}, {1e9, nan}})
        chart.AddData(0, x, y);
    EXPECT_EQ(scales(), "0..2 0..100") << "points without a place do not count";
    EXPECT_TRUE(chart.SetXScale(-5, 5));
    EXPECT_TRUE(chart.SetYScale(7, 9, 0.5));
    EXPECT_EQ(step, 25);
    EXPECT_EQ(scales(), "-5..5 7..9");
    EXPECT_EQ(step, 0.5);
    EXPECT_FALSE(chart.SetXScale(2, 2) || chart.SetYScale(3, 2));
    EXPECT_FALSE(chart.SetXScale(0, inf) || chart.SetXScale(nan, 1) || chart.SetXScale(0, 1, -1) ||
                 chart.SetYScale(0, 1, inf));
    EXPECT_EQ(scales(), "-5..5 7..9");
    chart.SetAutoXScale();
    chart.SetAutoYScale();
    chart.ResetData(0);
    EXPECT_EQ(scales(), "0..1 0..1");
}

TEST_F(ChartTest, NothingButRedrawRepaints) {
    chart.UpdateWindow();
    Add({1, 2});
    chart.SetTitle("T");
    chart.SetXScale(0, 1);
    chart.SetTextFont(120, "Arial");
    EXPECT_FALSE(chart.GetUpdateRect(nullptr));
    chart.Redraw();
    CRect update;
    EXPECT_TRUE(chart.GetUpdateRect(&update));
    EXPECT_EQ(testkit::BoxText(update), "0,0,300,200");
}

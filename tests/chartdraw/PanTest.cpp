// SPDX-License-Identifier: MIT
// Charts that keep their painted datasets while they pan, against charts that paint everything anew.
#include "tests/chartdraw/ChartTest.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

/// What a dataset is made of.
struct Lines {
    std::vector<double> xs, ys;
    COLORREF color;
    int lineSize;
    CDataset::MarkerType marker;
    BOOL showsLine;
    CChartDraw::DrawStyle style;
    double gap;
};

void Give(CChartDraw& chart, int dataset, const Lines& lines) {
    chart.SetColor(dataset, lines.color);
    chart.SetLineSize(dataset, lines.lineSize);
    chart.SetMarkerType(dataset, lines.marker);
    chart.ShowLine(dataset, lines.showsLine);
    chart.SetDrawStyle(dataset, lines.style);
    chart.SetGapLimit(dataset, lines.gap);
}

class ChartPanTest : public ChartTest {
protected:
    std::mt19937 random{31};
    double Unit() { return random() / 4294967296.0; }
    bool OneIn(unsigned rounds) { return random() % rounds == 0; }
    std::vector<Lines> data;
    double from = 0, to = 1;
    bool inverted = false, hasFar = false;

    double Y() { return OneIn(300) ? kNaN : hasFar && OneIn(200) ? 1e9 : std::pow(Unit(), 2) * 4 - 1; }
    void FillRandomly(bool withFar) {
        data.clear();
        hasFar = withFar;
        const double start = OneIn(2) ? 0 : 1.4e9;
        const int kind = static_cast<int>(random() % 3);
        const int count = 2 + static_cast<int>(std::pow(Unit(), 3) * 3000);
        for (int k = 1 + static_cast<int>(random() % 3); k > 0; --k) {
            Lines lines{{},
                        {},
                        RGB(random() % 200, random() % 200, 200),
                        OneIn(3) ? 5 : static_cast<int>(random() % 3),
                        OneIn(4) ? CDataset::MarkerSquare : CDataset::MarkerNone,
                        !OneIn(20),
                        OneIn(20) ? CChartDraw::StyleFill : CChartDraw::StyleLine,
                        OneIn(4) ? 3.0 : 0.0};
            double x = start;
            for (int i = 0; i < count; ++i) {
                // Even steps put points on the borders of columns when the view has a round width.
                x += kind == 0 ? 1 : kind == 1 ? Unit() * 2 : OneIn(30) ? 40 * Unit() : Unit() * 0.2;
                lines.xs.push_back(x);
                lines.ys.push_back(Y());
            }
            data.push_back(lines);
        }
        from = data[0].xs.front();
        to = std::max(data[0].xs.back(), from + 1);
    }
    void Show(OpenChart& target) {
        target.GetYAxis().SetRange(-1.2, 2.5);
        target.GetXAxis().SetInverted(inverted);
        target.GetXAxis().SetRange(from, to);
    }
    void Fill(OpenChart& target) {
        for (const Lines& lines : data) {
            const int dataset = target.AddDataset();
            target.SetData(dataset, lines.xs.data(), lines.ys.data(), static_cast<int>(lines.xs.size()));
            Give(target, dataset, lines);
        }
    }
    static void Paint(OpenChart& target, testkit::DibSurface& surface) {
        target.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface.Dc()), PRF_CLIENT);
    }
    /// Compares the chart's picture with that of a new chart with the same data and view.
    std::string AgainstNewChart() {
        testkit::DibSurface panned(300, 200), whole(300, 200);
        Paint(chart, panned);
        OpenChart other;
        other.Create(WS_CHILD, CRect(0, 0, 300, 200), &parent, 6);
        Fill(other);
        Show(other);
        Paint(other, whole);
        return testkit::Difference(panned, whole);
    }
    /// Moves the view by columns of the plot.
    void Pan(double columns) {
        const double step = columns * (to - from) / (chart.m_rectPlot.Width() - 1);
        from += step;
        to += step;
    }
    /// Bitmaps that the chart has made since.
    int Kept(const testkit::ObjectCounts& before) { return testkit::CountObjects().bitmaps - before.bitmaps; }
};

} // namespace

TEST_F(ChartPanTest, EveryPictureIsThatOfANewChart) {
    for (int round = 0; round < 80; ++round) {
        while (chart.GetDatasetCount() > 0)
            chart.RemoveDataset(0);
        inverted = OneIn(4);
        FillRandomly(OneIn(8));
        Fill(chart);
        Show(chart);
        testkit::DibSurface first(300, 200);
        Paint(chart, first);
        if (const int width = chart.m_rectPlot.Width() - 1; OneIn(2)) // a whole number of points in a column
            to = from + width * std::pow(2, static_cast<int>(random() % 5) - 2);
        const int farthest = OneIn(3) ? 300 : 12;
        for (int step = 0; step < 14; ++step) {
            const std::size_t k = random() % data.size();
            Lines& lines = data[k];
            if (OneIn(12)) {
                lines.xs.push_back(lines.xs.back() + Unit());
                lines.ys.push_back(Y());
                chart.AddData(static_cast<int>(k), lines.xs.back(), lines.ys.back());
            } else if (OneIn(12)) {
                lines.gap = Unit();
                lines.lineSize = static_cast<int>(random() % 4);
                Give(chart, static_cast<int>(k), lines);
            } else if (OneIn(12)) {
                to = from + (to - from) * (0.2 + Unit());
            } else if (!OneIn(6)) {
                const int columns =
                    static_cast<int>(random() % (2 * static_cast<unsigned>(farthest))) - farthest;
                Pan(columns + (OneIn(10) ? Unit() * 0.02 : 0));
            }
            Show(chart);
            ASSERT_EQ(AgainstNewChart(), "") << "round " << round << ", step " << step;
        }
    }
}

TEST_F(ChartPanTest, TheLayerIsKeptWhileOnlyTheViewMoves) {
    if (!testkit::CanCountGdiObjects())
        GTEST_SKIP() << "GDI objects cannot be counted here";
    random.seed(3);
    FillRandomly(false);
    for (Lines& lines : data)
        lines.style = CChartDraw::StyleLine, lines.showsLine = TRUE;
    Fill(chart);
    Show(chart);
    testkit::DibSurface surface(300, 200);
    Paint(chart, surface);
    const testkit::ObjectCounts before = testkit::CountObjects();
    Paint(chart, surface);
    EXPECT_EQ(Kept(before), 1) << "the same picture again";
    for (const int columns : {3, -7, 90, 1}) {
        Pan(columns);
        Show(chart);
        Paint(chart, surface);
        EXPECT_EQ(Kept(before), 1) << columns;
    }
    for (int i = 0; i < 20; ++i) {
        chart.SetColor(0, RGB(1, 2, i));
        Paint(chart, surface);
    }
    EXPECT_EQ(Kept(before), 0) << "changed data with every paint";
    Pan(2);
    Show(chart);
    Paint(chart, surface);
    EXPECT_EQ(Kept(before), 1) << "a pan";
}

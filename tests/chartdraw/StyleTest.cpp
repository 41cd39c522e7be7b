// SPDX-License-Identifier: MIT
// Styles of datasets: written directly, drawn by GDI and recorded.
#include "tests/chartdraw/ChartTest.h"
#include "tests/support/SeenUnderWine.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr COLORREF kBlue = RGB(0, 0, 255);

class ChartStyleTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        HideTexts();
        chart.replaced = "axes";
        chart.SetYScale(-1, 1);
    }
    /// Adds a random walk with about 20 gaps or fewer.
    int AddWalk(int count, double start) {
        std::vector<double> xs, ys;
        double y = start;
        for (int i = 0; i < count; ++i) {
            y += (static_cast<double>(m_random() % 1000) / 1000 - 0.5) * 2 / std::sqrt(count);
            xs.push_back(30.0 * i / count);
            ys.push_back(m_random() % static_cast<unsigned>(std::max(count / 20, 8)) == 0
                             ? std::numeric_limits<double>::quiet_NaN()
                             : y);
        }
        const int dataset = chart.AddDataset();
        chart.SetData(dataset, xs.data(), ys.data(), count);
        chart.SetColor(dataset, kRed);
        return dataset;
    }

private:
    std::mt19937 m_random{4};
};

} // namespace

TEST_F(ChartStyleTest, EachDestinationShowsTheSamePicture) {
    for (const int count : {30, 40000})
        for (const auto style :
             {CChartDraw::StyleStep, CChartDraw::StyleImpulses, CChartDraw::StyleBars, CChartDraw::StyleFill})
            for (const int width : {1, 3}) {
                chart.RemoveAllDatasets();
                AddWalk(count, 0.3);
                AddWalk(count, -0.3);
                chart.SetDrawStyle(0, style);
                chart.SetLineSize(0, width);
                chart.SetBarWidth(0, 0.6);
                chart.SetBaseline(0, -0.2);
                chart.SetFillColor(0, kBlue);
                if (width == 3)
                    chart.SetFillTo(0, 1);
                testkit::DibSurface direct(300, 200), drawn(300, 200);
                PaintInto(direct);
                ::SetMapMode(drawn.Dc(), MM_ANISOTROPIC); // GDI draws every shape
                PaintInto(drawn);
                const bool isFilled = style == CChartDraw::StyleBars || style == CChartDraw::StyleFill;
                EXPECT_GT(direct.Count(isFilled ? kBlue : kRed), 300);
                ONLY_SEEN_UNDER_WINE(EXPECT_EQ(testkit::Difference(direct, drawn), "")
                                     << count << " points, style " << style << ", width " << width);
                testkit::MetafileRecorder recorder;
                Record(recorder, [&](CDC& dc) { chart.DrawDatasets(dc); });
                std::size_t size = 0;
                for (const testkit::MetafileRecord& record : recorder.Records())
                    size += 1 + record.points.size();
                EXPECT_LT(size, 300u * 30) << "style " << style << ": bounded by the columns";
            }
}

TEST_F(ChartStyleTest, AreasLieBehindAllLinesInALighterColour) {
    chart.SetLineSize(Add({0.5, 0.5}), 3);
    chart.SetColor(0, kRed);
    testkit::DibSurface alone(300, 200), both(300, 200), hidden(300, 200);
    PaintInto(alone);
    const int area = Add({1, 1});
    chart.SetColor(area, RGB(0, 0, 250));
    chart.SetDrawStyle(area, CChartDraw::StyleFill);
    PaintInto(both);
    const int line = alone.Count(kRed);
    EXPECT_GT(line, 300);
    EXPECT_EQ(both.Count(kRed), line) << "not covered by the area of a later dataset";
    EXPECT_GT(both.Count(RGB(153, 153, 253)), 10000) << "from 0 to 1, three parts of white";
    chart.ShowLine(area, FALSE);
    chart.ShowDataset(0, FALSE);
    PaintInto(hidden);
    EXPECT_EQ(hidden.Count(RGB(0, 0, 250)), 0);
    EXPECT_GT(hidden.Count(RGB(153, 153, 253)), 10000) << "ShowLine keeps the area";
}

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace {

std::string Formatted(double value, int decimals) {
    std::string text(static_cast<std::size_t>(std::snprintf(nullptr, 0, "%.*f", decimals, value)), '\0');
    std::snprintf(&text[0], text.size() + 1, "%.*f", decimals, value);
    return text;
}

bool IsBeginning(const std::string& part, const std::string& whole) {
    return !part.empty() && whole.compare(0, part.size(), part) == 0;
}

} // namespace

class GraphRobustnessTest : public GraphTest {
protected:
    Strings YLabels() {
        Strings labels;
        const auto picture = Record();
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        for (const testkit::MetafileRecord& record : picture->Records())
            if (record.kind == testkit::kText && record.points[0].x == 2100)
                labels.push_back(record.text);
        return labels;
    }
};

TEST_F(GraphRobustnessTest, NumberTextsOfAnyLength) {
    const struct {
        double min, max;
        int exponent, decimals;
        double second; ///< what the second label says, the first being min / 10^exponent
    } cases[] = {
        {0, 100, 0, 400, 25},     {0, 100, 300, 0, 0},     {0, 100, -300, 0, 25 / 1e-300},
        {0, 100, 400, 2, 0},      {0, 100, -400, 0, 25},   {-1e300, 1e300, 0, 100, -5e299},
        {0, 100, INT_MIN, 1, 25}, {0, 100, INT_MAX, 1, 0}, {0, 1e308, 0, 300, 2.5e307},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.exponent);
        graph.SetYVisibleMin(each.min);
        graph.SetYVisibleMax(each.max);
        graph.SetYUnit("u", each.exponent, each.decimals);
        const Strings labels = YLabels();
        ASSERT_EQ(labels.size(), 5u);
        const std::string expected = Formatted(each.second, each.decimals);
        EXPECT_TRUE(labels[1].size() == expected.size() || labels[1].size() > 200) << labels[1].size();
        const double leading = std::strtod(expected.substr(0, 15).c_str(), nullptr);
        EXPECT_NEAR(std::strtod(labels[1].substr(0, 15).c_str(), nullptr), leading,
                    std::fabs(leading) * 1e-9);
        graph.Redraw();
        graph.UpdateWindow();
    }
    for (const int decimals : {100000, INT_MAX, INT_MIN}) {
        graph.SetYVisibleMin(0);
        graph.SetYVisibleMax(100);
        graph.SetYUnit("", 0, decimals);
        EXPECT_EQ(YLabels().size(), 5u) << decimals;
    }
}

TEST_F(GraphRobustnessTest, AxisEndsThatAreNoNumbers) {
    const double odd[] = {NAN, INFINITY, -INFINITY, 1e308, -1e308, 0, 5e-324};
    Add(0, {1, 2, 3});
    Add(1, {1, 2, 3});
    graph.AddXTickLabel("label", "");
    graph.SetSelectionMarkPos(1);
    graph.SetAutoXVisible(FALSE);
    graph.SetMarkerType(0, CDataset::MarkerSquare);
    HideTexts();
    for (int style = 0; style < 3; ++style) {
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
        for (const double min : odd) {
            for (const double max : odd) {
                SCOPED_TRACE(std::to_string(style) + " " + std::to_string(min) + " " + std::to_string(max));
                graph.SetXVisibleMin(min);
                graph.SetXVisibleMax(max);
                const auto first = Paint();
                graph.SetXVisibleMin(0);
                graph.SetXVisibleMax(2);
                graph.SetYVisibleMin(min);
                graph.SetYVisibleMax(max);
                graph.SetY2VisibleMin(min);
                graph.SetY2VisibleMax(max);
                const auto second = Paint();
                graph.SetYVisibleMin(0);
                graph.SetYVisibleMax(100);
                // The mark's red appears nowhere outside the plot, whatever the ends are.
                const CRect plot = ToDevice(graph.m_rectPlot);
                const COLORREF red = RGB(255, 0, 0);
                for (const auto* picture : {&first, &second}) {
                    const CRect inside(plot.left, plot.top, plot.right + 1, plot.bottom + 1);
                    EXPECT_EQ((*picture)->Count(red), (*picture)->Count(red, inside));
                }
            }
        }
    }
}

TEST_F(GraphRobustnessTest, OddSamplesLeaveNoInkBetweenTheirNeighbours) {
    HideTexts();
    graph.SetGrid(FALSE, FALSE);
    const COLORREF colour = graph.m_Datasets[0].m_Color;
    const struct {
        const char* name;
        std::vector<double> values;
        /// Whether ink is expected between sample i and i + 1, away from both.
        std::vector<int> ink;
    } cases[] = {
        {"numbers", {20, 80, 20}, {1, 1}},
        {"a gap", {20, 80, NAN, 80, 20}, {1, 0, 0, 1}},
        {"gaps at the ends", {NAN, 20, 80, NAN}, {0, 1, 0}},
        {"a lonely number", {NAN, 50, NAN}, {0, 0}},
        {"nothing but gaps", {NAN, NAN, NAN}, {0, 0}},
        {"up out of the picture", {50, 1e300, 50, 60}, {0, 0, 1}},
        {"down out of the picture", {50, -1e300, 50, 60}, {0, 0, 1}},
        {"infinite", {50, INFINITY, 50, -INFINITY, 50, 60}, {0, 0, 0, 0, 1}},
        {"above all along", {1e300, 1e300, INFINITY, 3e9}, {0, 0, 0}},
        {"far outside", {50, 3e9, 50, -3e9, 50, 60}, {0, 0, 0, 0, 1}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        graph.ResetData(0);
        for (const double value : each.values)
            Add(0, {value});
        const int count = static_cast<int>(each.values.size());
        FixX(0, count - 1);
        const auto picture = Paint();
        const CRect plot = ToDevice(graph.m_rectPlot);
        for (int i = 0; i + 1 < count; ++i) {
            const int left = plot.left + plot.Width() * i / (count - 1) + 3;
            const int right = plot.left + plot.Width() * (i + 1) / (count - 1) - 3;
            const int columns = picture->Columns(colour, left, right);
            EXPECT_EQ(columns, each.ink[static_cast<std::size_t>(i)] ? right - left : 0)
                << "after sample " << i;
        }
        const CRect ink = picture->Bounds(colour);
        EXPECT_TRUE(ink.IsRectEmpty() || (ink.left >= plot.left && ink.right <= plot.right + 1 &&
                                          ink.top >= plot.top && ink.bottom <= plot.bottom + 1))
            << Text(ink);
    }
}

TEST_F(GraphRobustnessTest, InvertedRangesMirrorThePicture) {
    Add(0, {0, 25, 100});
    FixX(0, 2);
    graph.SetYVisibleMin(100);
    graph.SetYVisibleMax(0);
    const std::string pen = std::string("solid 0 ") + kColour0;
    EXPECT_EQ(Record()->Strokes(pen),
              (Strings{"line 2230,1100 3915,1775 pen " + pen, "line 3915,1775 5600,3800 pen " + pen}));
    graph.SetYVisibleMin(0);
    graph.SetYVisibleMax(100);
    FixX(2, 0);
    EXPECT_EQ(Record()->Strokes(pen),
              (Strings{"line 5600,3800 3915,3125 pen " + pen, "line 3915,3125 2230,1100 pen " + pen}));
    graph.SetYVisibleMin(-200);
    graph.SetYVisibleMax(-100);
    HideTexts();
    EXPECT_EQ(Paint()->Count(graph.m_Datasets[0].m_Color), 0) << "above the visible range";
}

TEST_F(GraphRobustnessTest, TextsOfAMillionCharacters) {
    const std::string million(1000000, 'W');
    const CString text(million.c_str());
    graph.SetTitle(text);
    graph.SetXLabel(text);
    graph.SetYLabel(text);
    graph.SetY2Label(text);
    graph.SetYUnit(text, 0, 0);
    graph.SetY2Unit(text, 0, 0);
    graph.SetLegend(0, text);
    graph.AddXTickLabel(text, "");
    graph.AddXTickLabel(text, text);
    graph.SetWindowText("caption");
    Add(0, {1, 2});
    for (int style = 0; style < 3; ++style) {
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
        const auto picture = Record();
        const Strings texts = picture->Texts();
        EXPECT_TRUE(IsBeginning(texts[0], million)) << texts[0].size();
        EXPECT_GE(texts[0].size(), 300u) << "more than the width shows";
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        graph.Redraw();
        graph.UpdateWindow();
    }
    double y = 0;
    EXPECT_TRUE(graph.GetYData(0, 1, y));
    EXPECT_STREQ(graph.m_Title, text) << "kept whole, whatever is drawn";
}

TEST_F(GraphRobustnessTest, NoPropertyDrawsMoreThanThePictureShows) {
    constexpr int kMostTexts =
        2 * (300 + 200) + CGraphCtrl::DatasetCount + 6; // of ticks, legend, axes, title
    for (int d = 0; d < CGraphCtrl::DatasetCount; ++d) {
        for (int i = 0; i < 1000; ++i)
            Add(d, {1});
        graph.ShowDataset(d, FALSE);
        graph.SetLegend(d, "series");
    }
    for (int i = 0; i < 1000; ++i)
        graph.AddXTickLabel("12:34:56", "2024-01-01");
    graph.SetAutoXVisible(FALSE);
    testkit::Numbers numbers{20240608};
    const auto length = [&](int usual) {
        const int ends[] = {INT_MIN, INT_MIN + 1, -(1 << 27), -1000000, -1,     0,
                            1,       5000,        1000000,    1 << 27,  INT_MAX};
        return numbers.OneIn(3) ? ends[numbers.Below(static_cast<int>(std::size(ends)))] : usual;
    };
    const auto end = [&](double usual) {
        const double ends[] = {NAN, INFINITY, -INFINITY, 0, 1, -5e4, 999, 1e9, -1e300, 1e308, 5e-324};
        return numbers.OneIn(3) ? ends[numbers.Below(static_cast<int>(std::size(ends)))] : usual;
    };
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(round % 3));
        graph.SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(round % 2));
        graph.SetGrid(TRUE, TRUE);
        graph.ShowLegend(numbers.OneIn(2));
        graph.SetXVisibleMin(end(0));
        graph.SetXVisibleMax(end(999));
        graph.SetYVisibleMin(end(0));
        graph.SetYVisibleMax(end(100));
        graph.SetXTickLabelHeight(length(1500));
        graph.SetLegendWidth(length(3000));
        graph.SetYTickLabelWidth(length(1500));
        graph.SetY2TickLabelWidth(length(1500));
        graph.SetXTickLabelUpStringMaxLength(length(10));
        graph.SetYUnit("kW", length(0), length(0));
        graph.SetY2Unit("K", length(0), length(1));
        graph.SetCaptionFont(length(80), "Tahoma");
        graph.m_LegendItemHeight = length(300);
        graph.m_LegendMargin = length(100);
        const auto picture = Record();
        EXPECT_LE(picture->Texts().size(), std::size_t{kMostTexts});
        EXPECT_LE(picture->Lines(testkit::kLine).size(), 3u * (300 + 200));
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        for (const std::string& text : picture->Texts())
            EXPECT_LE(text.size(), 8192u);
    }
}

TEST_F(GraphRobustnessTest, APictureTooWideForABitmap) {
    Add(0, {1, 50, 99});
    Resize(32767, 400);
    graph.Redraw();
    graph.UpdateWindow();
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");
    Resize(300, 200);
    graph.Redraw();
    graph.UpdateWindow();
    EXPECT_EQ(Record()->ObjectFaults(kControlFonts), "");
}

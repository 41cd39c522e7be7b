// SPDX-License-Identifier: MIT
// Random graphs, compared with the plain painter of OracleSeries.h.
#include "tests/graph/OracleSeries.h"

#include <algorithm>
#include <random>

namespace {

class GraphOracleTest : public MultiGraphTest {
protected:
    int Pick(int low, int high) { return low + static_cast<int>(random() % (high - low + 1u)); }
    bool Often() { return Pick(0, 1) != 0; }
    template <class List> auto OneOf(const List& list) {
        return list[static_cast<std::size_t>(Pick(0, static_cast<int>(std::size(list)) - 1))];
    }
    std::string Word(int longest) {
        std::string text;
        for (int length = Pick(0, longest); length > 0; --length)
            text += "aWilm M"[Pick(0, 6)];
        return text;
    }

    oracle::GraphFacts RandomFacts() {
        static const int kAngles[] = {0, 0, 0, 0, 45, 90, 90, 180, 270, 330, -30, 765, 120};
        static const int kSizes[] = {12, 12, 12, 64};
        struct Limits {
            int min, max, step;
        };
        static const Limits kLimits[] = {{0, 100, 10},  {-50, 100, 25},    {-100, -20, 7}, {100, 0, 10},
                                         {0, 7000, 90}, {-20000, 9, 1000}, {-60, 60, -20}, {5, 5, 1}};
        oracle::GraphFacts facts;
        facts.type = Pick(0, 11) > 0 ? OneOf(kAllTypes) : 77;
        facts.width = Pick(100, 800), facts.height = Pick(80, 600);
        facts.title = Word(50);
        facts.xCaption = Often() ? Word(20) : "", facts.yCaption = Often() ? Word(40) : "";
        facts.angle = OneOf(kAngles);
        facts.labelFont = Often() ? Pick(1, 22) : OneOf(kSizes);
        facts.numberFont = Often() ? Pick(1, 22) : OneOf(kSizes);
        facts.legendFont = Often() ? Pick(1, 22) : OneOf(kSizes);
        facts.bySeries = Often(), facts.grid = Often(), facts.vertical = Often();
        const Limits limits = OneOf(kLimits);
        facts.min = limits.min, facts.max = limits.max, facts.step = limits.step;
        facts.quadrants = facts.type == 0 ? Pick(0, 4) : 0;
        facts.depth = Pick(-5, 80) / 100.0;
        for (int i = Often() && facts.type != 3 ? Pick(1, 6) : 0; i > 0; --i)
            facts.legend.push_back(Word(9));
        for (int i = Pick(0, 5); i > 0; --i)
            facts.colours.push_back(RGB(Pick(0, 255), Pick(0, 255), Pick(0, 255)));
        const int lowest = Often() ? -4 : 0,
                  reach = std::max(std::abs(facts.min), std::abs(facts.max)) * 5 / 4;
        for (int s = Pick(0, 3) > 0 ? Pick(0, 8) : Pick(0, 70); s > 0; --s) {
            facts.series.push_back({Word(14), {}});
            for (int i = Pick(0, 6); i > 0; --i)
                facts.series.back().points.emplace_back(Pick(lowest, 5), Pick(Often() ? -reach : 0, reach));
        }
        return facts;
    }

    void Set(const oracle::GraphFacts& facts) {
        Resize(facts.width, facts.height);
        graph = std::make_unique<OpenMultiGraph>(); // the graph chooses the quadrants
        graph->parentWindow = &window;
        graph->SetGraphQuadType(facts.quadrants);
        for (std::size_t i = 0; i < facts.legend.size(); ++i)
            graph->SetLegend(static_cast<int>(i), facts.legend[i].c_str());
        graph->SetGraphAlignment(facts.vertical);
        graph->SetGraphType(facts.type);
        graph->SetGraphTitle(facts.title.c_str());
        graph->SetXAxisLabel(facts.xCaption.c_str());
        graph->SetYAxisLabel(facts.yCaption.c_str());
        graph->SetXAxisAlignment(facts.angle);
        // Sizes below 1 count as 1.
        const auto setting = [&](int size) { return size > 1 ? size : Pick(-3, 1); };
        graph->SetXTickFontSize(setting(facts.labelFont));
        graph->SetYTickFontSize(setting(facts.numberFont));
        graph->SetLegendFontSize(setting(facts.legendFont));
        graph->SetLegendBySeries(facts.bySeries);
        graph->SetGridLines(facts.grid);
        graph->SetTickLimits(facts.min, facts.max, facts.step);
        graph->Set3DDepthRatio(facts.depth);
        for (const COLORREF colour : facts.colours)
            graph->SetColor(0, colour);
        for (const oracle::GraphFacts::Series& source : facts.series) {
            CGraphSeries* const series = Add(source.label.c_str(), {});
            for (const auto& [key, value] : source.points)
                series->AddPoint(key, value);
            graph->seriesSize = std::max(graph->seriesSize, series->GetDataCount());
        }
    }

    std::mt19937 random{5};
};

/// The first pair of lines that differ; empty when all are alike.
std::string FirstDifference(Strings expected, Strings drawn) {
    expected.resize(std::max(expected.size(), drawn.size()), "nothing");
    drawn.resize(expected.size(), "nothing");
    const auto [a, b] = std::mismatch(expected.begin(), expected.end(), drawn.begin());
    return a == expected.end() ? "" : "expected " + *a + ", drawn " + *b;
}

} // namespace

TEST_F(GraphOracleTest, EveryRecordIsThatOfThePlainPainter) {
    for (int round = 0; round < 800 && !HasFailure(); ++round) {
        const oracle::GraphFacts facts = RandomFacts();
        Set(facts);
        const auto recorder = Record();
        oracle::Series painter(facts);
        painter.DrawFrame();
        if (painter.HasPlot() && !painter.Is({2, 32}))
            painter.DrawAxes();
        Strings expected = painter.TakeLines();
        Strings drawn = oracle::VisibleLines(recorder->Records(), facts.width, facts.height);
        const Strings over = painter.LinesOver();
        if (painter.HasPlot() && !painter.DrawShapes() && drawn.size() >= expected.size() + over.size())
            drawn.erase(drawn.begin() + static_cast<std::ptrdiff_t>(expected.size()),
                        drawn.end() - static_cast<std::ptrdiff_t>(over.size()));
        for (const Strings& lines : {painter.TakeLines(), over})
            expected.insert(expected.end(), lines.begin(), lines.end());
        const std::string where = "round " + std::to_string(round) + ", type " + std::to_string(facts.type);
        EXPECT_EQ(FirstDifference(expected, drawn), "") << where;
        EXPECT_EQ((std::vector<int>{graph->xApexPoint, graph->yApexPoint, graph->xAxisWidth,
                                    graph->yAxisHeight, graph->legendWidth}),
                  painter.Layout())
            << where;
        EXPECT_EQ(graph->axisLabelsCut != 0, painter.cut) << where;
    }
}

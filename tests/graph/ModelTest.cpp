#include "tests/graph/MultiGraphTest.h"

#include "graph/GraphLists.h"

#include <climits>

namespace {

std::string Colours(const CObList* list) {
    std::string text;
    for (POSITION position = list->GetHeadPosition(); position != nullptr;)
        text += std::to_string(static_cast<const CGraphValue*>(list->GetNext(position))->value) + " ";
    return text;
}

std::string Legends(const CGraphLegendList& list) {
    std::string text;
    for (int i = 0; i < list.GetCount(); ++i)
        text += std::string(list.TextAt(i)) + " ";
    return text;
}

} // namespace

TEST(GraphModelTest, DefaultsOfBothConstructors) {
    OpenMultiGraph plain;
    EXPECT_EQ(plain.colorList, nullptr);
    EXPECT_EQ(plain.quadSetManually, FALSE);
    EXPECT_EQ(plain.numTicks, 10);
    plain.RemoveColor(0);
    plain.RemoveAllData();
    plain.SetColor(0, 5);
    EXPECT_EQ(Colours(plain.colorList), "5 ") << "made when it is needed";
    EXPECT_EQ(OpenMultiGraph(20).quadSetManually, TRUE);
    EXPECT_EQ(OpenMultiGraph(0).quadSetManually, FALSE);
    EXPECT_EQ(OpenMultiGraph(20).parentWindow, nullptr);
}

TEST(GraphModelTest, TickLimitsCountIntervals) {
    struct Case {
        int min, max, step, intervals;
    };
    const Case cases[] = {{0, 95, 10, 10},
                          {0, 100, 10, 10},
                          {0, 101, 10, 11},
                          {0, 10, 25, 1},
                          {100, 0, -10, 10},
                          {0, 100, -10, -10},
                          {INT_MIN, INT_MAX, 2, INT_MAX},
                          {INT_MIN, INT_MAX, -1, INT_MIN}};
    for (const Case& c : cases) {
        OpenMultiGraph graph(0);
        graph.SetTickLimits(c.min, c.max, c.step);
        EXPECT_EQ(graph.numTicks, c.intervals) << c.min << " " << c.max << " " << c.step;
        graph.SetTickLimits(1, 2, 0);
        EXPECT_EQ(graph.maxTick, c.max) << "a step of 0 changes nothing";
        EXPECT_EQ(graph.tickSpace, c.step);
    }
}

TEST(GraphModelTest, SettingsThatTheTypeRefuses) {
    OpenMultiGraph ribbon(31);
    ribbon.SetGraphAlignment(0);
    EXPECT_EQ(ribbon.graphAlignment, 1);
    OpenMultiGraph line(1);
    line.SetGraphQuadType(3);
    EXPECT_EQ(line.graphQuadType, 1);
    OpenMultiGraph bar(0);
    bar.SetGraphQuadType(4);
    EXPECT_EQ(bar.graphQuadType, 4);
    EXPECT_EQ(bar.quadSetManually, TRUE);
    bar.SetGraphQuadType(7);
    EXPECT_EQ(bar.graphQuadType, 1);
    EXPECT_EQ(bar.quadSetManually, TRUE);
    OpenMultiGraph scatter(3);
    scatter.SetLegend(0, "text");
    EXPECT_EQ(scatter.graphHasLegend, FALSE);
    EXPECT_EQ(scatter.graphLegend.GetCount(), 0);
    bar.SetLegend(0, "four");
    bar.SetLegend(0, "seven..");
    EXPECT_EQ(Legends(bar.graphLegend), "four seven.. ");
    EXPECT_EQ(bar.legendMaxText, 7);
    EXPECT_EQ(bar.graphLegend.TextAt(2), "");
    EXPECT_EQ(bar.graphLegend.TextAt(-1), "");
}

TEST(GraphModelTest, RemovalsTakeExactlyTheAddressedEntry) {
    for (const int count : {0, 1, 3, 25})
        for (const int index : {-1, 0, 1, 2, 24, 25, INT_MAX}) {
            OpenMultiGraph graph(0);
            std::string colours, legends;
            for (int i = 0; i < count; ++i) {
                graph.SetColor(i, static_cast<COLORREF>(i));
                graph.SetLegend(i, std::to_string(i).c_str());
                if (i != index) {
                    colours += std::to_string(i) + " ";
                    legends += std::to_string(i) + " ";
                }
            }
            graph.RemoveColor(index);
            graph.RemoveLegend(index);
            EXPECT_EQ(Colours(graph.colorList), colours) << count << " " << index;
            EXPECT_EQ(Legends(graph.graphLegend), legends) << count << " " << index;
            for (int i = 0; i < count; ++i)
                graph.AddSeries(new CGraphSeries);
            graph.RemoveAllData();
            EXPECT_TRUE(graph.seriesList->IsEmpty() && graph.colorList->IsEmpty());
            EXPECT_EQ(graph.graphLegend.GetCount(), 0);
            EXPECT_EQ(graph.graphHasLegend, count > 0);
        }
}

TEST(GraphModelTest, SeriesAreOwnedCountedAndFoundByName) {
    OpenMultiGraph graph(0);
    int alive = 0;
    struct Counted : CGraphSeries {
        explicit Counted(int& count) : m_count(count) { ++m_count; }
        ~Counted() override { --m_count; }
        int& m_count;
    };
    const auto add = [&](const char* label, int values) {
        auto* const series = new Counted(alive);
        series->SetLabel(label);
        for (int i = 0; i < values; ++i)
            series->SetData(i, i);
        graph.AddSeries(series);
        return series;
    };
    CGraphSeries* const first = add("same", 7);
    add("same", 5);
    graph.AddSeries(first);
    graph.AddSeries(nullptr);
    EXPECT_EQ(graph.seriesList->GetCount(), 2);
    EXPECT_EQ(graph.seriesSize, 7);
    graph.RemoveSeries("Same");
    EXPECT_EQ(alive, 2) << "case counts";
    graph.RemoveSeries("same");
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(static_cast<CGraphSeries*>(graph.seriesList->GetHead())->GetDataCount(), 5);
    EXPECT_EQ(graph.seriesSize, 7);
    graph.RemoveAllSeries();
    EXPECT_EQ(alive, 0);
}

TEST(GraphModelTest, ListsDeleteWhatTheyOwn) {
    int alive = 0;
    struct Counted : CObject {
        explicit Counted(int& count) : m_count(count) { ++m_count; }
        ~Counted() override { --m_count; }
        int& m_count;
    };
    CObList list;
    for (int i = 0; i < 3; ++i)
        kavlix::Append(list, std::make_unique<Counted>(alive));
    kavlix::DeleteAt(list, 3);
    EXPECT_EQ(alive, 3);
    kavlix::DeleteAt(list, 1);
    EXPECT_EQ(alive, 2);
    kavlix::DeleteAll(list);
    EXPECT_EQ(alive, 0);
}

TEST(GraphModelTest, ASeriesKeepsOneValueForAGroup) {
    CGraphSeries series;
    EXPECT_EQ(series.GetData(0), 0);
    for (const auto& [key, value] :
         {std::pair{4, 40}, {-2, 20}, {4, 44}, {INT_MIN, 1}, {INT_MAX, 2}, {-2, 22}})
        series.SetData(key, value);
    EXPECT_EQ(series.GetDataCount(), 4);
    EXPECT_EQ(series.GetData(4), 44);
    EXPECT_EQ(series.GetData(-2), 22);
    EXPECT_EQ(series.GetData(INT_MIN), 1);
    EXPECT_EQ(series.GetData(INT_MAX), 2);
    EXPECT_EQ(series.GetData(3), 0);
    EXPECT_EQ(static_cast<CGraphValue*>(series.GetDataList().GetHead())->value, 44) << "its place stays";
}

// SPDX-License-Identifier: MIT
// Settings, lists and ownership, and the rule that operations happen whole or not at all.
#include "tests/graph/MultiGraphTest.h"

#include "tests/support/MemoryRule.h"
#include "tests/support/Utf8.h"

#include <climits>
#include <tuple>

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
        text += testkit::Utf8(list.TextAt(i)) + " ";
    return text;
}

} // namespace

TEST(GraphModelTest, TickLimitsCountIntervals) {
    for (const auto& [max, step, intervals] : {std::tuple{95, 10, 10}, {101, 10, 11}, {100, -10, -10}}) {
        OpenMultiGraph graph(0);
        graph.SetTickLimits(0, max, step);
        EXPECT_EQ(graph.numTicks, intervals);
        graph.SetTickLimits(1, 2, 0);
        EXPECT_EQ(graph.maxTick, max) << "a step of 0 changes nothing";
        EXPECT_EQ(graph.tickSpace, step);
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
    EXPECT_EQ(bar.quadSetManually, TRUE);
    bar.SetGraphQuadType(7);
    EXPECT_EQ(bar.graphQuadType, 1);
    OpenMultiGraph scatter(3);
    scatter.SetLegend(0, "text");
    EXPECT_EQ(scatter.graphHasLegend, FALSE);
    EXPECT_EQ(scatter.graphLegend.GetCount(), 0);
}

TEST(GraphModelTest, RemovalsTakeExactlyTheAddressedEntry) {
    OpenMultiGraph graph(0);
    for (int i = 0; i < 4; ++i) {
        graph.SetColor(i, static_cast<COLORREF>(i));
        graph.SetLegend(i, std::to_string(i).c_str());
    }
    for (const int index : {-1, 2, 3, INT_MAX}) {
        graph.RemoveColor(index);
        graph.RemoveLegend(index);
    }
    EXPECT_EQ(Colours(graph.colorList), "0 1 3 ");
    EXPECT_EQ(Legends(graph.graphLegend), "0 1 3 ");
    graph.AddSeries(new CGraphSeries);
    graph.RemoveAllData();
    EXPECT_TRUE(graph.seriesList->IsEmpty() && graph.colorList->IsEmpty());
    EXPECT_EQ(graph.graphLegend.GetCount(), 0);
    EXPECT_EQ(graph.graphHasLegend, TRUE);
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

namespace {

const CString kLongText('x', 40); // too long for a text without a block of its own

/// A graph that is drawn into a DC.
struct FedGraph {
    FedGraph() {
        window.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);
        graph.parentWindow = &window;
        graph.SetLegend(0, "first");
        for (const char* label : {"a label that is long", "short"}) {
            auto* const series = new CGraphSeries;
            series->SetLabel(label);
            series->SetData(0, 40);
            graph.AddSeries(series);
        }
        dc.Attach(surface.Dc());
        dc.SetTextAlign(TA_RIGHT);
    }
    ~FedGraph() {
        dc.Detach();
        window.DestroyWindow();
    }
    CGraphSeries& First() { return *static_cast<CGraphSeries*>(graph.seriesList->GetHead()); }
    std::string State() {
        std::string text = Legends(graph.graphLegend) + std::to_string(graph.legendMaxText);
        text += graph.colorList != nullptr ? Colours(graph.colorList) : "";
        text += std::to_string(graph.seriesList->GetCount()) + "of" + std::to_string(graph.seriesSize);
        text += graph.seriesList->IsEmpty()
                    ? ""
                    : Colours(&First().GetDataList()) + std::to_string(First().GetData(7));
        text += std::to_string(dc.GetBkMode()) + std::to_string(dc.GetTextAlign()) +
                std::to_string(dc.GetTextColor());
        for (const UINT kind : {OBJ_PEN, OBJ_BRUSH, OBJ_FONT})
            text += std::to_string(reinterpret_cast<std::uintptr_t>(::GetCurrentObject(dc, kind)));
        return text;
    }
    CWnd window;
    OpenMultiGraph graph;
    testkit::DibSurface surface{300, 200};
    CDC dc;
};

} // namespace

TEST(GraphMemoryTest, OperationsHappenWholeOrNotAtAll) {
    using F = FedGraph;
    using testkit::OnFailure;
    const auto add = [](F& f) {
        auto series = std::make_unique<CGraphSeries>();
        series->AddPoint(1, 2);
        series->AddPoint(1, 3);
        f.graph.AddSeries(series.release());
        return true;
    };
    EXPECT_GT(
        testkit::ExpectMemoryRule<F>({
            {"construct", OnFailure::Throws, [](F&) { return OpenMultiGraph(20).parentWindow == nullptr; }},
            {"SetColor", OnFailure::Throws, [](F& f) { return f.graph.SetColor(0, 5), true; }},
            {"SetLegend", OnFailure::Throws, [](F& f) { return f.graph.SetLegend(1, kLongText), true; }},
            {"AddSeries", OnFailure::Throws, add},
            {"SetData", OnFailure::Throws, [](F& f) { return f.First().SetData(7, 70), true; }},
            {"RemoveSeries", OnFailure::Never, [](F& f) { return f.graph.RemoveSeries("short"), true; }},
            {"RemoveLegend", OnFailure::Never, [](F& f) { return f.graph.RemoveLegend(0), true; }},
            {"RemoveAllData", OnFailure::Never, [](F& f) { return f.graph.RemoveAllData(), true; }},
            {"DrawGraph", OnFailure::Throws, [](F& f) { return f.graph.DrawGraph(&f.dc), true; }},
        }),
        50);
}

TEST(GraphModelTest, ASeriesKeepsOneValueForAGroup) {
    CGraphSeries series;
    for (const auto& [key, value] :
         {std::pair{4, 40}, {-2, 20}, {4, 44}, {INT_MIN, 1}, {INT_MAX, 2}, {-2, 22}})
        series.SetData(key, value);
    EXPECT_EQ(series.GetDataCount(), 4);
    EXPECT_EQ(series.GetData(4), 44);
    EXPECT_EQ(series.GetData(INT_MIN), 1);
    EXPECT_EQ(series.GetData(3), 0);
    EXPECT_EQ(Colours(&series.GetDataList()), "44 22 1 2 ");
}

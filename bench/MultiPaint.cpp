// SPDX-License-Identifier: MIT
// Repaints of every type of the multi-type graph, beside bars of the graph control.

#include "bench/GraphSeries.h"

#include <kavlix/Graph.h>

#include <functional>
#include <memory>

namespace bench {

namespace {

constexpr int kRepeats = 31;
constexpr int kMostValue = 100;
constexpr int kStackedBars = 13 * kMostValue;

struct Type {
    int code;
    const char* name;
};
constexpr Type kTypes[] = {{GraphTypeBar, "bar"},
                           {GraphTypeLine, "line"},
                           {GraphTypePie, "pie"},
                           {GraphTypeScatter, "scatter"},
                           {GraphTypeBoxWhisker, "box_whisker"},
                           {GraphTypeStackedBar, "stacked_bar"},
                           {GraphTypeXYLine, "xy_line"},
                           {GraphType3DBar, "bar_3d"},
                           {GraphType3DLine, "line_3d"},
                           {GraphType3DPie, "pie_3d"},
                           {GraphType3DStackedBar, "stacked_bar_3d"}};

std::unique_ptr<CGraph> MakeGraph(int type, int series, int groups, CWnd& window) {
    auto graph = std::make_unique<CGraph>();
    graph->parentWindow = &window;
    graph->SetGraphTitle("Values");
    graph->SetXAxisLabel("Series");
    graph->SetYAxisLabel("Value");
    graph->SetGridLines(TRUE);
    const bool stacked = type == GraphTypeStackedBar || type == GraphType3DStackedBar;
    graph->SetTickLimits(0, stacked ? kStackedBars * groups / kSeries : kMostValue,
                         stacked ? kMostValue : 10);
    CString text;
    for (int group = 0; group < groups; ++group) {
        const int light = group * 255 / groups;
        graph->SetColor(group, RGB(light, 255 - light, group * 97 % 255));
        text.Format("Group %d", group + 1);
        graph->SetLegend(group, text);
    }
    graph->SetGraphType(type);
    for (int i = 0; i < series; ++i) {
        auto one = std::make_unique<CGraphSeries>();
        text.Format("%d", i);
        one->SetLabel(text);
        for (int group = 0; group < groups; ++group)
            one->SetData(group, static_cast<int>(BarValue(i, group) * kMostValue));
        graph->AddSeries(one.release());
    }
    return graph;
}

/// One row: the bars of the graph control, and each graph type with `series` series of `groups` values. The
/// measurements alternate, so that other load on the machine affects all of them equally.
void Measure(const char* name, int series, int groups) {
    GraphStage bars;
    bars.FillBars(kGroups);
    Stage stage(kWidth, kHeight);
    Pump();
    Picture picture(kWidth, kHeight);
    CDC dc;
    dc.Attach(picture.Dc());
    struct Painter {
        std::string name;
        std::function<void()> paint;
        std::vector<double> times;
    };
    std::vector<Painter> painters;
    painters.push_back({"graph_control_bars", [&] { bars.PaintIntoMemory(); }, {}});
    std::vector<std::unique_ptr<CGraph>> graphs;
    for (const Type& type : kTypes) {
        graphs.push_back(MakeGraph(type.code, series, groups, stage));
        painters.push_back({type.name, [graph = graphs.back().get(), &dc] { graph->DrawGraph(&dc); }, {}});
    }
    for (int repeat = 0; repeat < kRepeats; ++repeat)
        for (Painter& painter : painters) {
            const double taken = Time(1, 0, painter.paint).front();
            if (repeat > 0) // the first paint makes fonts and glyphs
                painter.times.push_back(taken);
        }
    dc.Detach();
    Row row(name);
    row.Add("series", series).Add("groups", groups);
    for (Painter& painter : painters)
        row.Add(painter.name + "_median_ms", Quantile(painter.times, kMedian) / kMicrosecondsPerMillisecond)
            .Add(painter.name + "_min_ms", Quantile(painter.times, 0) / kMicrosecondsPerMillisecond);
    row.Print();
}

} // namespace

void MultiPaint() {
    Measure("multi_paint", kSeries, kGroups);
    Measure("multi_paint_turned", kGroups, kSeries);
}

} // namespace bench

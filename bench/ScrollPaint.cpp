// SPDX-License-Identifier: MIT
// Repaints of the whole scrolling graph, with 13 series and a sample a second.

#include "bench/GraphSeries.h"

#include <kavlix/ScrollGraphCtrl.h>

#include <iterator>
#include <string>

namespace bench {

namespace {

constexpr long kStart = 1700000000;
constexpr int kMinute = 60; // seconds
constexpr int kHour = 3600;
constexpr int kDay = 86400;

class ScrollStage {
public:
    /// `count` time stamps, one a second. `stepsBack` of them, evenly spread, are a second earlier than their
    /// predecessor instead.
    explicit ScrollStage(int count, int stepsBack = 0) : m_stage(kWidth, kHeight) {
        m_graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_stage, 1);
        m_graph.InitData();
        for (int i = 0; i < kSeries; ++i)
            m_graph.SetLegend(i, "reading");
        m_graph.SetGrid(TRUE, TRUE);
        m_graph.SetYVisibleMin(-3);
        m_graph.SetYVisibleMax(3);
        m_graph.SetYTickLabelScale(1);
        long time = kStart;
        for (int i = 0; i < count; ++i) {
            const bool isBack = stepsBack > 0 && i % (count / stepsBack) == count / stepsBack / 2;
            m_graph.AddXTickLabel(time += isBack ? -1 : 1);
        }
        for (int i = 0; i < kSeries; ++i)
            WalkSeries(i, count, [&](int, double value) { m_graph.AddDataForOffline(i, value, nullptr); });
        Pump();
    }
    /// Shows the newest `seconds`. While the view follows the newest sample, samples fill nine tenths of it.
    void Show(int seconds) {
        constexpr double filled = 0.9;
        m_graph.SetHorzRange(seconds / filled / kMinute);
        Pump();
    }
    CScrollGraphCtrl& Graph() { return m_graph; }

private:
    Stage m_stage;
    CScrollGraphCtrl m_graph;
};

void Measure(ScrollStage& stage, int stored, int shown) {
    stage.Show(shown);
    Row row("scroll_paint");
    row.Add("stored", stored).Add("in_view", shown);
    AddPaints(row, stage.Graph()).Print();
}

} // namespace

void ScrollPaint(int count) {
    ScrollStage stage(count);
    Measure(stage, count, count);
}

void ScrollWindow() {
    ScrollStage stage(kDay);
    Measure(stage, kDay, kHour);
    Measure(stage, kDay, kDay);
    ScrollStage few(kHour);
    Measure(few, kHour, kHour);
}

void ScrollBack() {
    constexpr int kStepsBack = 100;
    ScrollStage even(kDay);
    ScrollStage uneven(kDay, kStepsBack);
    even.Show(kDay);
    uneven.Show(kDay);
    Picture picture(kWidth, kHeight);
    std::vector<double> ratios;
    std::vector<double> times;
    for (int round = 0; round < 30; ++round) {
        const auto paint = [&](ScrollStage& stage) {
            return Time(1, 1, [&] { picture.Take(stage.Graph()); }).front();
        };
        const double time = paint(uneven);
        times.push_back(time / kMicrosecondsPerMillisecond);
        ratios.push_back(time / paint(even));
    }
    Row row("scroll_back");
    row.Add("stored", kDay).Add("steps_back", kStepsBack);
    AddSpread(row, "ms", times).Add("ratio", Quantile(ratios, kMedian)).Print();
}

void ScrollAxis() {
    struct Graph : CScrollGraphCtrl {
        using CScrollGraphCtrl::SetMapModeAnisotropic;
        void DrawAxis(CDC& dc) {
            constexpr int unitsATick = 800;
            DrawXAxis(dc, m_rectXTickLabel, m_rectXAxis, m_rectPlot.Width() / unitsATick);
        }
    };
    Stage stage(kWidth, kHeight);
    Graph graph;
    graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 800, 400), &stage, 1);
    graph.SetGrid(TRUE, TRUE);
    graph.AddXTickLabel(kStart);
    graph.AddData(0, 1, nullptr);
    Picture picture(kWidth, kHeight);
    picture.Take(graph); // computes the layout
    CDC dc;
    dc.Attach(picture.Dc());
    graph.SetMapModeAnisotropic(dc);
    dc.SetBkMode(TRANSPARENT); // as every paint of the control does
    const int days[] = {1, 7, 30, 365, 3650};
    std::vector<double> times[std::size(days)];
    for (int round = 0; round < 200; ++round) {
        for (std::size_t i = 0; i < std::size(days); ++i) {
            graph.SetHorzRange(days[i] * (kDay / kMinute));
            times[i].push_back(Time(1, 1, [&] { graph.DrawAxis(dc); }).front());
        }
    }
    dc.Detach();
    Row row("scroll_axis");
    double medians[std::size(days)];
    for (std::size_t i = 0; i < std::size(days); ++i)
        row.Add("days_" + std::to_string(days[i]) + "_us", medians[i] = Quantile(times[i], kMedian));
    row.Add("year_to_day", medians[3] / medians[0]).Add("decade_to_year", medians[4] / medians[3]).Print();
    graph.DestroyWindow();
}

} // namespace bench

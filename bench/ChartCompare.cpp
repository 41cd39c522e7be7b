// SPDX-License-Identifier: MIT
// The chart window beside the graph control: the same 13 lines, painted in turns by both.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <vector>

namespace bench {

namespace {

constexpr int kRounds = 41;
constexpr int kWarm = 3;
constexpr int kMany = 10000000;
constexpr int kMillion = kMany / 10;

/// The times of whole repaints of one control, without other load on the machine.
class Paints {
public:
    explicit Paints(CWnd& control) : m_control(control), m_picture(kWidth, kHeight) {}

    void Take() {
        m_window.push_back(Time(
                               1, 0,
                               [&] {
                                   m_control.InvalidateRect(nullptr, FALSE);
                                   m_control.SendMessage(WM_PAINT);
                               })
                               .front());
        m_memory.push_back(Time(1, 0, [&] { m_picture.Take(m_control); }).front());
    }
    void Forget() {
        m_window.clear();
        m_memory.clear();
    }
    double Window() { return Quantile(m_window, kTenth) / kMicrosecondsPerMillisecond; }
    double Memory() { return Quantile(m_memory, kTenth) / kMicrosecondsPerMillisecond; }

private:
    CWnd& m_control;
    Picture m_picture;
    std::vector<double> m_window;
    std::vector<double> m_memory;
};

/// Paints both controls in turns and adds their times, and `second` as a multiple of `first`.
void AddRatios(Row& row, CWnd& first, const std::string& firstName, CWnd& second,
               const std::string& secondName) {
    Paints a(first);
    Paints b(second);
    for (int i = 0; i < kWarm + kRounds; ++i) {
        if (i == kWarm) {
            a.Forget();
            b.Forget();
        }
        a.Take();
        b.Take();
    }
    row.Add(firstName + "_memory_ms", a.Memory())
        .Add(secondName + "_memory_ms", b.Memory())
        .Add("memory_ratio", b.Memory() / a.Memory())
        .Add(firstName + "_window_ms", a.Window())
        .Add(secondName + "_window_ms", b.Window())
        .Add("window_ratio", b.Window() / a.Window());
}

/// A chart of 13 lines with legend-free plot, in a window of its own.
class LinesStage {
public:
    LinesStage() : m_stage(kWidth, kHeight) {
        m_chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_stage, 1);
        m_chart.SetYScale(kYMin, kYMax);
        Pump();
    }
    /// Gives the chart `count` points a line. X is the index, or with `uneven` up to a tenth beside it.
    void Fill(int count, bool uneven) {
        m_chart.SetXScale(0, count - 1);
        std::vector<double> xs;
        Randoms randoms(5);
        for (int i = 0; uneven && i < count; ++i)
            xs.push_back(i + 0.1 * randoms.Next());
        for (int i = 0; i < kSeries; ++i)
            m_chart.SetData(m_chart.AddDataset(), uneven ? xs.data() : nullptr, WalkValues(i, count).data(),
                            count);
    }
    CChartDraw& Chart() { return m_chart; }

private:
    Stage m_stage;
    CChartDraw m_chart;
};

} // namespace

void ChartAgainstGraph(int count, bool uneven) {
    GraphStage graph;
    graph.Fill(count);
    LinesStage lines;
    lines.Fill(count, uneven);
    Row row(uneven ? "chart_against_graph_uneven" : "chart_against_graph");
    row.Add("samples", count);
    AddRatios(row, graph.Graph(), "graph", lines.Chart(), "chart");
    row.Print();
}

void ChartTenMillion(bool uneven) {
    LinesStage tenth;
    tenth.Fill(kMillion, uneven);
    LinesStage many;
    many.Fill(kMany, uneven);
    Row row(uneven ? "chart_ten_million_uneven" : "chart_ten_million");
    row.Add("samples", kMany);
    AddRatios(row, tenth.Chart(), "million", many.Chart(), "ten_million");
    row.Print();
}

} // namespace bench

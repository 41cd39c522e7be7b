// Whole repaints of the scrolling graph: background, grid, time axis with its labels, legend and 13 series
// with a sample a second.

#include "bench/GraphSeries.h"

#include <kavlix/ScrollGraphCtrl.h>

namespace bench {

namespace {

constexpr long kStart = 1700000000;
constexpr int kMinute = 60; // seconds
constexpr int kHour = 3600;
constexpr int kDay = 86400;

class ScrollStage {
public:
    explicit ScrollStage(int count) : m_stage(kWidth, kHeight) {
        m_graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_stage, 1);
        m_graph.InitData();
        for (int i = 0; i < kSeries; ++i)
            m_graph.SetLegend(i, "reading");
        m_graph.SetGrid(TRUE, TRUE);
        m_graph.SetYVisibleMin(-3);
        m_graph.SetYVisibleMax(3);
        m_graph.SetYTickLabelScale(1);
        for (int i = 0; i < count; ++i)
            m_graph.AddXTickLabel(kStart + i);
        for (int i = 0; i < kSeries; ++i)
            WalkSeries(i, count, [&](int, double value) { m_graph.AddDataForOffline(i, value, nullptr); });
        Pump();
    }
    /// The newest `seconds` fill the view as far as samples fill it while they are followed, nine tenths.
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

} // namespace bench

// Whole repaints of the chart window: background, grid, axes, labels and a line through all points, and the
// same with a thousandth of the points in view.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

namespace bench {

namespace {

constexpr int kInView = 1000;

void Measure(CChartDraw& chart, int stored, int shown) {
    Row row("chart_paint");
    row.Add("stored", stored).Add("in_view", shown);
    AddPaints(row, chart).Print();
}

} // namespace

void ChartPaint(int count) {
    Stage stage(kWidth, kHeight);
    CChartDraw chart;
    chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &stage, 1);
    chart.SetTitle("Walk");
    const std::vector<double> values = WalkValues(0, count);
    chart.SetData(chart.AddDataset(), nullptr, values.data(), count);
    Pump();
    Measure(chart, count, count);
    if (count <= kInView)
        return;
    chart.SetXScale(count - kInView, count - 1);
    Measure(chart, count, kInView);
}

} // namespace bench

// SPDX-License-Identifier: MIT
// Repaints of the chart window: one long line, a part of it in view, 13 lines, points in random order.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <numeric>

namespace bench {

namespace {

constexpr int kInView = 1000;
constexpr int kRandomPoints = 100000;
constexpr int kWideLine = 3;

void Measure(CChartDraw& chart, int stored, int shown) {
    Row row("chart_paint");
    row.Add("stored", stored).Add("in_view", shown);
    AddPaints(row, chart).Print();
}

/// A chart in a visible window, with the same scales as in the programs of bench/run --peers.
class ChartStage {
public:
    explicit ChartStage(int count) : m_stage(kWidth, kHeight) {
        m_chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_stage, 1);
        m_chart.SetXScale(0, count - 1);
        m_chart.SetYScale(kYMin, kYMax);
        Pump();
    }
    CChartDraw& Chart() { return m_chart; }

private:
    Stage m_stage;
    CChartDraw m_chart;
};

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

void ChartLines(int count) {
    ChartStage stage(count);
    CChartDraw& chart = stage.Chart();
    for (int i = 0; i < kSeries; ++i)
        chart.SetData(chart.AddDataset(), nullptr, WalkValues(i, count).data(), count);
    Row row("chart_lines");
    row.Add("samples", count);
    AddPaints(row, chart);
    for (int i = 0; i < kSeries; ++i)
        chart.SetLineSize(i, kWideLine);
    AddPaints(row, chart, "wide_").Print();
}

void ChartRandom(bool markers) {
    ChartStage stage(kRandomPoints);
    CChartDraw& chart = stage.Chart();
    for (int i = 0; i < kSeries; ++i) {
        std::vector<std::size_t> places(kRandomPoints);
        std::iota(places.begin(), places.end(), std::size_t{0});
        Randoms randoms(77u + static_cast<unsigned>(i));
        for (std::size_t k = kRandomPoints - 1; k > 0; --k)
            std::swap(places[k], places[randoms.NextBits() % (k + 1)]);
        std::vector<double> xs(kRandomPoints);
        std::vector<double> ys(kRandomPoints);
        WalkSeries(i, kRandomPoints, [&](int k, double value) {
            const std::size_t place = places[static_cast<std::size_t>(k)];
            xs[place] = k;
            ys[place] = value;
        });
        const int dataset = chart.AddDataset();
        chart.SetData(dataset, xs.data(), ys.data(), kRandomPoints);
        chart.ShowLine(dataset, !markers);
        chart.SetMarkerType(dataset, markers ? CDataset::MarkerSquare : CDataset::MarkerNone);
    }
    Row row(markers ? "chart_random_points" : "chart_random");
    row.Add("samples", kRandomPoints);
    AddPaints(row, chart).Print();
}

} // namespace bench

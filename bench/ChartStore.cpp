// SPDX-License-Identifier: MIT
// The chart's store: time to append with and without a history limit, late points, styles.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <vector>

namespace bench {

namespace {

constexpr int kMillion = 1000000;
constexpr int kStep = 100; // points of a step whose time is measured
constexpr int kLate = 100;

/// Appends points in steps and adds the rate and the times of the steps.
void AppendAll(Row& row, const std::string& name, int count, int history, bool even) {
    CChartDraw chart;
    chart.AddDataset();
    chart.SetHistory(0, history, 0);
    const std::vector<double> values = WalkValues(0, kMillion);
    int next = 0;
    const double begin = Now();
    std::vector<double> steps = Time(count / kStep, 0, [&] {
        for (const int end = next + kStep; next < end; ++next) {
            const double value = values[static_cast<std::size_t>(next % kMillion)];
            if (even)
                chart.AddEvenData(0, value);
            else
                chart.AddData(0, next + 0.1 * value, value);
        }
    });
    row.Add(name + "_points_per_us", count / (Now() - begin));
    constexpr double kRare = 0.999;
    row.Add(name + "_step_999_us", Quantile(steps, kRare)).Add(name + "_step_max_us", Quantile(steps, 1));
}

void SetStyle(CChartDraw& chart, CChartDraw::DrawStyle style) {
    for (int i = 0; i < kSeries; ++i)
        chart.SetDrawStyle(i, style);
}

} // namespace

void ChartStore() {
    Row row("chart_store");
    row.Add("points_a_step", kStep);
    AppendAll(row, "all", 10 * kMillion, 0, false);
    AppendAll(row, "history", 10 * kMillion, kMillion, false);
    AppendAll(row, "even_history", 10 * kMillion, kMillion, true);
    row.Print();
}

void ChartStyles() {
    Stage stage(kWidth, kHeight);
    CChartDraw chart;
    chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &stage, 1);
    chart.SetXScale(0, kMillion - 1);
    chart.SetYScale(kYMin, kYMax);
    for (int i = 0; i < kSeries; ++i)
        chart.SetData(chart.AddDataset(), nullptr, WalkValues(i, kMillion).data(), kMillion);
    Pump();
    Row row("chart_styles");
    row.Add("samples", kMillion);
    const struct {
        const char* name;
        CChartDraw::DrawStyle style;
    } styles[] = {{"line_", CChartDraw::StyleLine},
                  {"step_", CChartDraw::StyleStep},
                  {"impulses_", CChartDraw::StyleImpulses},
                  {"bars_", CChartDraw::StyleBars},
                  {"fill_", CChartDraw::StyleFill}};
    for (const auto& each : styles) {
        SetStyle(chart, each.style);
        AddPaints(row, chart, each.name);
    }
    SetStyle(chart, CChartDraw::StyleLine);
    Randoms randoms(3);
    for (int i = 0; i < kSeries; ++i)
        for (int k = 0; k < kLate; ++k)
            chart.InsertData(i, kMillion * std::fabs(randoms.Next()), 0);
    AddPaints(row, chart, "late_").Print();
}

} // namespace bench

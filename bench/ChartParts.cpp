// SPDX-License-Identifier: MIT
// The time of each part of a chart's repaint: layout, the seven drawing members, and the copy to the window.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

namespace {

constexpr int kPaints = 55;
constexpr int kWarm = 5;
constexpr double kFirstTime = 1386018900; // seconds since 1970

/// A chart that takes the time of its drawing members, in microseconds.
class PartsChart : public CChartDraw {
public:
    std::map<std::string, std::vector<double>> times;
    void CalcDatas() override {
        Timed(
            "layout", [&] { CChartDraw::CalcDatas(); });
    }
    void PaintBkGnd(CDC& dc) override {
        Timed(
            "background", [&] { CChartDraw::PaintBkGnd(dc); });
    }
    void DrawTitle(CDC& dc) override {
        Timed(
            "title", [&] { CChartDraw::DrawTitle(dc); });
    }
    void DrawGrid(CDC& dc) override {
        Timed(
            "grid",
            [&] {
                CChartDraw::DrawGrid(dc);
                ::GdiFlush();
            });
    }
    void DrawAxes(CDC& dc) override {
        Timed(
            "axes", [&] { CChartDraw::DrawAxes(dc); });
    }
    void DrawXScale(CDC& dc) override {
        Timed(
            "x_scale", [&] { CChartDraw::DrawXScale(dc); });
    }
    void DrawYScale(CDC& dc) override {
        Timed(
            "y_scale", [&] { CChartDraw::DrawYScale(dc); });
    }
    void DrawDatasets(CDC& dc) override {
        Timed(
            "datasets", [&] { CChartDraw::DrawDatasets(dc); });
    }

private:
    template <class Draw> void Timed(const char* name, Draw draw) {
        const double begin = Now();
        draw();
        times[name].push_back(Now() - begin);
    }
};

} // namespace

void ChartParts(int count) {
    Stage stage(kWidth, kHeight);
    PartsChart chart;
    chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &stage, 1);
    chart.GetXAxis().SetKind(CChartAxis::Time);
    chart.GetXAxis().SetTimeZone(_T("UTC"));
    chart.GetYAxis().SetRange(kYMin, kYMax);
    chart.GetLegend().SetPlace(CChartLegend::Right);
    for (int i = 0; i < kSeries; ++i) {
        const int dataset = chart.AddDataset();
        CString name;
        name.Format(_T("Series %d"), i + 1);
        chart.SetDatasetName(dataset, name);
        WalkSeries(i, count, [&](int k, double value) { chart.AddData(dataset, kFirstTime + k, value); });
    }
    Pump();
    Picture picture(kWidth, kHeight);
    for (const bool window : {true, false}) {
        std::vector<double> whole;
        for (int i = 0; i < kWarm + kPaints; ++i) {
            if (i == kWarm) {
                chart.times.clear();
                whole.clear();
            }
            const double begin = Now();
            if (window) {
                chart.InvalidateRect(nullptr, FALSE);
                chart.SendMessage(WM_PAINT);
            } else {
                picture.Take(chart);
            }
            whole.push_back(Now() - begin);
        }
        Row row(window ? "chart_parts_window" : "chart_parts_memory");
        row.Add("samples", count).Add("whole", Quantile(whole, kTenth));
        double sum = 0;
        for (auto& [name, times] : chart.times) {
            const double t = Quantile(times, kTenth);
            sum += t;
            row.Add(name, t);
        }
        row.Add("rest", Quantile(whole, kTenth) - sum).Print();
    }
}

} // namespace bench

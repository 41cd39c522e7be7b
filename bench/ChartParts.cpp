// SPDX-License-Identifier: MIT
// The time of each part of a chart's repaint: layout, the seven drawing members, and the copy to the window.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace bench {
namespace {
class PartsChart : public CChartDraw {
public:
    std::map<std::string, std::vector<double>> times;
    void CalcDatas() override { T("layout", [&] { CChartDraw::CalcDatas(); }); }
    void PaintBkGnd(CDC& dc) override { T("background", [&] { CChartDraw::PaintBkGnd(dc); }); }
    void DrawTitle(CDC& dc) override { T("title", [&] { CChartDraw::DrawTitle(dc); }); }
    void DrawGrid(CDC& dc) override { T("grid", [&] { CChartDraw::DrawGrid(dc); ::GdiFlush(); }); }
    void DrawAxes(CDC& dc) override { T("axes", [&] { CChartDraw::DrawAxes(dc); }); }
    void DrawXScale(CDC& dc) override { T("x_scale", [&] { CChartDraw::DrawXScale(dc); }); }
    void DrawYScale(CDC& dc) override { T("y_scale", [&] { CChartDraw::DrawYScale(dc); }); }
    void DrawDatasets(CDC& dc) override { T("datasets", [&] { CChartDraw::DrawDatasets(dc); }); }

private:
    template <class F> void T(const char* n, F f) {
        const double b = Now();
        f();
        times[n].push_back(Now() - b);
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
        WalkSeries(i, count, [&](int k, double value) { chart.AddData(dataset, 1386018900 + k, value); });
    }
    Pump();
    Picture picture(kWidth, kHeight);
    for (const bool window : {true, false}) {
        std::vector<double> whole;
        for (int i = 0; i < 60; ++i) {
            if (i == 5) {
                chart.times.clear();
                whole.clear();
            }
            const double b = Now();
            if (window) {
                chart.InvalidateRect(nullptr, FALSE);
                chart.SendMessage(WM_PAINT);
            } else {
                picture.Take(chart);
            }
            whole.push_back(Now() - b);
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

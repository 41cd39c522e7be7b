// SPDX-License-Identifier: MIT
// The chart over time: repaints with axes and legend, pans by a pixel, and a zoom to a minute and back.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace bench {

namespace {

constexpr double kFirstTime = 1386018900; // seconds since 1970
constexpr int kPans = 12;
constexpr int kZoomSteps = 20;
constexpr int kRounds = 5;
constexpr double kMinute = 60;

/// A chart of 13 series with a point a second, a time axis and a legend, in a visible window.
class TimeStage {
public:
    explicit TimeStage(int count) : m_stage(kWidth, kHeight) {
        m_chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_stage, 1);
        m_chart.GetXAxis().SetKind(CChartAxis::Time);
        m_chart.GetXAxis().SetTimeZone(_T("UTC"));
        m_chart.GetYAxis().SetRange(kYMin, kYMax);
        m_chart.GetLegend().SetPlace(CChartLegend::Right);
        for (int i = 0; i < kSeries; ++i) {
            const int dataset = m_chart.AddDataset();
            CString name;
            name.Format(_T("Series %d"), i + 1);
            m_chart.SetDatasetName(dataset, name);
            WalkSeries(i, count,
                       [&](int k, double value) { m_chart.AddData(dataset, kFirstTime + k, value); });
        }
        Show(0, count - 1);
        Pump();
    }
    CChartDraw& Chart() { return m_chart; }
    /// Sets the view, in seconds since the first point.
    void Show(double from, double to) { m_chart.GetXAxis().SetRange(kFirstTime + from, kFirstTime + to); }
    /// Pixel columns from the first to the last second in view at the last paint.
    int Columns() {
        double from = 0;
        double to = 0;
        int left = 0;
        int right = 0;
        m_chart.GetXAxis().GetRange(from, to);
        m_chart.GetXAxis().GetPosition(from, left);
        m_chart.GetXAxis().GetPosition(to, right);
        return right - left;
    }
    /// The time of a whole repaint in the window, in milliseconds.
    double Repaint() {
        return Time(
                   1, 0,
                   [&] {
                       m_chart.InvalidateRect(nullptr, FALSE);
                       m_chart.SendMessage(WM_PAINT);
                   })
                   .front() /
               kMicrosecondsPerMillisecond;
    }

private:
    Stage m_stage;
    CChartDraw m_chart;
};

} // namespace

void ChartTime(int count) {
    TimeStage stage(count);
    Row row("chart_time");
    row.Add("samples", count);
    AddPaints(row, stage.Chart());
    // All lines are painted anew.
    Picture picture(kWidth, kHeight);
    std::vector<double> window;
    std::vector<double> memory;
    for (int i = 0; i < kPans; ++i) {
        stage.Chart().SetColor(0, RGB(0, 0, 2 * i));
        window.push_back(stage.Repaint());
        stage.Chart().SetColor(0, RGB(0, 0, 2 * i + 1));
        memory.push_back(Time(1, 0, [&] { picture.Take(stage.Chart()); }).front() /
                         kMicrosecondsPerMillisecond);
    }
    row.Add("changed_window_median_ms", Quantile(window, kMedian))
        .Add("changed_memory_median_ms", Quantile(memory, kMedian))
        .Print();
}

void ChartPan(int count) {
    constexpr int kTurns = 8;
    constexpr int kWarmPans = 3;
    TimeStage stage(count);
    // Half of the points in view.
    const double half = (count - 1) / 2.0;
    stage.Show(0, half);
    stage.Repaint();
    const double pixel = half / stage.Columns();
    std::vector<double> pans;
    std::vector<double> repaints; // nothing has changed
    std::vector<double> changed;  // all lines are painted anew
    int place = 0;
    for (int turn = 0; turn < kTurns; ++turn) {
        for (int i = 0; i < kPans; ++i) {
            ++place;
            stage.Show(place * pixel, place * pixel + half);
            const double time = stage.Repaint();
            if (i >= kWarmPans)
                pans.push_back(time);
        }
        for (int i = 0; i < kPans; ++i)
            repaints.push_back(stage.Repaint());
        for (int i = 0; i < kPans; ++i) {
            stage.Chart().SetColor(0, RGB(0, 0, i));
            changed.push_back(stage.Repaint());
        }
    }
    Row row("chart_pan");
    const double full = Quantile(changed, kTenth);
    row.Add("samples", count)
        .Add("pan_ms", Quantile(pans, kTenth))
        .Add("repaint_ms", Quantile(repaints, kTenth))
        .Add("changed_ms", full)
        .Add("ratio", Quantile(pans, kTenth) / full);
    row.Print();
}

void ChartZoom(int count) {
    TimeStage stage(count);
    const double middle = (count - 1) / 2.0;
    const double factor = std::pow(kMinute / (count - 1), 1.0 / kZoomSteps);
    std::vector<std::vector<double>> frames(2 * kZoomSteps + 1);
    for (int round = 0; round < kRounds; ++round) {
        for (int step = 0; step <= 2 * kZoomSteps; ++step) {
            const int depth = step <= kZoomSteps ? step : 2 * kZoomSteps - step;
            const double half = (count - 1) / 2.0 * std::pow(factor, depth);
            stage.Show(middle - half, middle + half);
            frames[static_cast<std::size_t>(step)].push_back(stage.Repaint());
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& frame : frames)
        medians.push_back(Quantile(frame, kMedian));
    const double whole = std::min(medians.front(), medians.back());
    const auto worst = std::max_element(medians.begin(), medians.end());
    Row row("chart_zoom");
    row.Add("samples", count)
        .Add("whole_ms", whole)
        .Add("worst_ms", *worst)
        .Add("worst_step", static_cast<int>(worst - medians.begin()))
        .Add("ratio", *worst / whole)
        .Print();
}

} // namespace bench

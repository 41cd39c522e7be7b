// SPDX-License-Identifier: MIT
// Live charts: appending within a history, points of another thread, late points, a wall of charts, saved data.

#include "bench/GraphSeries.h"

#include <kavlix/ChartDraw.h>

#include <array>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace bench {

namespace {

constexpr double kFirstTime = 1386018900; // seconds since 1970
constexpr double kMost = 0.999;

void AddRate(Row& row, const std::string& name, int count, double begin) {
    row.Add(name + "_points_per_s", count * kMicrosecondsPerSecond / (Now() - begin));
}

/// Handles one message; waits for it.
void HandleMessage() {
    MSG message;
    if (::GetMessage(&message, nullptr, 0, 0) > 0)
        ::DispatchMessage(&message);
}

/// Counts its paints.
class PaintedChart : public CChartDraw {
public:
    int paints = 0;

protected:
    void PaintBkGnd(CDC& dc) override {
        ++paints;
        CChartDraw::PaintBkGnd(dc);
    }
};

/// A chart with one dataset that keeps ten minutes of 1000 points a second.
struct LiveStage {
    LiveStage() : stage(kWidth, kHeight) {
        chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &stage, 1);
        chart.AddDataset();
        chart.SetHistory(0, kKept, 0);
        chart.GetXAxis().SetKind(CChartAxis::Time);
        chart.GetYAxis().SetRange(kYMin, kYMax);
        chart.GetXAxis().SetRange(kFirstTime, kFirstTime + kKept / kPerSecond);
        chart.GetXAxis().SetRangeMode(CChartAxis::Follow);
        Pump();
    }
    static constexpr int kKept = 600000;
    static constexpr double kPerSecond = 1000;

    Stage stage;
    PaintedChart chart;
};

/// Posts points from another thread, `batch` at a time and at most `mostPerSecond`, while this thread paints.
void Post(int count, int batch, double mostPerSecond, const std::string& name, Row& row) {
    LiveStage live;
    std::atomic<int> posted{0};
    std::atomic<bool> isDone{false};
    int refused = 0;
    std::vector<double> pushes;
    const double begin = Now();
    std::thread poster([&] {
        std::vector<double> xs(static_cast<std::size_t>(batch));
        std::vector<double> ys(xs.size());
        int sent = 0;
        while (sent < count) {
            while (batch > 1 && (Now() - begin) * mostPerSecond < sent * kMicrosecondsPerSecond)
                std::this_thread::yield();
            for (std::size_t i = 0; i < xs.size(); ++i) {
                xs[i] = kFirstTime + (sent + static_cast<int>(i)) / LiveStage::kPerSecond;
                ys[i] = (sent + static_cast<int>(i)) % 100 * 0.02;
            }
            const int queued = batch == 1 ? live.chart.PostData(0, xs[0], ys[0])
                                          : live.chart.PostData(0, xs.data(), ys.data(), batch);
            sent += queued;
            if (queued < batch) {
                ++refused;
                std::this_thread::yield();
            }
            posted = sent;
        }
        isDone = true;
    });
    while (!isDone || live.chart.GetPostedCount() > 0)
        HandleMessage();
    poster.join();
    const double seconds = (Now() - begin) / kMicrosecondsPerSecond;
    row.Add(name + "_points_per_s", posted / seconds)
        .Add(name + "_paints_per_s", live.chart.paints / seconds)
        .Add(name + "_full", refused);
}

} // namespace

void ChartAppend() {
    LiveStage live;
    constexpr int kSteps = 40000;
    constexpr int kStep = 600; // points between two frames at 36,000 a second
    int sent = 0;
    const auto step = [&] {
        for (int i = 0; i < kStep; ++i, ++sent)
            live.chart.AddData(0, kFirstTime + sent / LiveStage::kPerSecond, sent % 100 * 0.02);
    };
    Row row("chart_append");
    const double begin = Now();
    std::vector<double> steps = Time(kSteps, 0, step);
    AddRate(row, "all", sent, begin);
    AddSpread(row, "step_us", steps).Add("step_999_us", Quantile(steps, kMost));
    std::vector<double> singles =
        Time(kSteps * 10, 0, [&] { live.chart.AddData(0, kFirstTime + sent++ / LiveStage::kPerSecond, 0); });
    AddSpread(row, "single_us", singles).Add("single_999_us", Quantile(singles, kMost)).Print();
}

void ChartPost() {
    constexpr int kPoints = 30000000;
    constexpr int kBatch = 1000;
    Row row("chart_post");
    constexpr double kPerSecond = 5e6;
    constexpr double kUnlimited = 1e12;
    Post(kPoints / 2, kBatch, kPerSecond, "paced", row);
    Post(kPoints / 3, 1, kUnlimited, "single", row);
    Post(kPoints, kBatch, kUnlimited, "batch", row);
    row.Print();
}

void ChartLate() {
    constexpr int kPoints = 1000000;
    constexpr int kNever = 2 * kPoints;
    for (const int every : {kNever, 100, 10}) { // one point of this number is late, by up to 1000 points
        Stage stage(kWidth, kHeight);
        CChartDraw chart;
        chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &stage, 1);
        chart.AddDataset();
        Randoms randoms(3);
        Row row("chart_late");
        row.Add("late_percent", every == kNever ? 0 : 100 / every);
        const double begin = Now();
        WalkSeries(0, kPoints, [&](int i, double y) {
            chart.InsertData(0, i % every == every - 1 ? i - 1000 * std::abs(randoms.Next()) : i, y);
        });
        AddRate(row, "insert", kPoints, begin);
        AddPaints(row, chart).Print();
    }
}

void ChartWall() {
    constexpr int kCharts = 24;
    constexpr int kEach = 4;
    constexpr int kInView = 600;
    constexpr int kSteps = 101;
    constexpr int kWarm = 20;
    constexpr int kColumns = 4;
    const CSize kSize(266, 225);
    constexpr double kStep = 0.1; // seconds
    Stage stage(1280, 1024);
    std::array<CChartDraw, kCharts> charts;
    Randoms randoms(5);
    int k = 0;
    const auto add = [&](CChartDraw& chart) {
        for (int s = 0; s < kEach; ++s)
            chart.AddData(s, kFirstTime + kStep * k, randoms.Next());
    };
    for (int i = 0; i < kCharts; ++i) {
        CChartDraw& chart = charts[static_cast<std::size_t>(i)];
        // The windows overlap. Each of them is painted whole, because they do not clip one another.
        chart.Create(WS_CHILD | WS_VISIBLE, CRect(CPoint(i % kColumns * kSize.cx, i / kColumns * 150), kSize),
                     &stage, 1);
        chart.GetXAxis().SetKind(CChartAxis::Time);
        chart.GetXAxis().SetTimeZone(_T("UTC"));
        chart.GetYAxis().SetRange(kYMin, kYMax);
        for (int s = 0; s < kEach; ++s)
            chart.SetHistory(chart.AddDataset(), 0, kInView);
        for (k = 0; k < kInView; ++k)
            add(chart);
    }
    Pump();
    Picture picture(kSize.cx, kSize.cy);
    const auto steps = [&](bool inMemory) {
        return Time(kSteps, kWarm, [&] {
            for (CChartDraw& chart : charts) {
                add(chart);
                const double now = kFirstTime + kStep * k;
                chart.GetXAxis().SetRange(now - kInView * kStep, now);
                chart.InvalidateRect(nullptr, FALSE);
                if (inMemory)
                    picture.Take(chart);
                else
                    chart.SendMessage(WM_PAINT);
            }
            ++k;
        });
    };
    Row row("chart_wall");
    std::vector<double> window = steps(false);
    std::vector<double> memory = steps(true);
    row.Add("window_median_ms", Quantile(window, kMedian) / kMicrosecondsPerMillisecond)
        .Add("window_999_ms", Quantile(window, kMost) / kMicrosecondsPerMillisecond)
        .Add("memory_median_ms", Quantile(memory, kMedian) / kMicrosecondsPerMillisecond)
        .Add("memory_999_ms", Quantile(memory, kMost) / kMicrosecondsPerMillisecond)
        .Print();
}

void ChartSave() {
    constexpr int kRows = 1000000;
    CChartDraw chart;
    for (int i = 0; i < kSeries; ++i) {
        chart.AddDataset();
        WalkSeries(i, kRows, [&](int k, double y) { chart.AddData(i, kFirstTime + 0.25 * k, y); });
    }
    TCHAR folder[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    const CString name = CString(folder) + _T("kavlix_bench.csv");
    Row row("chart_save");
    for (const bool isTime : {false, true}) {
        chart.GetXAxis().SetKind(isTime ? CChartAxis::Time : CChartAxis::Linear);
        const double begin = Now();
        chart.SaveData(name, FALSE);
        row.Add(isTime ? "times_s" : "numbers_s", (Now() - begin) / kMicrosecondsPerSecond);
    }
    ::DeleteFile(name);
    row.Print();
}

} // namespace bench

// SPDX-License-Identifier: MIT
// The time of a step for histories of different length, and a day of readings on a live page.

#include "bench/GraphSeries.h"

#include <kavlix/ScrollGraphCtrl.h>

#include <limits>
#include <memory>

namespace bench {

namespace {

constexpr int kRepeats = 15;
constexpr int kWarm = 2;
constexpr int kLoads = 3;
constexpr int kSizes[] = {1000, 10000, 100000, 1000000, 10000000};
constexpr double kSlow = 0.9999; // quantile: one step of ten thousand is slower
constexpr double kNanosecondsPerMicrosecond = 1e3;

/// The shortest time of each step over several runs of the same work. Time that the work itself needs appears
/// in every run at the same step; interruptions by other programs do not.
class Steps {
public:
    explicit Steps(int count) : m_least(static_cast<std::size_t>(count), std::numeric_limits<float>::max()) {}
    /// Notes that step `i` began and ended at these times.
    void Take(int i, double begin, double end) {
        float& least = m_least[static_cast<std::size_t>(i)];
        least = std::min(least, static_cast<float>(end - begin));
    }
    double Sum() const {
        double sum = 0;
        for (const float step : m_least)
            sum += step;
        return sum;
    }
    /// Quantile of the steps, in microseconds.
    double At(double share) const {
        std::vector<double> steps(m_least.begin(), m_least.end());
        return Quantile(steps, share);
    }

private:
    std::vector<float> m_least;
};

/// The values of the growing graphs, computed one part at a time and before the steps are timed.
class Parts {
public:
    static constexpr int kPart = 1000;

    explicit Parts(int count) : m_count(count), m_values(kSeries * kPart) {}
    /// Computes kPart values per series, from index `begin` on.
    void Make(int begin) {
        for (int i = 0; i < kSeries; ++i)
            for (int k = 0; k < kPart; ++k)
                m_values[Place(i, k)] = std::sin((begin + k) * 9.0 / m_count + i) + 0.3 * m_randoms.Next();
    }
    double Value(int series, int k) const { return m_values[Place(series, k)]; }

private:
    static std::size_t Place(int series, int k) { return static_cast<std::size_t>(series * kPart + k); }

    int m_count;
    Randoms m_randoms{7};
    std::vector<double> m_values;
};

void Load(CGraphCtrl& graph, int count, Steps& samples, Steps& labels) {
    Parts parts(count);
    for (int begin = 0; begin < count; begin += Parts::kPart) {
        parts.Make(begin);
        double last = Now();
        for (int k = 0; k < Parts::kPart; ++k) {
            for (int i = 0; i < kSeries; ++i)
                graph.AddData(i, parts.Value(i, k), nullptr);
            const double now = Now();
            samples.Take(begin + k, last, now);
            last = now;
        }
    }
    const CString label("12:34:56");
    for (int i = 0; i < count; ++i) {
        const double begin = Now();
        graph.AddXTickLabel(label, "");
        labels.Take(i, begin, Now());
    }
}

void Grow(int count) {
    Steps samples(count);
    Steps labels(count);
    for (int run = 1; run < kLoads; ++run) {
        CGraphCtrl rehearsal;
        Load(rehearsal, count, samples, labels);
    }
    GraphStage stage;
    CGraphCtrl& graph = stage.Graph();
    Load(graph, count, samples, labels);
    std::vector<double> paints = Time(kRepeats, kWarm, [&] { stage.PaintIntoMemory(); });
    int place = 0;
    std::vector<double> clicks = Time(
        kRepeats, kWarm,
        [&] { graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200 + ++place * 10, 200)); });
    std::vector<double> drops = Time(kRepeats, kWarm, [&] { graph.RemoveHeadData(1); });
    const int half = count / 2;
    const double begin = Now();
    graph.RemoveHeadData(half);
    const double halfDrop = Now() - begin;
    const auto perSample = [](double microseconds, int steps) {
        return microseconds * kNanosecondsPerMicrosecond / (static_cast<double>(steps) * kSeries);
    };
    Row("graph_growth")
        .Add("samples", count)
        .Add("append_ns_per_sample", perSample(samples.Sum(), count))
        .Add("slow_append_step_us", samples.At(kSlow))
        .Add("worst_append_step_us", samples.At(1))
        .Add("worst_label_us", labels.At(1))
        .Add("paint_ms", Quantile(paints, kMedian) / kMicrosecondsPerMillisecond)
        .Add("paint_min_ms", Quantile(paints, 0) / kMicrosecondsPerMillisecond)
        .Add("click_us", Quantile(clicks, kMedian))
        .Add("drop_one_us", Quantile(drops, kMedian))
        .Add("drop_half_ns_per_sample", perSample(halfDrop, half))
        .Print();
}

constexpr int kDaySeconds = 86400;
constexpr long kDayStart = 1700000000;
constexpr double kLiveMinutes = 5; // width of the view
constexpr int kWithBar = 2000;     // further steps with the scroll bar, which the system draws
constexpr int kScrollBar = 100;    // its ID
constexpr double kLimit = 20 * kMicrosecondsPerMillisecond;

std::vector<double> DayValues() {
    std::vector<double> values;
    Randoms randoms(11);
    for (int second = 0; second < kDaySeconds; ++second)
        for (int i = 0; i < kSeries; ++i)
            values.push_back(std::sin(second / 900.0 + i) + 0.2 * randoms.Next());
    return values;
}

void Feed(CScrollGraphCtrl& graph, int second, const std::vector<double>& values) {
    graph.AddXTickLabel(kDayStart + second);
    for (int i = 0; i < kSeries; ++i)
        graph.AddData(i, values[static_cast<std::size_t>(second % kDaySeconds * kSeries + i)], nullptr);
}

/// Adds to `row` the memory of a day's samples in bytes per sample, without and with their time stamps.
void MeasureMemory(const std::vector<double>& values, Row& row) {
    auto graph = std::make_unique<CScrollGraphCtrl>();
    const double before = UsedBytes();
    for (std::size_t k = 0; k < values.size(); ++k)
        graph->AddDataForOffline(static_cast<int>(k % kSeries), values[k], nullptr);
    const double samples = UsedBytes() - before;
    for (int second = 0; second < kDaySeconds; ++second)
        graph->AddXTickLabel(kDayStart + second);
    const auto count = static_cast<double>(values.size());
    row.Add("bytes_per_sample", samples / count)
        .Add("bytes_per_sample_with_times", (UsedBytes() - before) / count);
}

/// Sets up a live page: a caption, a legend, grid lines at the values.
void MakeLive(CScrollGraphCtrl& graph, CWnd& stage) {
    graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &stage, 1);
    graph.InitData();
    graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    graph.SetWindowText("This machine");
    graph.SetGrid(FALSE, TRUE);
    graph.SetHorzRange(kLiveMinutes);
    graph.SetYVisibleMin(-2);
    graph.SetYVisibleMax(2);
    for (int i = 0; i < kSeries; ++i)
        graph.SetLegend(i, "reading");
    Pump();
}

} // namespace

void GraphGrowth() {
    for (const int count : kSizes)
        Grow(count);
}

void GraphDay() {
    const std::vector<double> values = DayValues();
    Row row("graph_day");
    row.Add("steps", kDaySeconds);
    MeasureMemory(values, row);

    // The storage alone, in several runs; then the whole control with repaints, in one run.
    Steps feeds(kDaySeconds);
    for (int run = 0; run < kLoads; ++run) {
        CScrollGraphCtrl graph;
        graph.InitData();
        for (int second = 0; second < kDaySeconds; ++second) {
            const double begin = Now();
            Feed(graph, second, values);
            feeds.Take(second, begin, Now());
        }
    }
    Stage stage(kWidth, kHeight);
    CScrollGraphCtrl graph;
    MakeLive(graph, stage);
    CWnd* const bar = graph.GetDlgItem(kScrollBar);
    const auto repaint = [&] {
        graph.RedrawData();
        graph.UpdateWindow();
    };
    const auto step = [&](int second) {
        const double begin = Now();
        Feed(graph, second, values);
        repaint();
        return Now() - begin;
    };
    bar->ShowWindow(SW_HIDE);
    std::vector<double> steps;
    int over = 0;
    int overAgain = 0;
    for (int second = 0; second < kDaySeconds; ++second) {
        steps.push_back(step(second));
        if (steps.back() > kLimit) {
            // Paint the same picture again, to tell a slow picture from an interruption.
            ++over;
            std::vector<double> again = Time(kLoads, 0, repaint);
            overAgain += Quantile(again, 0) > kLimit;
        }
        constexpr int kOften = 100;
        if (second % kOften == 0)
            Pump();
    }
    bar->ShowWindow(SW_SHOW);
    std::vector<double> withBar;
    for (int i = 0; i < kWithBar; ++i) {
        withBar.push_back(step(kDaySeconds + i));
        Pump();
    }
    const auto toMilliseconds = [](double microseconds) {
        return microseconds / kMicrosecondsPerMillisecond;
    };
    row.Add("worst_feed_ms", toMilliseconds(feeds.At(1)))
        .Add("median_ms", toMilliseconds(Quantile(steps, kMedian)))
        .Add("slow_ms", toMilliseconds(Quantile(steps, 0.999)))
        .Add("worst_ms", toMilliseconds(Quantile(steps, 1)))
        .Add("over_20_ms", over)
        .Add("over_20_ms_again", overAgain)
        .Add("with_bar_median_ms", toMilliseconds(Quantile(withBar, kMedian)))
        .Print();
}

} // namespace bench

// SPDX-License-Identifier: MIT
// A day of live readings: a sample a second for each of 13 datasets, of which the last hour is kept.

#include "bench/Common.h"

#include <kavlix/ScrollGraphCtrl.h>

#include <cmath>

namespace bench {

namespace {

constexpr int kSecondsPerHour = 3600;
constexpr int kHours = 24;
constexpr int kKept = kSecondsPerHour;
constexpr int kRemovedAtOnce = 60;
constexpr int kStepsPerPaint = 5;
constexpr long kStart = 1700000000;
constexpr double kTwoPi = 6.283185307179586;

double Reading(int dataset, int second) {
    constexpr double middle = 50;
    constexpr double swing = 40;
    constexpr double period = 300; // seconds
    return middle + swing * std::sin(kTwoPi * second / period + dataset);
}

/// The times, in microseconds, of steps on a graph that holds a million samples. A step adds a time stamp and
/// a sample per dataset and paints nothing. The view follows the newest sample, and the scroll bar does not
/// change.
class LiveSteps {
public:
    explicit LiveSteps(CScrollGraphCtrl& graph) : m_graph(graph) {
        m_graph.InitData();
        for (; m_second < kHeld; ++m_second) {
            m_graph.AddXTickLabel(kStart + m_second);
            for (int dataset = 0; dataset < CGraphCtrl::DatasetCount; ++dataset)
                m_graph.AddDataForOffline(dataset, m_second, nullptr);
        }
        m_graph.SetHorzRange(1);
        Pump();
    }
    double Step() {
        constexpr int kSteps = 100;
        const double begin = Now();
        for (const int end = m_second + kSteps; m_second < end; ++m_second) {
            m_graph.AddXTickLabel(kStart + m_second);
            for (int dataset = 0; dataset < CGraphCtrl::DatasetCount; ++dataset)
                m_graph.AddData(dataset, m_second, nullptr);
        }
        return (Now() - begin) / kSteps;
    }

private:
    static constexpr int kHeld = 1000000;
    CScrollGraphCtrl& m_graph;
    int m_second = 0;
};

} // namespace

void ScrollLive() {
    Stage stage(800, 400);
    CScrollGraphCtrl shown;
    shown.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 800, 400), &stage, 1);
    CScrollGraphCtrl bound; // bound to an existing window, so without scroll bar
    bound.SubclassWindow(::CreateWindowEx(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 800, 400,
                                          stage.m_hWnd, nullptr, nullptr, nullptr));
    LiveSteps with(shown);
    LiveSteps without(bound);
    std::vector<double> withBar;
    std::vector<double> withoutBar;
    for (int round = 0; round < 20; ++round) {
        withBar.push_back(with.Step());
        withoutBar.push_back(without.Step());
    }
    const double bar = Quantile(withBar, kMedian);
    const double none = Quantile(withoutBar, kMedian);
    Row("scroll_live").Add("with_bar_us", bar).Add("without_us", none).Add("ratio", bar / none).Print();
    shown.DestroyWindow();
    bound.DestroyWindow();
}

void ScrollReplay() {
    Stage stage(800, 400);
    CScrollGraphCtrl graph;
    graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 800, 400), &stage, 1);
    graph.InitData();
    graph.SetHorzRange(1);
    for (int i = 0; i < CGraphCtrl::DatasetCount; ++i)
        graph.SetLegend(i, "reading");

    double firstStep = 0;
    double firstPaint = 0;
    Holdings first = {};
    for (int hour = 0; hour < kHours; ++hour) {
        std::vector<double> steps;
        std::vector<double> paints;
        double total = 0;
        for (int i = 0; i < kSecondsPerHour; ++i) {
            const int second = hour * kSecondsPerHour + i;
            const double begin = Now();
            graph.AddXTickLabel(kStart + second);
            for (int dataset = 0; dataset < CGraphCtrl::DatasetCount; ++dataset)
                graph.AddData(dataset, Reading(dataset, second), nullptr);
            if (graph.GetCurDataIndex() >= kKept + kRemovedAtOnce)
                graph.RemoveHeadData(kRemovedAtOnce);
            graph.RedrawData();
            const double fed = Now();
            steps.push_back(fed - begin);
            if (second % kStepsPerPaint == 0) {
                graph.UpdateWindow();
                paints.push_back(Now() - fed);
            }
            total += Now() - begin;
        }
        Pump();
        const double step = Quantile(steps, kTenth);
        const double paint = Quantile(paints, kTenth);
        const Holdings now = Count();
        if (hour == 0) {
            firstStep = step;
            firstPaint = paint;
            first = now;
        }
        constexpr double perSecond = 1e6;
        Row("scroll_replay")
            .Add("hour", hour + 1)
            .Add("step_us", Quantile(steps, kMedian))
            .Add("step_tenth_us", step)
            .Add("step_ratio", step / firstStep)
            .Add("paint_us", Quantile(paints, kMedian))
            .Add("paint_tenth_us", paint)
            .Add("paint_ratio", paint / firstPaint)
            .Add("hour_s", total / perSecond)
            .Add("samples", graph.GetCurDataIndex())
            .Add("holds", now)
            .Print();
    }
    Row("scroll_replay_holdings").Add("first", first).Add("last", Count()).Print();
    graph.DestroyWindow();
}

} // namespace bench

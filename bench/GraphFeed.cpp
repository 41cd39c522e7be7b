// SPDX-License-Identifier: MIT
// Adding and removing samples: in 13 datasets directly, and through the control.

#include "bench/GraphSeries.h"

#include <psapi.h>

#include <memory>

namespace bench {

namespace {

constexpr int kStored = 1000000;
constexpr int kRuns = 9;
constexpr int kBatch = 1000000;
constexpr int kTimedSteps = 300000;
constexpr double kIdle = 50000; // microseconds

using Datasets = std::unique_ptr<CDataset[]>;

std::vector<std::vector<double>> Sources() {
    std::vector<std::vector<double>> sources;
    for (int i = 0; i < kSeries; ++i)
        sources.push_back(WalkValues(i, kStored));
    return sources;
}

/// The rate of `add(series, value)` in samples per second; the function is called for each index in turn.
template <class Add> double Rate(const std::vector<std::vector<double>>& sources, Add add) {
    const double begin = Now();
    for (std::size_t k = 0; k < kStored; ++k)
        for (int i = 0; i < kSeries; ++i)
            add(i, sources[static_cast<std::size_t>(i)][k]);
    return static_cast<double>(kStored) * kSeries * kMicrosecondsPerSecond / (Now() - begin);
}

} // namespace

double UsedBytes() {
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof(memory);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof(memory));
    return static_cast<double>(memory.WorkingSetSize);
}

void GraphAppend() {
    const auto sources = Sources();
    std::vector<double> atDatasets;
    std::vector<double> throughControl;
    double bytes = 0;
    for (int run = 0; run < kRuns; ++run) {
        Datasets datasets = std::make_unique<CDataset[]>(kSeries);
        const double before = UsedBytes();
        atDatasets.push_back(Rate(
            sources, [&](int i, double y) { datasets[static_cast<std::size_t>(i)].AddData(y, nullptr); }));
        if (run == 0)
            bytes = (UsedBytes() - before) / (static_cast<double>(kStored) * kSeries);
    }
    for (int run = 0; run < kRuns; ++run) {
        CGraphCtrl graph;
        throughControl.push_back(Rate(sources, [&](int i, double y) { graph.AddData(i, y, nullptr); }));
    }
    Row datasetRow("graph_append_dataset");
    AddSpread(datasetRow, "samples_per_s", atDatasets).Add("bytes_per_sample", bytes).Print();
    Row controlRow("graph_append_control");
    AddSpread(controlRow, "samples_per_s", throughControl).Print();
}

void GraphSteady() {
    Datasets datasets = std::make_unique<CDataset[]>(kSeries);
    for (int i = 0; i < kSeries; ++i)
        WalkSeries(
            i, kStored, [&](int, double y) { datasets[static_cast<std::size_t>(i)].AddData(y, nullptr); });
    const auto step = [&](double y) {
        for (int i = 0; i < kSeries; ++i) {
            CDataset& dataset = datasets[static_cast<std::size_t>(i)];
            dataset.AddYData(y);
            dataset.RemoveYData(0, 1);
        }
    };
    std::vector<double> rates;
    for (int run = 0; run < kRuns; ++run) {
        const double begin = Now();
        for (int k = 0; k < kBatch; ++k)
            step(k);
        rates.push_back(kBatch * kMicrosecondsPerSecond / (Now() - begin));
    }
    // The longest step. For comparison the longest pause of a loop that does nothing, since the system
    // interrupts every program from time to time.
    std::vector<double> longest;
    std::vector<double> pauses;
    for (int run = 0; run < kRuns; ++run) {
        double worst = 0;
        double before = Now();
        for (int k = 0; k < kTimedSteps; ++k) {
            step(k);
            const double now = Now();
            worst = std::max(worst, now - before);
            before = now;
        }
        longest.push_back(worst / kMicrosecondsPerMillisecond);
        double pause = 0;
        const double end = before + kIdle;
        while (before < end) {
            const double now = Now();
            pause = std::max(pause, now - before);
            before = now;
        }
        pauses.push_back(pause / kMicrosecondsPerMillisecond);
    }
    Row row("graph_steady");
    row.Add("stored", datasets[0].GetSize());
    AddSpread(row, "steps_per_s", rates)
        .Add("worst_step_ms", Quantile(longest, 1.0))
        .Add("median_worst_step_ms", Quantile(longest, kMedian))
        .Add("least_worst_step_ms", Quantile(longest, 0.0))
        .Add("worst_pause_of_nothing_ms", Quantile(pauses, 1.0))
        .Add("median_pause_of_nothing_ms", Quantile(pauses, kMedian))
        .Print();
}

} // namespace bench

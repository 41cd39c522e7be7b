// SPDX-License-Identifier: MIT
// What the rows about the graph control share: series, picture size, and the lines of times.
#pragma once

#include "bench/Common.h"
#include "bench/Picture.h"

#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

/// The series, picture sizes and figures are those of the programs that bench/run --peers compares with.
namespace bench {

constexpr int kSeries = CGraphCtrl::DatasetCount;
constexpr int kWidth = 1000;
constexpr int kHeight = 600;
constexpr int kGroups = 50;
constexpr double kYMin = -3;
constexpr double kYMax = 3;
constexpr double kMicrosecondsPerMillisecond = 1e3;
constexpr double kMicrosecondsPerSecond = 1e6;

/// Random numbers from -1 to 1, the same on every machine (splitmix64).
class Randoms {
public:
    explicit Randoms(std::uint64_t seed) : m_state(seed) {}
    double Next() { return static_cast<double>(NextBits() >> 11) * (1.0 / 9007199254740992.0) * 2.0 - 1.0; }
    std::uint64_t NextBits() {
        std::uint64_t z = (m_state += 0x9E3779B97F4A7C15u);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

private:
    std::uint64_t m_state;
};

/// Calls `take(i, value)` for each of `count` samples of a noisy random walk, whose picture looks similar for
/// every count.
template <class Take> void WalkSeries(int series, int count, Take take) {
    Randoms randoms(1234567u + 7919u * static_cast<unsigned>(series));
    const double step = 1.2 / std::sqrt(static_cast<double>(count));
    constexpr double noise = 0.12;
    double walk = -1.2 + 0.2 * series;
    for (int i = 0; i < count; ++i) {
        walk += step * randoms.Next();
        take(i, walk + noise * randoms.Next());
    }
}

inline std::vector<double> WalkValues(int series, int count) {
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(count));
    WalkSeries(series, count, [&](int, double value) { values.push_back(value); });
    return values;
}

/// The times of `times` calls of `work` in microseconds. `warm` calls before them are not measured.
template <class Work> std::vector<double> Time(int times, int warm, Work work) {
    for (int i = 0; i < warm; ++i)
        work();
    std::vector<double> taken;
    for (int i = 0; i < times; ++i) {
        const double begin = Now();
        work();
        taken.push_back(Now() - begin);
    }
    return taken;
}

/// Adds the median, the smallest and the largest of the values, and their number, to `row`.
inline Row& AddSpread(Row& row, const std::string& unit, std::vector<double> values) {
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    const double least = *low;
    const double most = *high;
    return row.Add("median_" + unit, Quantile(values, kMedian))
        .Add("min_" + unit, least)
        .Add("max_" + unit, most)
        .Add("repeats", static_cast<int>(values.size()));
}

/// The measured control in a visible window: 13 series with legend rows and colours.
class GraphStage {
public:
    GraphStage();

    CGraphCtrl& Graph() { return m_graph; }
    /// Paints the whole control into a picture in memory, without the window system.
    void PaintIntoMemory() { m_picture.Take(m_graph); }
    /// Fills all series with `count` samples, with a tick label for each index.
    void Fill(int count);
    /// Makes the control a bar graph of `groups` groups.
    void FillBars(int groups);

private:
    Stage m_stage;
    CGraphCtrl m_graph;
    Picture m_picture;
};

/// The height of a bar, 0.1 to 1.
double BarValue(int series, int group);

/// The working set of this process in bytes.
double UsedBytes();

} // namespace bench

// SPDX-License-Identifier: MIT
// Finds a series' value in the rows beside a row of another file.

#include "monitor/recording/JoinedSamples.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "monitor/recording/NearestPoint.h"

namespace kavlix::recording {
namespace {

/// Rows searched on either side for a value. With more rows of other files between, the value is not found.
constexpr std::size_t kReach = 1000;

/// Rows at the recording's end that LastFullRow compares.
constexpr std::size_t kLastRows = 100;

} // namespace

std::size_t SampleBeside(const Recording& recording, const VisibleRange& visible, std::size_t series,
                         std::size_t sample) {
    const std::size_t file = recording.series[series].file;
    if (recording.files.size() < 2 || file >= recording.files.size())
        return sample;
    const double* const values = recording.series[series].values.data() + visible.first;
    const auto beside =
        NearestValue(values, visible.last - visible.first + 1, sample - visible.first, kReach);
    if (!beside)
        return sample;
    const std::size_t found = visible.first + *beside;
    const Time away = std::abs(recording.times[found] - recording.times[sample]);
    return away < recording.files[file].interval ? found : sample;
}

std::vector<double> ValuesAt(const Recording& recording, std::size_t row) {
    const VisibleRange all{0, recording.times.size() - 1};
    std::vector<double> values;
    for (std::size_t i = 0; i < recording.series.size(); ++i)
        values.push_back(recording.series[i].values[SampleBeside(recording, all, i, row)]);
    return values;
}

std::size_t LastFullRow(const Recording& recording) {
    const std::size_t count = recording.times.size();
    std::size_t best = count == 0 ? 0 : count - 1;
    std::size_t most = 0;
    for (std::size_t i = 0; i < kLastRows && i < count && most < recording.series.size(); ++i) {
        const std::vector<double> values = ValuesAt(recording, count - 1 - i);
        const auto known = static_cast<std::size_t>(
            std::count_if(values.begin(), values.end(), [](double value) { return std::isfinite(value); }));
        if (known > most) {
            most = known;
            best = count - 1 - i;
        }
        if (recording.files.size() < 2)
            break;
    }
    return best;
}

} // namespace kavlix::recording

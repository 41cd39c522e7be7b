// SPDX-License-Identifier: MIT
// Questions about a whole recording, and spans of values.

#include "monitor/recording/Recording.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace kavlix::recording {

bool Recording::Empty() const {
    return std::none_of(
        series.begin(), series.end(),
        [](const Series& one) {
            return std::any_of(
                one.values.begin(), one.values.end(), [](double value) { return !std::isnan(value); });
        });
}

std::uint64_t Recording::RowsLeftOut() const {
    std::uint64_t count = 0;
    for (const FileSummary& file : files)
        count += file.rowsLeftOut;
    return count;
}

Status Recording::GetStatus() const {
    if (Empty())
        return Status::Nothing;
    const bool anyLeftOut = std::any_of(files.begin(), files.end(), [](const FileSummary& file) {
        return file.leftOut || file.rowsLeftOut > 0;
    });
    return anyLeftOut || cancelled ? Status::LeftOut : Status::Fine;
}

bool Recording::Zoned() const {
    return std::any_of(
        files.begin(), files.end(), [](const FileSummary& file) { return file.zoned; });
}

Recording WithoutHead(const Recording& source, std::size_t count) {
    count = std::min(count, source.times.empty() ? 0 : source.times.size() - 1);
    const auto rest = [count](const auto& all) {
        using Column = std::decay_t<decltype(all)>;
        return Column(all.begin() + static_cast<std::ptrdiff_t>(std::min(count, all.size())), all.end());
    };
    Recording left;
    left.times = rest(source.times);
    for (const Series& series : source.series)
        left.series.push_back({series.name, series.file, rest(series.values)});
    for (const std::vector<bool>& rows : source.rowsOf)
        left.rowsOf.push_back(rest(rows));
    left.files = source.files;
    left.cancelled = source.cancelled;
    left.removed = source.removed + count;
    return left;
}

void ValueSpan::Take(double value) {
    if (!std::isfinite(value))
        return;
    min = any ? std::min(min, value) : value;
    max = any ? std::max(max, value) : value;
    any = true;
}

void ValueSpan::Take(const ValueSpan& other) {
    if (other.any) {
        Take(other.min);
        Take(other.max);
    }
}

ValueSpan SpanOf(const std::vector<double>& values, std::size_t first, std::size_t count) {
    ValueSpan span;
    const std::size_t begin = std::min(first, values.size());
    const std::size_t end = begin + std::min(count, values.size() - begin);
    for (std::size_t i = begin; i < end; ++i)
        span.Take(values[i]);
    return span;
}

Time MedianInterval(const std::vector<Time>& times) {
    if (times.size() < 2)
        return 0;
    std::vector<Time> distances(times.size() - 1);
    for (std::size_t i = 0; i < distances.size(); ++i)
        distances[i] = times[i + 1] - times[i];
    const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    return *middle;
}

} // namespace kavlix::recording

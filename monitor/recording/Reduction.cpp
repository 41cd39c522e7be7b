// SPDX-License-Identifier: MIT
// Replaces runs of samples by their lowest and highest value, or by their mean.

#include "monitor/recording/Reduction.h"

#include <algorithm>
#include <cmath>

namespace kavlix::recording {
namespace {

/// Samples from `begin` to `end`, `end` excluded.
struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;

    std::size_t Size() const { return end - begin; }
};

Span Cut(const Recording& source, VisibleRange range) {
    const std::size_t end = std::min(range.last, source.times.size() - 1) + 1;
    return {std::min(range.first, end), end};
}

ShownSamples Begin(const Recording& source, std::size_t samplesEach) {
    ShownSamples shown;
    shown.samplesEach = samplesEach;
    shown.recording.files.resize(source.files.size());
    for (std::size_t i = 0; i < source.files.size(); ++i) {
        shown.recording.files[i].path = source.files[i].path;
        shown.recording.files[i].zoned = source.files[i].zoned;
    }
    for (const Series& series : source.series)
        shown.recording.series.push_back({series.name, series.file, {}});
    return shown;
}

std::vector<double> Part(const std::vector<double>& values, Span span) {
    const auto begin = values.begin() + static_cast<std::ptrdiff_t>(span.begin);
    return std::vector<double>(begin, begin + static_cast<std::ptrdiff_t>(span.Size()));
}

/// The values of a series in `span`. In joined files, rows of other files get values on the straight line
/// between the series' own values, as ReduceForLines describes.
std::vector<double> Connected(const Recording& source, const Series& series, Span span) {
    std::vector<double> values = Part(series.values, span);
    if (source.files.size() < 2 || series.file >= source.files.size())
        return values;
    const Time farthest = LongestStep(source.files[series.file].interval);
    const Time* const times = source.times.data() + span.begin;
    std::size_t last = values.size();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (std::isnan(values[i]))
            continue;
        if (last < i && times[i] > times[last] && times[i] - times[last] <= farthest) {
            const double whole = static_cast<double>(times[i] - times[last]);
            for (std::size_t between = last + 1; between < i; ++between) {
                const double share = static_cast<double>(times[between] - times[last]) / whole;
                values[between] = values[last] * (1 - share) + values[i] * share;
            }
        }
        last = i;
    }
    return values;
}

std::vector<Time> TimesOf(const Recording& source, Span span) {
    const auto begin = source.times.begin() + static_cast<std::ptrdiff_t>(span.begin);
    return std::vector<Time>(begin, begin + static_cast<std::ptrdiff_t>(span.Size()));
}

std::size_t DivideUp(std::size_t value, std::size_t divisor) {
    return (value + divisor - 1) / divisor;
}

void AddLowestAndHighest(const std::vector<double>& values, Span run, std::vector<double>& out) {
    std::size_t lowest = run.end;
    std::size_t highest = run.end;
    for (std::size_t i = run.begin; i < run.end; ++i) {
        if (std::isnan(values[i]))
            continue;
        if (lowest == run.end || values[i] < values[lowest])
            lowest = i;
        if (highest == run.end || values[i] > values[highest])
            highest = i;
    }
    if (lowest == run.end) {
        out.insert(out.end(), 2, kNoValue);
        return;
    }
    out.push_back(values[std::min(lowest, highest)]);
    out.push_back(values[std::max(lowest, highest)]);
}

double Mean(const std::vector<double>& values, Span run) {
    double mean = 0;
    std::size_t count = 0;
    for (std::size_t i = run.begin; i < run.end; ++i) {
        if (std::isnan(values[i]))
            continue;
        ++count;
        // Running mean: the sum of the values may exceed the range of a double.
        const double n = static_cast<double>(count);
        mean = mean * ((n - 1) / n) + values[i] / n;
    }
    return count == 0 ? kNoValue : mean;
}

/// The second shown sample of a run gets the time of one of the run's samples. Returns the position of that
/// sample within the run.
std::size_t SecondOf(std::size_t runSize) {
    return runSize / 2;
}

} // namespace

std::size_t ShownSamples::SampleOf(std::size_t shown, std::size_t count) const {
    const std::size_t run = RunOf(shown);
    const std::size_t runSize = std::min(samplesEach, count - std::min(run, count));
    return run + (shown % pointsEach == 0 ? 0 : SecondOf(runSize));
}

std::size_t ShownSamples::ShownFor(std::size_t sample, std::size_t count) const {
    const std::size_t run = sample / samplesEach * samplesEach;
    const std::size_t first = sample / samplesEach * pointsEach;
    const std::size_t second = SecondOf(std::min(samplesEach, count - std::min(run, count)));
    return pointsEach > 1 && second > 0 && sample - run >= second ? first + 1 : first;
}

ShownSamples ReduceForLines(const Recording& source, VisibleRange range, std::size_t limit) {
    if (source.times.empty())
        return Begin(source, 1);
    const Span span = Cut(source, range);
    if (span.Size() <= std::max<std::size_t>(limit, 2)) {
        ShownSamples shown = Begin(source, 1);
        shown.recording.times = TimesOf(source, span);
        for (std::size_t i = 0; i < source.series.size(); ++i)
            shown.recording.series[i].values = Connected(source, source.series[i], span);
        return shown;
    }

    const std::size_t runs = std::max<std::size_t>(limit / 2, 1);
    const std::size_t each = DivideUp(span.Size(), runs);
    ShownSamples shown = Begin(source, each);
    shown.pointsEach = 2;
    for (std::size_t begin = span.begin; begin < span.end; begin += each) {
        const Span run{begin, std::min(begin + each, span.end)};
        shown.recording.times.push_back(source.times[run.begin]);
        shown.recording.times.push_back(source.times[run.begin + SecondOf(run.Size())]);
    }
    for (std::size_t i = 0; i < source.series.size(); ++i) {
        const std::vector<double> values = Connected(source, source.series[i], span);
        for (std::size_t begin = 0; begin < values.size(); begin += each)
            AddLowestAndHighest(values, {begin, std::min(begin + each, values.size())},
                                shown.recording.series[i].values);
    }
    return shown;
}

ShownSamples ReduceForBars(const Recording& source, VisibleRange range, std::size_t limit) {
    if (source.times.empty())
        return Begin(source, 1);
    const Span span = Cut(source, range);
    const std::size_t each = std::max<std::size_t>(DivideUp(span.Size(), std::max<std::size_t>(limit, 1)), 1);
    ShownSamples shown = Begin(source, each);
    if (each == 1) {
        shown.recording.times = TimesOf(source, span);
        for (std::size_t i = 0; i < source.series.size(); ++i)
            shown.recording.series[i].values = Part(source.series[i].values, span);
        return shown;
    }
    for (std::size_t begin = span.begin; begin < span.end; begin += each) {
        const Span run{begin, std::min(begin + each, span.end)};
        shown.recording.times.push_back(source.times[run.begin]);
        for (std::size_t i = 0; i < source.series.size(); ++i)
            shown.recording.series[i].values.push_back(Mean(source.series[i].values, run));
    }
    return shown;
}

} // namespace kavlix::recording

// SPDX-License-Identifier: MIT
// Chooses the periods of a recording and computes their statistics.

#include "monitor/recording/Periods.h"

#include <algorithm>
#include <cmath>

namespace kavlix::recording {
namespace {

constexpr Time kMinute = kMicrosPerMinute;
constexpr Time kHour = kMicrosPerHour;
constexpr Time kDay = kMicrosPerDay;
constexpr Time kWeek = 7 * kDay;
constexpr Time kLengths[] = {5 * kMicrosPerSecond,
                             15 * kMicrosPerSecond,
                             kMinute,
                             5 * kMinute,
                             15 * kMinute,
                             kHour,
                             3 * kHour,
                             6 * kHour,
                             12 * kHour,
                             kDay,
                             kWeek,
                             4 * kWeek,
                             12 * kWeek};

/// Where the period begins that holds `time`. Periods are counted from a Monday, so that weeks begin
/// on Mondays.
Time BeginOfPeriod(Time time, Time length) {
    static const Time monday = FromCivil({1970, 1, 5, 0, 0, 0, 0});
    return monday + FloorTo(time - monday, length);
}

} // namespace

Periods::Periods(const std::vector<Time>& times) {
    if (times.empty())
        return;
    const auto fits = [&](Time length) {
        m_length = length;
        m_first = BeginOfPeriod(times.front(), length);
        m_count = static_cast<std::size_t>((times.back() - m_first) / length) + 1;
        return m_count <= kMost;
    };
    for (const Time length : kLengths)
        if (fits(length))
            return;
    for (Time length = 2 * kLengths[std::size(kLengths) - 1]; !fits(length); length *= 2)
        ;
}

std::string Periods::Label(std::size_t period) const {
    // Positions behind the year, month, day and minute in `YYYY-MM-DD HH:MM:SS`.
    constexpr std::size_t year = 4, month = 7, day = 10, minute = 16;
    const std::string text = FormatDateTime(Begin(period), TimePrecision::Seconds);
    if (m_length < kMinute)
        return text.substr(day + 1);
    if (m_length < 3 * kHour)
        return text.substr(day + 1, minute - day - 1);
    if (m_length < kDay)
        return text.substr(year + 1, minute - year - 1);
    if (m_length <= 4 * kWeek)
        return text.substr(year + 1, day - year - 1);
    return text.substr(0, month);
}

std::string Periods::LengthText() const {
    const std::pair<Time, const char*> units[] = {
        {kWeek, "week"}, {kDay, "day"}, {kHour, "hour"}, {kMinute, "minute"}, {kMicrosPerSecond, "second"}};
    for (const auto& [length, name] : units) {
        if (m_length < length)
            continue;
        const Time count = m_length / length;
        return count == 1 ? std::string(name) : std::to_string(count) + " " + name + "s";
    }
    return "moment";
}

PeriodStatistics StatisticsOf(const Recording& recording, std::size_t series, const Periods& periods) {
    const std::size_t count = periods.Count();
    PeriodStatistics found{std::vector<double>(count, kNoValue), std::vector<double>(count, kNoValue),
                           std::vector<double>(count, kNoValue)};
    std::vector<double> counts(count, 0);
    const std::vector<double>& values = recording.series[series].values;
    for (std::size_t row = 0; row < values.size(); ++row) {
        if (!std::isfinite(values[row]))
            continue;
        const std::size_t period = periods.Of(recording.times[row]);
        const double n = ++counts[period];
        if (n == 1) {
            found.lowest[period] = found.mean[period] = found.highest[period] = values[row];
            continue;
        }
        found.lowest[period] = std::min(found.lowest[period], values[row]);
        found.highest[period] = std::max(found.highest[period], values[row]);
        // Running mean: the sum of the values may exceed the range of a double.
        double& mean = found.mean[period];
        mean = mean * ((n - 1) / n) + values[row] / n;
    }
    return found;
}

std::vector<double> RankedOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    if (values.size() <= kMostRanked)
        return values;
    std::vector<double> some;
    for (std::size_t i = 0; i < kMostRanked; ++i)
        some.push_back(values[i * (values.size() - 1) / (kMostRanked - 1)]);
    return some;
}

std::vector<std::vector<double>> RankedValues(const Recording& recording, std::size_t series,
                                              const Periods& periods) {
    std::vector<std::vector<double>> ranked(periods.Count());
    const std::vector<double>& values = recording.series[series].values;
    for (std::size_t row = 0; row < values.size(); ++row)
        if (std::isfinite(values[row]))
            ranked[periods.Of(recording.times[row])].push_back(values[row]);
    for (std::vector<double>& all : ranked)
        all = RankedOf(std::move(all));
    return ranked;
}

} // namespace kavlix::recording

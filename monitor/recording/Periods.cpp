#include "monitor/recording/Periods.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <limits>

namespace kavlix::recording {

namespace {

constexpr Time kMinute = kMicrosPerMinute;
constexpr Time kHour = 60 * kMinute;
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
constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

// Units on an axis.
constexpr double kFewestUnits = 100;  // between lowest and highest
constexpr double kMostUnits = 9999;   // of the highest, if that leaves enough
constexpr double kLargest = 99999999; // of the highest, in any case
constexpr int kLargestPower = 300;    // of ten, so that it is a number, and its inverse, too
constexpr double kWantedTicks = 7;

Time FloorTo(Time time, Time length) {
    // A Monday, so that weeks begin with it.
    static const Time origin = FromCivil({1970, 1, 5, 0, 0, 0, 0});
    const Time since = time - origin;
    return time - ((since % length) + length) % length;
}

/// The round number at or above.
double RoundStep(double least) {
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= least)
            return factor * power;
    return 10 * power;
}

} // namespace

Periods::Periods(const std::vector<Time>& times) {
    if (times.empty())
        return;
    const auto fits = [&](Time length) {
        m_length = length;
        m_first = FloorTo(times.front(), length);
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
    PeriodStatistics found{std::vector<double>(count, kNothing), std::vector<double>(count, kNothing),
                           std::vector<double>(count, kNothing)};
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
        // In halves of what may be the largest numbers.
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

int WholeScale::ToWhole(double value) const {
    return static_cast<int>(std::lround(std::clamp(value * factor, -1e9, 1e9)));
}

std::string WholeScale::UnitText() const {
    if (factor == 1)
        return {};
    char text[48];
    std::snprintf(text, sizeof text, " (x %.10g)", 1 / factor);
    return text;
}

WholeScale ChooseWholeScale(const ValueSpan& values, bool fromZero) {
    WholeScale scale;
    const double low = fromZero ? std::min(values.min, 0.0) : values.min;
    const double high = fromZero ? std::max(values.max, 0.0) : values.max;
    const double largest = std::max(std::abs(low), std::abs(high));
    if (!values.any || largest == 0)
        return scale;
    // Of a single value the distance from 0 counts.
    const double range = high > low ? high / 2 - low / 2 : largest / 2;
    const auto units = [](double value, int power) { return value * std::pow(10, power); };
    int power = 0;
    while (power < kLargestPower && 2 * units(range, power) < kFewestUnits)
        ++power;
    while (power > -kLargestPower - 10 && units(largest, power) > kMostUnits &&
           (2 * units(range, power - 1) >= kFewestUnits || units(largest, power) > kLargest))
        --power;
    scale.factor = std::pow(10, power);
    const double bottom = low * scale.factor;
    const double top = high * scale.factor;
    const double step = std::max(1.0, RoundStep(std::max(top - bottom, 1.0) / kWantedTicks));
    scale.step = static_cast<int>(step);
    scale.min = static_cast<int>(std::floor(bottom / step) * step);
    scale.max = static_cast<int>(std::ceil(top / step) * step);
    if (scale.min == scale.max)
        scale.max += scale.step;
    return scale;
}

} // namespace kavlix::recording

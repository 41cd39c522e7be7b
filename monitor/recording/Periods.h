// SPDX-License-Identifier: MIT
// Equal periods of a recording's time, and statistics of the values in each period.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// A recording's time, divided into equal periods that begin at round times. There is at least one period,
/// even without times.
class Periods {
public:
    /// Largest Count(): a picture cannot show more periods legibly.
    static constexpr std::size_t kMost = 16;

    explicit Periods(const std::vector<Time>& times);

    std::size_t Count() const { return m_count; }
    Time Length() const { return m_length; }

    /// Index of the period that holds `time`, which must lie within the recording.
    std::size_t Of(Time time) const { return static_cast<std::size_t>((time - m_first) / m_length); }
    Time Begin(std::size_t period) const { return m_first + static_cast<Time>(period) * m_length; }

    /// A short name: the time, the day or the month in which the period begins.
    std::string Label(std::size_t period) const;

    /// The length in words: `5 minutes`, `day`, `3 weeks`.
    std::string LengthText() const;

private:
    Time m_first = 0;
    Time m_length = 1;
    std::size_t m_count = 1;
};

/// Lowest value, mean and highest value of each period; NaN for a period without values.
struct PeriodStatistics {
    std::vector<double> lowest;
    std::vector<double> mean;
    std::vector<double> highest;
};
PeriodStatistics StatisticsOf(const Recording& recording, std::size_t series, const Periods& periods);

/// The values in ascending order. Of more than kMostRanked values: the lowest, the highest, and others at
/// about equal distances in rank.
std::vector<double> RankedOf(std::vector<double> values);
inline constexpr std::size_t kMostRanked = 401;

/// For each period, RankedOf the series' values in that period.
std::vector<std::vector<double>> RankedValues(const Recording& recording, std::size_t series,
                                              const Periods& periods);

} // namespace kavlix::recording

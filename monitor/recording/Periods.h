#pragma once

#include "monitor/recording/Recording.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kavlix::recording {

/// A recording's time divided into equal parts that begin at round times.
class Periods {
public:
    /// As many as make a picture that can be read: at most kMost. At least one, even of nothing.
    static constexpr std::size_t kMost = 16;
    explicit Periods(const std::vector<Time>& times);

    std::size_t Count() const { return m_count; }
    Time Length() const { return m_length; }
    /// The period of a time between the recording's first and last.
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

/// Lowest and highest value and mean of each period; NaN where there is none.
struct PeriodStatistics {
    std::vector<double> lowest;
    std::vector<double> mean;
    std::vector<double> highest;
};
PeriodStatistics StatisticsOf(const Recording& recording, std::size_t series, const Periods& periods);

/// Of values, ascending, the lowest, the highest and others evenly spread between them in rank: all of them,
/// or kMostRanked.
inline constexpr std::size_t kMostRanked = 401;
std::vector<double> RankedOf(std::vector<double> values);

/// RankedOf a series' values in each period.
std::vector<std::vector<double>> RankedValues(const Recording& recording, std::size_t series,
                                              const Periods& periods);

/// How numbers become whole numbers for an axis.
struct WholeScale {
    double factor = 1; ///< a power of ten
    int min = 0;       ///< round numbers around all values, and the step between ticks
    int max = 10;
    int step = 2;

    /// A value in whole units; saturated. Not for NaN.
    int ToWhole(double value) const;
    /// What one unit stands for: empty for 1, ` (x 0.01)`.
    std::string UnitText() const;
};

/// Chooses the power of ten nearest to 1 with which the values differ by enough units to be told apart and
/// have few digits.
/// @param fromZero the axis shows 0 whatever the values are
WholeScale ChooseWholeScale(const ValueSpan& values, bool fromZero);

} // namespace kavlix::recording

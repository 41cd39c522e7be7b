#pragma once

#include "monitor/recording/Recording.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kavlix::recording {

/// What a series is drawn against.
enum class PairKind {
    Series,      ///< another series
    Predecessor, ///< the value before, of the same series
    Time
};

struct PairChoice {
    PairKind kind = PairKind::Series;
    std::size_t x = 0; ///< index of the series along X; meaningless but for PairKind::Series
    std::size_t y = 0;

    bool operator==(const PairChoice& other) const;
};

/// A sample as a point.
struct PairedPoint {
    std::size_t row = 0;
    double x = 0; ///< NaN, or y is: a gap
    double y = 0;
};

/// The points of a choice, in the order of time. Along X, times count from the recording's first in units of
/// TimeUnitOf. A row in which a value lacks is a gap. Rows of files that were joined hold the values of one
/// of them only: there the series along X tells the rows, the other's value is the one beside the row, if
/// that is nearer than its file's rows are apart, and what lacks for longer than 1.5 times that is a gap.
std::vector<PairedPoint> PairSeries(const Recording& recording, const PairChoice& choice);

/// Of these series (indices) the first against the second; a single one against its predecessor.
PairChoice DefaultPair(const std::vector<std::size_t>& series);

/// The unit in which a span of time is told in numbers of people's size.
struct TimeUnit {
    Time length = 1;
    const char* name = ""; ///< `seconds`, `minutes`, `hours` or `days`
};
TimeUnit TimeUnitOf(Time span);

} // namespace kavlix::recording

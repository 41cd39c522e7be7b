// SPDX-License-Identifier: MIT
// What was read: the times and series of joined files, and a summary of each file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "monitor/recording/Messages.h"
#include "monitor/recording/TimeText.h"

namespace kavlix::recording {

/// The most series of a recording: the graph control has that number of datasets.
inline constexpr std::size_t kMaxSeries = 13;

/// Stands in a series where there is no value: a gap.
inline constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

/// One series of a recording.
struct Series {
    std::string name;           ///< UTF-8, distinct within the recording, never empty
    std::size_t file = 0;       ///< index of its file in Recording::files
    std::vector<double> values; ///< one for each time; kNoValue for a gap
};

/// What one file gave.
struct FileSummary {
    struct SeriesSummary {
        std::string name;         ///< as in Series
        std::uint64_t values = 0; ///< number of samples with a value
        std::uint64_t absent = 0; ///< number of rows without a value
        std::uint64_t gaps = 0;   ///< number of runs of rows without a value
        double min = 0;           ///< lowest value; meaningless when `values` is 0
        double max = 0;           ///< highest value; meaningless when `values` is 0
    };

    std::string path;
    std::uint64_t bytes = 0;       ///< number of bytes read
    std::uint64_t rows = 0;        ///< number of rows kept
    std::uint64_t rowsLeftOut = 0; ///< data rows left out; all rows lost for lack of memory count as one
    bool leftOut = false;          ///< the whole file was left out
    bool zoned = false;            ///< some times name a time zone: these were converted to UTC
    Time first = 0;                ///< earliest time; meaningless when `rows` is 0
    Time last = 0;                 ///< latest time; meaningless when `rows` is 0
    Time interval = 0;             ///< median time between neighbouring rows; 0 with fewer than two rows
    std::uint64_t timeGaps = 0;    ///< number of pairs of neighbouring rows farther apart than LongestStep
    Time longestGap = 0;           ///< length of the longest time gap; 0: there are no time gaps
    std::vector<SeriesSummary> series;
    MessageLog log;
};

/// The result of reading. The numbers are the program's exit status.
enum class Status {
    Fine = 0,    ///< no data row and no file was left out, and reading was not cancelled
    LeftOut = 1, ///< a row or a whole file was left out, or reading was cancelled
    Nothing = 2  ///< there is no value to show
};

/// One file, or several files joined on time.
///
/// The times are those of all files, in ascending order. Rows of several files with the same time become one
/// row. Rows with the same time within one file stay separate rows, in the file's order: the first is joined
/// with the first row of that time in the other files, the second with the second. A row whose time is before
/// the previous row's (a clock was set back) causes a message and is sorted by its time.
struct Recording {
    std::vector<Time> times;
    std::vector<Series> series;     ///< at most kMaxSeries, in the order of the files and their columns
    std::vector<FileSummary> files; ///< in the order of the command line or the dialog
    /// For each joined file, whether it has a row at each time. Empty when all rows come from one file.
    std::vector<std::vector<bool>> rowsOf;
    bool cancelled = false;    ///< reading was cancelled: the recording is incomplete
    std::uint64_t removed = 0; ///< number of rows that WithoutHead removed

    /// Whether there is no value at all.
    bool Empty() const;

    /// Whether the file of a series has a row at this time; a series without a value there then has a gap.
    bool HasRow(std::size_t oneSeries, std::size_t row) const {
        return rowsOf.empty() || rowsOf[series[oneSeries].file][row];
    }

    /// Median time between neighbouring rows of the series' file; 0 when it is not known.
    Time IntervalOf(std::size_t oneSeries) const {
        const std::size_t file = series[oneSeries].file;
        return file < files.size() ? files[file].interval : 0;
    }

    /// Sum of FileSummary::rowsLeftOut over all files.
    std::uint64_t RowsLeftOut() const;

    Status GetStatus() const;

    /// Whether any file has a time that names a time zone.
    bool Zoned() const;
};

/// A part of a recording's samples, by index: `first` to `last`, both included.
struct VisibleRange {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// The recording without its first `count` rows; at least the last row stays. The file summaries stay as they
/// were read.
Recording WithoutHead(const Recording& source, std::size_t count);

/// Lowest and highest of some values. Only finite values count.
struct ValueSpan {
    bool any = false; ///< false: there is no value, and min and max are 0
    double min = 0;
    double max = 0;

    /// Widens the span to hold the value. NaN and infinities are ignored.
    void Take(double value);
    void Take(const ValueSpan& other);
};

/// The span of at most `count` values from index `first` on.
ValueSpan SpanOf(const std::vector<double>& values, std::size_t first = 0, std::size_t count = SIZE_MAX);

/// Median distance of neighbouring times; 0 with fewer than two times. The times must ascend.
Time MedianInterval(const std::vector<Time>& times);

/// The longest time between neighbouring rows of a file that is no time gap: 1.5 times the file's median
/// interval.
inline Time LongestStep(Time interval) {
    return interval + interval / 2;
}

} // namespace kavlix::recording

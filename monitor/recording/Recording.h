#pragma once

#include "monitor/recording/Messages.h"
#include "monitor/recording/TimeText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kavlix::recording {

/// As many series as the graph control has datasets.
inline constexpr std::size_t kMaxSeries = 13;

/// One series of a recording.
struct Series {
    std::string name;           ///< UTF-8, distinct within the recording, never empty
    std::size_t file = 0;       ///< index of its file in Recording::files
    std::vector<double> values; ///< one a time stamp; NaN where the series has no value
};

/// What one file gave.
struct FileSummary {
    struct SeriesSummary {
        std::string name;         ///< as in Series
        std::uint64_t values = 0; ///< samples with a value
        std::uint64_t absent = 0; ///< rows in which this series has no value
        std::uint64_t gaps = 0;   ///< runs of such rows
        double min = 0;           ///< lowest and highest value; meaningless when values is 0
        double max = 0;
    };

    std::string path;
    std::uint64_t bytes = 0;       ///< bytes read
    std::uint64_t rows = 0;        ///< rows kept
    std::uint64_t rowsLeftOut = 0; ///< rows (not the header) of which nothing is kept
    bool leftOut = false;          ///< nothing of the file is shown
    bool zoned = false;            ///< its times name a zone: they are shown in UTC
    Time first = 0;                ///< earliest and latest time; meaningless when rows is 0
    Time last = 0;
    Time interval = 0;          ///< median distance of neighbouring rows; 0 with fewer than two
    std::uint64_t timeGaps = 0; ///< neighbours farther apart than 1.5 times that
    Time longestGap = 0;        ///< the largest of those distances
    std::vector<SeriesSummary> series;
    MessageLog log;
};

/// How reading went. The numbers are the exit status of the program.
enum class Status {
    Fine = 0,    ///< every row of every file is shown
    LeftOut = 1, ///< a row or a whole file was left out
    Nothing = 2  ///< there is nothing to show
};

/// Recordings joined on time.
///
/// The time stamps are those of all files, in ascending order. Rows with the same time in several files
/// become one row; a time that occurs several times within a file stays several rows, in the file's order,
/// and pairs with the same occurrence in the other files. A row whose time lies before the row above it (a
/// clock that was set back) is told, kept, and stands where its time belongs.
struct Recording {
    std::vector<Time> times;
    std::vector<Series> series;     ///< at most kMaxSeries, in the order of the files and their columns
    std::vector<FileSummary> files; ///< in the order they were given
    bool cancelled = false;         ///< reading was cancelled: this is what was read until then
    std::uint64_t removed = 0;      ///< rows that were taken away at the head since reading

    /// Whether there is no value at all to show.
    bool Empty() const;

    /// Rows left out, of all files.
    std::uint64_t RowsLeftOut() const;

    Status GetStatus() const;

    /// Whether any file's times name a zone.
    bool Zoned() const;
};

/// The recording from its row `count` on; at least the last row stays. What is told of the files stays as it
/// was read.
Recording WithoutHead(const Recording& source, std::size_t count);

/// Lowest and highest finite value.
struct ValueSpan {
    bool any = false; ///< false: there is none, and min and max are 0
    double min = 0;
    double max = 0;

    /// Widens the span to hold the value; NaN and infinities are ignored.
    void Take(double value);
    void Take(const ValueSpan& other);
};

/// The span of the values from index `first` on, at most `count` of them.
ValueSpan SpanOf(const std::vector<double>& values, std::size_t first = 0, std::size_t count = SIZE_MAX);

/// Median distance of neighbouring times; 0 with fewer than two. Ascending times are expected.
Time MedianInterval(const std::vector<Time>& times);

} // namespace kavlix::recording

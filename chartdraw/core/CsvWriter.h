// SPDX-License-Identifier: MIT
// Writes datasets as a table of comma-separated values.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "chartdraw/core/ChartSeries.h"
#include "plot/ValueBounds.h"

namespace kavlix {

/// A dataset as a column of a table.
struct CsvColumn {
    std::string name; ///< UTF-8
    const ChartSeries* points = nullptr;
    double offset = 0; ///< what the points' x are increased by
};

/// What WriteCsv writes. The x of all columns, with their offsets, count from the same origin.
struct CsvTable {
    std::string xName; ///< UTF-8
    std::vector<CsvColumn> columns;
    std::optional<ValueBounds> view; ///< only the points whose x, with the offset, is inside
    bool isTime = false;             ///< x is written as a time
    double origin = 0;               ///< of times: seconds from 1970-01-01 00:00 UTC to the x that is 0
};

/// Takes text in pieces, in order. False ends the writing.
using CsvSink = std::function<bool(const char* pText, std::size_t length)>;

/// Writes a table as RFC 4180 describes it, with lines ending in CR LF: a line of names, then a line for each x, with
/// x first. Points of several columns share a line if their x are equal. A second point of a column with the same x
/// starts another line. Each column's points keep their order, also when x does not ascend. Then the line with the
/// smallest x among the columns' next points comes first. A point whose x is NaN has a line of its own, with an empty
/// x.
///
/// Numbers have as many digits as are needed to read the same double again, with a point before the decimals. NaN is an
/// empty field, infinity is "inf" or "-inf". Times are in ISO 8601 in UTC, all with the same number of decimals: the
/// smallest of 0, 3, 6 and 9 that tells the times apart. Times outside the years 0 to 9999 are written as seconds.
///
/// False when the sink refuses a piece. Throws when an allocation fails.
bool WriteCsv(const CsvTable& table, const CsvSink& sink);

} // namespace kavlix

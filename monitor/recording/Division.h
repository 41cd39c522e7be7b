#pragma once

#include "monitor/recording/Recording.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kavlix::recording {

/// How values make up a whole.
struct Division {
    struct Part {
        std::size_t index = 0; ///< of the value
        double value = 0;      ///< 0 or more
        double share = 0;      ///< of the whole, 0 to 1; all 0 when the whole is 0
    };
    std::vector<Part> parts;           ///< in the order of the values
    double total = 0;                  ///< the whole; infinite when it is beyond the numbers
    std::vector<std::size_t> negative; ///< values below 0, which are no part of a whole
    std::vector<std::size_t> missing;  ///< NaN and infinities
};

/// Divides their sum among the values.
Division Divide(const std::vector<double>& values);

/// What a division leaves out and why: `Left out: a, b (negative), c (no value)`; empty when nothing is.
/// @param names one a value that was divided
std::string LeftOutText(const Division& division, const std::vector<std::string>& names);

/// The values of all series at a row. Rows of files that were joined hold the values of one of them only:
/// what is taken of a series then is its value beside the row, if that is no farther than its file's rows are
/// apart.
std::vector<double> ValuesAt(const Recording& recording, std::size_t row);

/// The row to show of a recording's end: the last one. Of files that were joined, and do not end together,
/// the last one with as many values as any of the last ones.
std::size_t LastRow(const Recording& recording);

} // namespace kavlix::recording

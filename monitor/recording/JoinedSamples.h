// SPDX-License-Identifier: MIT
// Values at a row of joined files, whose series have their samples at different times.
#pragma once

#include <cstddef>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The row with the value to show for `series` at row `sample`. In joined files a row usually holds values of
/// one file only, so a series of another file has its value in a neighbouring row. The result is the row in
/// `visible` with a value of the series that is the fewest rows away, at most 1000, if its time is less than
/// one median interval of the series' file away. Otherwise, and always in a single file, the result is
/// `sample` itself, whose value may be NaN.
std::size_t SampleBeside(const Recording& recording, const VisibleRange& visible, std::size_t series,
                         std::size_t sample);

/// The values of all series at `row`, each from the row that SampleBeside finds.
std::vector<double> ValuesAt(const Recording& recording, std::size_t row);

/// The row that shows how the recording ends. In a single file: the last row. Joined files may end at
/// different times: there the result is the row, among the last 100, for which ValuesAt finds the most
/// values; of several such rows the latest.
std::size_t LastFullRow(const Recording& recording);

} // namespace kavlix::recording

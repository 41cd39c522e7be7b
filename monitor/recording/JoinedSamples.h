// Values at a row of joined recordings, whose series have their samples at different times.
#pragma once

#include <cstddef>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The sample that holds the value of `series` at `sample`. A row of joined files holds values of one file
/// only, so another file's series has its value in a neighbouring row. The result is the nearest row in
/// `visible` with a value of the series, if that row is less than one interval of the series' file away.
/// Otherwise the result is `sample` itself, whose value may be NaN.
std::size_t SampleBeside(const Recording& recording, const VisibleRange& visible, std::size_t series,
                         std::size_t sample);

/// The values of all series at `row`, each from the row that SampleBeside finds.
std::vector<double> ValuesAt(const Recording& recording, std::size_t row);

/// The row that shows how the recording ends. Of a single file: the last row. Of joined files, which may end
/// at different times: of the last 100 rows the one with most values, the latest of equal ones.
std::size_t LastFullRow(const Recording& recording);

} // namespace kavlix::recording

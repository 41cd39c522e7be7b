// SPDX-License-Identifier: MIT
// The text of one sample for the status bar.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "monitor/recording/TimeText.h"

namespace kavlix::recording {

/// The value of a series at some time.
struct NamedValue {
    std::string name;
    double value = 0;              ///< NaN: the series has no value at that time
    std::optional<Time> time = {}; ///< the value's own time; none: the time of the sample
};

/// Number of digits of a value.
enum class ValueDigits {
    AsRead,  ///< as many as FormatNumber writes: the text reads back as the same number
    Computed ///< six significant: more have no meaning in a mean or a converted reading
};

/// Texts of a sample in three forms, the longest first: the time with name (cut to 32 bytes) and value of
/// every series that has a value; the same with names cut to 10 bytes; the time with values only, in six
/// significant digits. In the first two forms a value whose own time differs from `time` is followed by its
/// time, without the date when the date is the same.
std::vector<std::string> SampleTexts(Time time, const std::vector<NamedValue>& values, ValueDigits digits);

} // namespace kavlix::recording

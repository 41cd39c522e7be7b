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
    std::optional<Time> time = {}; ///< the value's own time, where it may differ from the sample's
};

/// Number of digits of a value.
enum class ValueDigits {
    AsRead,  ///< as many as FormatNumber writes: the text reads back as the same number
    Computed ///< six: more digits of a mean or of a converted reading have no meaning
};

/// Texts of a sample in three forms, the longest first: the time with name and value of every series that has
/// a value; the same with shortened names; the time with values only, in six digits. In the first two forms a
/// value whose own time differs from `time` is followed by its time, without the date when the date is the
/// same.
std::vector<std::string> SampleTexts(Time time, const std::vector<NamedValue>& values, ValueDigits digits);

} // namespace kavlix::recording

#pragma once

#include "monitor/recording/TimeText.h"

#include <optional>
#include <string>
#include <vector>

namespace kavlix::recording {

/// A series' value at some time.
struct NamedValue {
    std::string name;
    double value = 0;              ///< NaN: there is none
    std::optional<Time> time = {}; ///< of the value, when it may be another than the one asked for
};

/// How exactly values are written.
enum class ValueDigits {
    AsRead,  ///< as many as tell the number from every other
    Computed ///< six: a mean, or a reading that was divided, has more than it means
};

/// A line for a status bar, longest first and in shorter forms for less room: the time, then name and value
/// of every series that has one; the same with the beginnings of the names only; without names. Behind a
/// value of another time stands that time, without the day when the day is the same.
std::vector<std::string> SampleTexts(Time time, const std::vector<NamedValue>& values, ValueDigits digits);

} // namespace kavlix::recording

// SPDX-License-Identifier: MIT
// The labels of the graph page's time axis.
#pragma once

#include <string>
#include <vector>

#include "monitor/recording/TimeText.h"

namespace kavlix::recording {

/// How the samples' times are written along the X axis. The control draws the labels upwards. Each label has
/// one line: with two lines, neighbouring labels would touch.
struct TimeLabelStyle {
    enum class Form {
        Clock,       ///< `14:05:00`: all times on one day, and not all midnight
        DayAndClock, ///< `12-02 21:15`: all other times
        Date, ///< `2013-12-02`: labels a day or more apart, or every time midnight, unless Month or Year fits
        Month, ///< `2013-12`: two or more times, each midnight of a month's first day, unless Year fits
        Year   ///< `2013`: two or more times, each midnight of 1 January
    };

    Form form = Form::Clock;
    TimePrecision precision = TimePrecision::Seconds;
    int chars = 8;         ///< characters in a label, for SetXTickLabelUpStringMaxLength
    int bandHeight = 1500; ///< height of the labels' band in logical units, for SetXTickLabelHeight

    bool operator==(const TimeLabelStyle& other) const {
        return form == other.form && precision == other.precision;
    }
};

/// Chooses the style for ascending times when the axis has room for `labels` labels.
TimeLabelStyle ChooseTimeLabels(const std::vector<Time>& times, int labels);

/// The label of one sample, for AddXTickLabel.
std::string MakeTimeLabel(const TimeLabelStyle& style, Time time);

/// The title of the X axis: with Form::Clock the day, otherwise the first and the last time, or one of them
/// if both read the same. When `zoned`, ` (UTC)` follows. Without times, the title is `Time`.
std::string TimeAxisTitle(const std::vector<Time>& times, const TimeLabelStyle& style, bool zoned);

} // namespace kavlix::recording

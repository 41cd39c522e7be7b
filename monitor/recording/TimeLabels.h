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
        Clock,       ///< `14:05:00`: all times within one day
        DayAndClock, ///< `12-02 21:15`: all other times
        Date,        ///< `2013-12-02`: the labels are a day or more apart, or every time is midnight
        Month,       ///< `2013-12`: at least two times, and each is midnight of the first of a month
        Year         ///< `2013`: at least two times, and each is midnight of 1 January
    };

    Form form = Form::Clock;
    TimePrecision precision = TimePrecision::Seconds;
    int chars = 8;         ///< length of the labels, for SetXTickLabelUpStringMaxLength
    int bandHeight = 1500; ///< height for SetXTickLabelHeight, in logical units

    bool operator==(const TimeLabelStyle& other) const {
        return form == other.form && precision == other.precision;
    }
};

/// Chooses the style for ascending times when the axis has room for `labels` labels.
TimeLabelStyle ChooseTimeLabels(const std::vector<Time>& times, int labels);

/// The label of one sample, for AddXTickLabel.
std::string MakeTimeLabel(const TimeLabelStyle& style, Time time);

/// The title of the X axis: the day, or the first and the last time; with ` (UTC)` when `zoned`.
std::string TimeAxisTitle(const std::vector<Time>& times, const TimeLabelStyle& style, bool zoned);

} // namespace kavlix::recording

#pragma once

#include "monitor/recording/TimeText.h"

#include <string>
#include <vector>

namespace kavlix::recording {

/// How the samples' times are written at the X axis. The graph control draws the texts upwards, each in one
/// line: in its form of two lines they would touch.
struct TimeLabelStyle {
    enum class Form {
        Clock,       ///< `14:05:00`: all within a day
        DayAndClock, ///< `12-02 21:15`
        Date,        ///< `2013-12-02`: the labels are a day or more apart, or every time is a midnight
        Month,       ///< `2013-12`: every time is a midnight of a first
        Year         ///< `2013`: every time is a New Year's midnight
    };

    Form form = Form::Clock;
    TimePrecision precision = TimePrecision::Seconds;
    int chars = 8; ///< length of the texts: the limit to give SetXTickLabelUpStringMaxLength, at least
    int bandHeight = 1500; ///< height for SetXTickLabelHeight in logical units (1/30 pixel)

    bool operator==(const TimeLabelStyle& other) const {
        return form == other.form && precision == other.precision;
    }
};

/// Chooses the style for ascending times of which at most `labels` (at least 1) are written.
TimeLabelStyle ChooseTimeLabels(const std::vector<Time>& times, int labels);

/// The text of one sample for AddXTickLabel.
std::string MakeTimeLabel(const TimeLabelStyle& style, Time time);

/// A text for the X axis as a whole: the day, or first and last time, with `UTC` when the times named zones.
std::string TimeAxisTitle(const std::vector<Time>& times, const TimeLabelStyle& style, bool zoned);

} // namespace kavlix::recording

#pragma once

#include "monitor/recording/Recording.h"

#include <string>

namespace kavlix::recording {

/// What was read and what was wrong, as text of several lines for `--check`: for each file its series with
/// their samples, range and gaps, its time range, the messages, the rows left out; then the joined recording.
std::string CheckReport(const Recording& recording);

/// The messages alone, a line each, with the count of rows left out; empty when nothing was wrong.
std::string MessageReport(const Recording& recording);

/// The same in one line for a status bar: `22,695 rows, 1 series; 3 rows left out, 2 messages`.
std::string StatusLine(const Recording& recording);

} // namespace kavlix::recording

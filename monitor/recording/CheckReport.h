// The reports on what was read and what was wrong, as text.
#pragma once

#include <string>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The report that `--check` prints. For each file: its series with their samples, range and gaps, its time
/// range, its messages, and the number of rows left out. Then a line on the joined recording.
std::string CheckReport(const Recording& recording);

/// Only the messages, one on each line, then the number of rows left out. Empty when nothing was wrong.
std::string MessageReport(const Recording& recording);

/// A summary of one line for the status bar: `22,695 rows, 1 series; 3 rows left out; 2 messages`.
std::string StatusLine(const Recording& recording);

} // namespace kavlix::recording

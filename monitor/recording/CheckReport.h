// SPDX-License-Identifier: MIT
// The reports on what was read and what was wrong, as text.
#pragma once

#include <string>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The report that `--check` prints. For each file: its series with their samples, range and gaps, and its
/// time range, or that nothing of the file is kept; the number of rows left out; its messages. Then a line on
/// the joined recording, and a line when it has no value to show.
std::string CheckReport(const Recording& recording);

/// Only the messages, one on each line, then the number of rows left out, then a line when there is no value
/// to show. Empty when there is no message and no row was left out.
std::string MessageReport(const Recording& recording);

/// A summary of one line for the status bar: `22,695 rows, 1 series; 3 rows left out; 2 messages`.
std::string StatusLine(const Recording& recording);

} // namespace kavlix::recording

// SPDX-License-Identifier: MIT
// Joins the tables of several files into one recording.
#pragma once

#include <string>
#include <vector>

#include "monitor/recording/Recording.h"
#include "monitor/recording/TableReader.h"

namespace kavlix::recording {

/// Joins `tables` on time into the times and series of `recording`; Recording describes the rules. Gives
/// every series a distinct name, in recording.files too. There is one table for each file, with ascending
/// times, empty when the file gave nothing.
void JoinTables(std::vector<Table> tables, Recording& recording);

/// The last part of a path without its extension; `file` when nothing is left.
std::string FileStem(const std::string& path);

} // namespace kavlix::recording

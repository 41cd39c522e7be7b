#pragma once

#include "monitor/recording/Recording.h"
#include "monitor/recording/TableReader.h"

#include <vector>

namespace kavlix::recording {

/// Joins the tables on time into recording.times and recording.series, as told at Recording, and gives every
/// series a distinct name, in recording.files too.
/// @param tables one a file of the recording, times ascending; empty where the file gave nothing. They are
/// used up.
void JoinTables(std::vector<Table> tables, Recording& recording);

/// The last part of a path without its extension; "file" when nothing is left.
std::string FileStem(const std::string& path);

} // namespace kavlix::recording

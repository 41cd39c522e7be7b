// SPDX-License-Identifier: MIT
// Text for the person who started the program from a terminal.
#pragma once

#include <string>

namespace kavlix::monitor {

/// Writes UTF-8 text to the standard output that the program was started with (a file, a pipe or a console),
/// or else to the console of the parent process. Returns false when there is neither, or when writing fails.
bool WriteOutput(const std::string& text);

/// Writes UTF-8 text to standard error; otherwise as WriteOutput.
bool WriteError(const std::string& text);

} // namespace kavlix::monitor

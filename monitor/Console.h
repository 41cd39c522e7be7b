// Text for the person who started the program from a terminal.
#pragma once

#include <string>

namespace kavlix::monitor {

/// Writes UTF-8 text to standard output: the file or pipe of that name, or the console of the parent process.
/// Returns false when there is neither.
bool WriteOutput(const std::string& text);

/// The same for standard error.
bool WriteError(const std::string& text);

} // namespace kavlix::monitor

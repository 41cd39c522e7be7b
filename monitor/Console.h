#pragma once

#include <string>

namespace kavlix::monitor {

/// Writes text to standard output or standard error: a file or pipe that the program was started with, or the
/// console of the program that started it. Text is UTF-8.
/// @return false when there is nothing to write to
bool WriteOutput(const std::string& text);
bool WriteError(const std::string& text);

} // namespace kavlix::monitor

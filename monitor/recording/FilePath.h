// SPDX-License-Identifier: MIT
// File names in UTF-8 for the streams of the C++ library.
#pragma once

#include <filesystem>
#include <string>

namespace kavlix::recording {

/// The file name as a path: UTF-8 on Windows, bytes as they are on other systems. On Windows, a path that is
/// too long for the system's usual limit gets the prefix that lifts the limit. Invalid UTF-8, and a name that
/// the system cannot have, give an empty path.
std::filesystem::path PathOf(const std::string& name);

} // namespace kavlix::recording

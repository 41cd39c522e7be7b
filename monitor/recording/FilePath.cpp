// SPDX-License-Identifier: MIT
// Decodes file names, and lifts the limit of their length on Windows.

#include "monitor/recording/FilePath.h"

#include <system_error>

namespace kavlix::recording {
namespace {

constexpr std::size_t kUsualLimit = 240; // UTF-16 units: 260 less room for a temporary file's name

/// The path for Windows without the usual limit. Such a path must be absolute and in the system's own form.
std::filesystem::path Unlimited(const std::filesystem::path& path) {
    const auto whole = std::filesystem::absolute(path).make_preferred().native();
    const std::filesystem::path prefix = "\\\\?\\";
    if (whole[0] != '\\' || whole[1] != '\\') // begins with a drive
        return prefix.native() + whole;
    const bool isShare = whole[2] != '?' && whole[2] != '.';
    return isShare ? (prefix / "UNC").native() + whole.substr(1) : whole;
}

} // namespace

std::filesystem::path PathOf(const std::string& name) {
    try {
        std::filesystem::path path = std::filesystem::u8path(name);
        constexpr bool isWindows = std::filesystem::path::preferred_separator == '\\';
        if (isWindows && std::filesystem::absolute(path).native().size() > kUsualLimit)
            return Unlimited(path);
        return path;
    } catch (const std::system_error&) {
        return {};
    }
}

} // namespace kavlix::recording

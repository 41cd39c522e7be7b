// SPDX-License-Identifier: MIT
// The Monitor's command line.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "monitor/recording/ViewChoice.h"

namespace kavlix::recording {

/// Size of the window's client area and menu bar together, in pixels.
struct WindowSize {
    int width = 0;
    int height = 0;
};

inline constexpr int kMinWindowSide = 100;    // least width and height for `--size`, in pixels
inline constexpr int kMaxWindowSide = 10'000; // greatest width and height for `--size`, in pixels
inline constexpr double kMaxSeconds = 1e6;

/// The pages' names for `--page`, in the order of the menu.
inline constexpr std::array<std::string_view, 5> kPageNames = {"graph", "scroll", "pie", "chart", "multi"};
inline constexpr std::size_t kGraphPage = 0;  ///< index into kPageNames: the default page of recordings
inline constexpr std::size_t kScrollPage = 1; ///< index into kPageNames: the default page of live readings

/// What the command line asks for.
struct Options {
    std::vector<std::string> files; ///< recordings to show; empty: live readings are shown
    std::string shot;               ///< picture file to save before the program ends; empty: none
    std::optional<double> seconds;  ///< the program ends after this time
    std::optional<WindowSize> size;
    std::optional<ViewStyle> style;
    std::optional<std::size_t> page; ///< index into kPageNames
    bool check = false;              ///< read the files, print the report and end
    bool help = false;               ///< print HelpText and end

    /// What is wrong with the command line, as text for a person; empty when nothing is wrong.
    std::string error;
};

/// Reads the arguments that follow the program's name. `--option value` and `--option=value` mean the same.
/// Of a repeated option the last one counts. Every argument behind `--` is a file.
Options ParseOptions(const std::vector<std::string>& arguments);

/// The text that `--help` prints.
std::string HelpText();

} // namespace kavlix::recording

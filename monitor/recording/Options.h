#pragma once

#include "monitor/recording/ViewChoice.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavlix::recording {

/// Width and height of the window's client area in pixels.
struct WindowSize {
    int width = 0;
    int height = 0;
};

inline constexpr int kMinWindowSide = 100;
inline constexpr int kMaxWindowSide = 10'000;
inline constexpr double kMaxSeconds = 1e6;

/// What `--page` calls the pages, in the order in which the menu offers them.
inline constexpr std::array<std::string_view, 5> kPageNames = {"graph", "scroll", "pie", "chart", "multi"};
inline constexpr std::size_t kGraphPage = 0;  ///< recordings open on it
inline constexpr std::size_t kScrollPage = 1; ///< and live readings on this one

/// The command line of the Monitor.
struct Options {
    std::vector<std::string> files; ///< recordings; none: live readings
    std::string shot;               ///< PNG to save before ending; empty: none
    std::optional<double> seconds;  ///< end after this time
    std::optional<WindowSize> size;
    std::optional<ViewStyle> style;
    std::optional<std::size_t> page; ///< index into kPageNames
    bool check = false;              ///< read, report, end
    bool help = false;               ///< print HelpText and end with 0

    /// What is wrong with the command line, for people; empty when nothing is. The exit status is 2 then.
    std::string error;
};

/// Reads the arguments behind the program's name. `--option value` and `--option=value` are the same; of a
/// repeated option the last counts; behind `--` everything is a file.
Options ParseOptions(const std::vector<std::string>& arguments);

/// What `--help` prints.
std::string HelpText();

} // namespace kavlix::recording

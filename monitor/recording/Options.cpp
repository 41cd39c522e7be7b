// SPDX-License-Identifier: MIT
// Reads the command line; the text of --help.

#include "monitor/recording/Options.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

constexpr std::string_view kUsage =
    "KavlixMonitor shows recordings, or live readings of this machine, as a chart.\n"
    "\n"
    "  KavlixMonitor [options] [FILE.csv ...]\n"
    "\n"
    "A file has a header row; its first column is a time (YYYY-MM-DD HH:MM:SS, ISO 8601 or\n"
    "seconds since 1970), each further column a series. Several files join on time; up to\n"
    "13 series are shown. Without a file the readings are live, once a second.\n"
    "\n"
    "  --shot PICTURE    paint, save the window's picture (.png, .bmp or .emf) and end\n"
    "  --seconds N       end after N seconds\n"
    "  --size WxH        size of the window's inside in pixels, such as 800x500\n"
    "  --style STYLE     line, bar or twoaxis\n";
constexpr std::string_view kUsageOfPage = "  --page PAGE       ";
constexpr std::string_view kUsageAfterPages =
    "  --check           print what the files hold and what is wrong with them, and end\n"
    "  --help            print this and end\n"
    "\n"
    "Exit status of --check and --shot: 0, or 1 when any row was left out, or 2 when nothing\n"
    "could be shown; 2 also for a wrong command line.\n";

bool ParseWhole(std::string_view text, int least, int most, int& value) {
    const char* const end = text.data() + text.size();
    int read = 0;
    const std::from_chars_result result = std::from_chars(text.data(), end, read);
    if (result.ec != std::errc() || result.ptr != end || read < least || read > most)
        return false;
    value = read;
    return true;
}

bool SetShot(Options& options, std::string_view value) {
    options.shot = std::string(value);
    std::string ending =
        options.shot.substr(options.shot.size() - std::min<std::size_t>(options.shot.size(), 4));
    for (char& c : ending)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return ending == ".png" || ending == ".bmp" || ending == ".emf";
}

bool SetSeconds(Options& options, std::string_view value) {
    double seconds = 0;
    if (ParseNumber(value, seconds) != NumberKind::Value || seconds <= 0 || seconds > kMaxSeconds)
        return false;
    options.seconds = seconds;
    return true;
}

bool SetSize(Options& options, std::string_view value) {
    const std::size_t cross = value.find_first_of("xX");
    WindowSize size;
    if (cross == std::string_view::npos ||
        !ParseWhole(value.substr(0, cross), kMinWindowSide, kMaxWindowSide, size.width) ||
        !ParseWhole(value.substr(cross + 1), kMinWindowSide, kMaxWindowSide, size.height))
        return false;
    options.size = size;
    return true;
}

bool SetStyle(Options& options, std::string_view value) {
    static constexpr std::pair<std::string_view, ViewStyle> kStyles[] = {
        {"line", ViewStyle::Line}, {"bar", ViewStyle::Bar}, {"twoaxis", ViewStyle::TwoAxis}};
    for (const auto& [name, style] : kStyles) {
        if (value == name) {
            options.style = style;
            return true;
        }
    }
    return false;
}

/// The pages' names as a list: `graph, scroll or pie`.
std::string PageNames() {
    std::string text;
    for (std::size_t i = 0; i < kPageNames.size(); ++i) {
        text += i == 0 ? "" : i + 1 < kPageNames.size() ? ", " : " or ";
        text += kPageNames[i];
    }
    return text;
}

bool SetPage(Options& options, std::string_view value) {
    const auto found = std::find(kPageNames.begin(), kPageNames.end(), value);
    if (found == kPageNames.end())
        return false;
    options.page = static_cast<std::size_t>(found - kPageNames.begin());
    return true;
}

struct ValueOption {
    std::string_view name;
    bool (*set)(Options&, std::string_view); ///< returns false for a wrong value
    std::string expected;                    ///< a right value in words, for the message
};

const ValueOption kValueOptions[] = {
    {"--shot", SetShot, "a file name that ends in .png, .bmp or .emf"},
    {"--seconds", SetSeconds, "a number of seconds, more than 0 and at most 1,000,000"},
    {"--size", SetSize, "WIDTHxHEIGHT in pixels, each from 100 to 10,000, such as 800x500"},
    {"--style", SetStyle, "line, bar or twoaxis"},
    {"--page", SetPage, PageNames()},
};

struct FlagOption {
    std::string_view name;
    bool Options::*flag;
};

constexpr FlagOption kFlagOptions[] = {
    {"--check", &Options::check},
    {"--help", &Options::help},
    {"-h", &Options::help},
};

/// Reads the option at `at` and moves `at` to the option's last argument. Sets options.error for a
/// wrong option.
void ReadOption(const std::vector<std::string>& arguments, std::size_t& at, Options& options) {
    const std::string& argument = arguments[at];
    const std::size_t equals = argument.find('=');
    const std::string_view name = std::string_view(argument).substr(0, equals);
    for (const FlagOption& flag : kFlagOptions) {
        if (name == flag.name) {
            options.*flag.flag = true;
            options.error = equals == std::string::npos ? "" : std::string(name) + ": expected no value";
            return;
        }
    }
    for (const ValueOption& option : kValueOptions) {
        if (name != option.name)
            continue;
        std::string_view value;
        if (equals != std::string::npos) {
            value = std::string_view(argument).substr(equals + 1);
        } else if (at + 1 < arguments.size()) {
            value = arguments[++at];
        } else {
            options.error = std::string(name) + ": expected " + option.expected + ", found nothing";
            return;
        }
        if (!option.set(options, value)) {
            options.error =
                std::string(name) + ": expected " + option.expected + ", found " + QuoteForMessage(value);
        }
        return;
    }
    options.error = "expected one of the options of --help, found " + QuoteForMessage(argument);
}

void CheckTogether(Options& options) {
    if (!options.error.empty() || options.help)
        return;
    if (options.check && options.files.empty())
        options.error = "--check: expected at least one file";
    else if (options.check && !options.shot.empty())
        options.error = "--check and --shot: expected only one of them";
}

} // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    bool onlyFiles = false;
    for (std::size_t at = 0; at < arguments.size() && options.error.empty(); ++at) {
        const std::string& argument = arguments[at];
        if (onlyFiles || argument.size() < 2 || argument.front() != '-')
            options.files.push_back(argument);
        else if (argument == "--")
            onlyFiles = true;
        else
            ReadOption(arguments, at, options);
    }
    CheckTogether(options);
    return options;
}

std::string HelpText() {
    std::string text(kUsage);
    text += kUsageOfPage;
    return text + PageNames() + "\n" + std::string(kUsageAfterPages);
}

} // namespace kavlix::recording

#pragma once

#include "tests/support/TempFolder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kavlix::test {

using testkit::TempFolder;

/// What a run of KavlixMonitor.exe left behind.
struct MonitorRun {
    unsigned status = 999; ///< 999: it could not be started, or did not end in time and was stopped
    std::string output;
    std::string error;
};

/// Runs the KavlixMonitor.exe that stands beside the test program, and waits for its end.
MonitorRun RunMonitor(const std::vector<std::string>& arguments);

/// A decoded picture.
struct Picture {
    int width = 0; ///< 0: there is no such picture
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< 0xRRGGBB, rows from the top

    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }

    /// Pixels of this very colour within the given columns (the end excluded); all columns by default.
    int Count(std::uint32_t rgb, int fromX = 0, int toX = -1) const;

    struct Place {
        int left, top, right, bottom;
    };
    /// First and last column and row that hold the colour; its last ones come before its first where none
    /// does.
    Place Where(std::uint32_t rgb) const;
};

/// Reads a picture file.
Picture ReadPicture(const std::string& path);

} // namespace kavlix::test

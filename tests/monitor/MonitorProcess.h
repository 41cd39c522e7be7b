// Runs of KavlixMonitor.exe, and pictures that it saved.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/TempFolder.h"

namespace kavlix::test {

using testkit::TempFolder;

/// The result of a run of KavlixMonitor.exe.
struct MonitorRun {
    unsigned status = 999; ///< 999: it did not start, or did not end in time and was stopped
    std::string output;
    std::string error;
};

/// Runs the KavlixMonitor.exe in the folder of the test program and waits for its end.
MonitorRun RunMonitor(const std::vector<std::string>& arguments);

/// A decoded picture.
struct Picture {
    int width = 0; ///< 0: the file is no picture
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< 0xRRGGBB, rows from the top

    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }

    /// Number of pixels of this colour.
    int Count(std::uint32_t rgb) const;

    struct Place {
        int left, top, right, bottom;
    };
    /// First and last column and row with the colour. Without any, the last ones are less than the
    /// first ones.
    Place Where(std::uint32_t rgb) const;
};

/// Reads a picture file.
Picture ReadPicture(const std::string& path);

} // namespace kavlix::test

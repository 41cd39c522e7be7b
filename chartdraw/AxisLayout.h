// SPDX-License-Identifier: MIT
// The ticks and texts of an axis at the last layout.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <vector>

namespace kavlix {

/// A text at a value.
struct AxisLabel {
    double value = 0;
    CString text;
    int width = 0; ///< pixels
};

/// What the layout finds for an axis: its range, and the texts that painting places.
struct AxisLayout {
    bool isLogarithmic = false;
    bool isInverted = false;
    bool goesThroughZero = false; ///< the grid line at 0 has a colour of its own
    double min = 0;
    double max = 1;
    double step = 0.2; ///< distance of two ticks; 0 when it differs
    std::vector<AxisLabel> ticks;
    std::vector<double> minorTicks;
    std::vector<AxisLabel> periods; ///< second row of a time axis: dates, or years
    AxisLabel start;                ///< of the second row, at the lower end of the range

    int WidestLabel() const {
        constexpr std::size_t kMost = 100;
        int widest = 0;
        for (std::size_t i = 0; i < std::min(ticks.size(), kMost); ++i)
            widest = std::max(widest, ticks[i].width);
        return widest;
    }
};

} // namespace kavlix

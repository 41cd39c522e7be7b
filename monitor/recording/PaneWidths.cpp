// SPDX-License-Identifier: MIT
// Divides the width of the status bar.

#include "monitor/recording/PaneWidths.h"

#include <algorithm>

namespace kavlix::recording {

PaneWidths SharePanes(int width, PaneWidths wanted) {
    width = std::max(width, 0);
    PaneWidths given;
    given.pointer = std::min(wanted.pointer, std::max(width - wanted.text, width / 2));
    given.summary = std::clamp(width - given.pointer - wanted.text, 0, wanted.summary);
    if (given.summary < wanted.summary / 2)
        given.summary = 0;
    given.text = width - given.pointer - given.summary;
    return given;
}

} // namespace kavlix::recording

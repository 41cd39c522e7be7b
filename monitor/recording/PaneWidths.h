#pragma once

namespace kavlix::recording {

/// Widths of a status bar's panes in pixels, from the left.
struct PaneWidths {
    int text = 0;    ///< what is marked or shown
    int pointer = 0; ///< what is under the mouse pointer
    int summary = 0; ///< what was read
};

/// Divides a bar of the given width among panes that would like these widths. When there is room for all, the
/// first gets what is left. When there is not, the summary gives way first, and is left out when not even
/// half of it can be shown; then neither of the others gets more than half the bar while the other lacks
/// room.
PaneWidths SharePanes(int width, PaneWidths wanted);

} // namespace kavlix::recording

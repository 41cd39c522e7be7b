// How the panes of the status bar share its width.
#pragma once

namespace kavlix::recording {

/// Widths of a status bar's panes in pixels, from the left.
struct PaneWidths {
    int text = 0;    ///< the marked sample, or what is shown
    int pointer = 0; ///< the sample under the mouse pointer
    int summary = 0; ///< what was read
};

/// Divides `width` among panes that want the widths `wanted`. The text pane gets what is left over. When
/// there is not enough room, the summary shrinks first, and disappears below half of its wanted width. After
/// that, neither of the other two gets more than half the bar while the other one lacks room.
PaneWidths SharePanes(int width, PaneWidths wanted);

} // namespace kavlix::recording

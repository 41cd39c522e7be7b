// SPDX-License-Identifier: MIT
// How the panes of the status bar share its width.
#pragma once

namespace kavlix::recording {

/// Widths of a status bar's panes in pixels, from the left.
struct PaneWidths {
    int text = 0;    ///< width of the pane for the marked sample or, without a mark, for what the view shows
    int pointer = 0; ///< width of the pane for the sample under the mouse pointer
    int summary = 0; ///< width of the pane for the summary of the files that were read
};

/// Divides `width`, the width of the status bar, among its three panes; `wanted` is what each pane needs. If
/// there is room to spare, the text pane gets it. If there is too little, the summary pane shrinks first; it
/// gets nothing if it would be narrower than half of what it needs. If the text and pointer panes still do
/// not fit, a pane gets more than half of the bar only if the other one needs less than half.
PaneWidths SharePanes(int width, PaneWidths wanted);

} // namespace kavlix::recording

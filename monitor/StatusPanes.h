// SPDX-License-Identifier: MIT
// The status bar.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <string>
#include <vector>

#include "monitor/recording/PaneWidths.h"

namespace kavlix::monitor {

/// The texts of the status bar. A text may have several forms, the longest first.
struct StatusTexts {
    std::vector<std::string> text;    ///< the marked sample; without a mark, what the view shows
    std::vector<std::string> pointer; ///< the sample under the mouse pointer; empty: the pane takes no room
    std::string summary;              ///< summary of the files that were read
};

/// A status bar of three panes (two without a summary), whose widths follow from the longest forms of their
/// texts. A pane shows the first form that fits, or the last one cut. Only panes whose text changes are
/// written, so that the others do not flicker.
class CStatusPanes : public CStatusBarCtrl {
public:
    /// Creates the bar at the parent's lower edge.
    bool CreateBar(CWnd& parent, UINT id);

    /// Shows the texts and paints the changed panes. The caller calls Show again when the bar's
    /// width has changed.
    void Show(const StatusTexts& texts);

    /// Resets the width of the pointer pane, for other data. Until then, the width that the pane wants for
    /// its texts only grows, so that the panes do not move with every text.
    void ForgetPointerRoom() { m_pointerRoom = 0; }

private:
    int m_pointerRoom = 0; ///< width that the pointer pane wants when it has a text, in pixels
    recording::PaneWidths m_widths;
    std::string m_shown[3]; ///< the panes' current texts
};

} // namespace kavlix::monitor

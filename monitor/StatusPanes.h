#pragma once

#include "monitor/recording/PaneWidths.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

/// What a status bar says. Texts may have shorter forms for less room, which stand behind the longest.
struct StatusTexts {
    std::vector<std::string> text;    ///< the marked sample, or what is shown
    std::vector<std::string> pointer; ///< the sample under the mouse pointer; empty: its pane takes no room
    std::string summary;              ///< what was read
};

/// A status bar of three panes that share its width by what their longest texts need. Texts whose shortest
/// form is too long end in dots. Only panes that change are written, so that nothing flickers while the mouse
/// moves.
class CStatusPanes : public CStatusBarCtrl {
public:
    /// Creates the bar at the parent's lower edge.
    bool CreateBar(CWnd& parent, UINT id);

    /// Shows the texts and paints at once what changed. Call it again when the bar's width has changed.
    void Show(const StatusTexts& texts);

    /// The pane for the pointer grows with its texts and does not shrink with them, so that the panes stand
    /// still while the mouse moves. This lets it begin anew: for other data.
    void ForgetPointerRoom() { m_pointerRoom = 0; }

private:
    int m_pointerRoom = 0; ///< pixels
    recording::PaneWidths m_widths;
    std::string m_shown[3]; ///< what the panes say
};

} // namespace kavlix::monitor

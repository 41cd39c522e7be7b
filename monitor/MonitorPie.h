// SPDX-License-Identifier: MIT
// The pie control of the pie page.
#pragma once

#include <kavlix/PieChartCtrl.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

/// One piece of the pie.
struct PieceSettings {
    std::string label;
    COLORREF color = RGB(0, 0, 0);
    double share = 0; ///< share of the whole, 0 to 1

    bool operator==(const PieceSettings& other) const;
};

/// The pie chart control with keys: the arrow keys select the next or previous piece, Escape clears
/// the selection.
class CMonitorPie : public CPieChartCtrl {
public:
    CMonitorPie();

    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows the pieces, or `message` when there are none. The selection stays if the number of pieces is the
    /// same as before. Repaints, without erasing, only when something has changed.
    void Show(const std::vector<PieceSettings>& pieces, const std::string& message);

    /// Index of the selected piece; -1: none.
    int Selected() const;

    /// Selects one piece; -1: none. Repaints.
    void Select(int piece);

    /// Paints the whole picture.
    void Draw(CDC& dc) { DrawPie(dc); }

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    CPieChartPiece& At(int index) const { return *static_cast<CPieChartPiece*>(m_arrPieces[index]); }

    std::vector<PieceSettings> m_shown;
    std::string m_message;
};

} // namespace kavlix::monitor

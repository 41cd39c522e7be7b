#pragma once

#include <kavlix/PieChartCtrl.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

/// Code of a WM_NOTIFY to the parent, sent with a plain NMHDR: a person selected another piece or none.
constexpr UINT MPN_SELECTION = 1410;

/// A piece as the pages give it.
struct PieceSettings {
    std::string label;
    COLORREF color = RGB(0, 0, 0);
    double share = 0; ///< of the whole, 0 to 1

    bool operator==(const PieceSettings& other) const;
};

/// The pie chart control with a selection that keys move, too: the arrow keys go round, Escape clears it.
class CMonitorPie : public CPieChartCtrl {
public:
    CMonitorPie();

    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows these pieces, or without any `message` in their place. The selection stays on its piece as long
    /// as there are as many. Repaints, at once and without erasing, only when something has changed.
    void Show(const std::vector<PieceSettings>& pieces, const std::string& message);

    /// The selected piece; -1: none.
    int Selected() const;
    void Select(int piece);

    /// Paints the whole picture; see DrawPie.
    void Draw(CDC& dc) { DrawPie(dc); }

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    CPieChartPiece& At(int index) const { return *static_cast<CPieChartPiece*>(m_arrPieces[index]); }
    void TellSelection();

    std::vector<PieceSettings> m_shown;
    std::string m_message;
};

} // namespace kavlix::monitor

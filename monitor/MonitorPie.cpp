// SPDX-License-Identifier: MIT
// Pieces, selection and keys of the pie.

#include "monitor/MonitorPie.h"

#include <tuple>

#include "monitor/Notifications.h"
#include "monitor/TextConversion.h"

namespace kavlix::monitor {
namespace {

constexpr COLORREF kSelectedColor = RGB(55, 65, 80); // differs from the default colour of every series
constexpr int kBrightest = 255 * 1000;               // brightness of white in TextColorOn
constexpr int kWaiting = 1;                          // mode for Wait: any mode other than 0 shows the message

/// Black for text on bright colours, white on dark ones.
COLORREF TextColorOn(COLORREF color) {
    const int brightness = 299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color);
    return brightness > kBrightest / 2 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

} // namespace

bool PieceSettings::operator==(const PieceSettings& other) const {
    return std::tie(label, color, share) == std::tie(other.label, other.color, other.share);
}

BEGIN_MESSAGE_MAP(CMonitorPie, CPieChartCtrl)
    ON_WM_LBUTTONDOWN()

    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

CMonitorPie::CMonitorPie() {
    m_crSelected = kSelectedColor;
}

bool CMonitorPie::CreateChild(CWnd& parent, UINT id) {
    if (!Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), &parent, id))
        return false;
    // The control has an edge by default; on the page it needs none.
    ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    return true;
}

void CMonitorPie::Show(const std::vector<PieceSettings>& pieces, const std::string& message) {
    if (pieces == m_shown && message == m_message)
        return;
    const int selected = pieces.size() == m_shown.size() ? Selected() : -1;
    m_shown = pieces;
    m_message = message;
    Reset();
    for (const PieceSettings& piece : pieces)
        AddPiece(piece.color, TextColorOn(piece.color), 1, piece.share, ToText(piece.label));
    if (pieces.empty())
        Wait(ToText(message), message.empty() ? 0 : kWaiting);
    Select(selected);
    Invalidate(FALSE);
}

int CMonitorPie::Selected() const {
    for (int i = 0; i < static_cast<int>(m_arrPieces.GetSize()); ++i)
        if (At(i).m_bSelected)
            return i;
    return -1;
}

void CMonitorPie::Select(int piece) {
    for (int i = 0; i < static_cast<int>(m_arrPieces.GetSize()); ++i)
        At(i).m_bSelected = i == piece;
    Invalidate(FALSE);
}

void CMonitorPie::OnLButtonDown(UINT nFlags, CPoint point) {
    SetFocus();
    CPieChartCtrl::OnLButtonDown(nFlags, point);
    NotifyParent(*this, MPN_SELECTION);
}

void CMonitorPie::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const int count = static_cast<int>(m_arrPieces.GetSize());
    const int now = Selected();
    int then = now;
    if (nChar == VK_ESCAPE)
        then = -1;
    else if (count > 0 && (nChar == VK_RIGHT || nChar == VK_DOWN))
        then = (now + 1) % count;
    else if (count > 0 && (nChar == VK_LEFT || nChar == VK_UP))
        then = now <= 0 ? count - 1 : now - 1;
    else
        CPieChartCtrl::OnKeyDown(nChar, nRepCnt, nFlags);
    if (then == now)
        return;
    Select(then);
    NotifyParent(*this, MPN_SELECTION);
}

UINT CMonitorPie::OnGetDlgCode() {
    return DLGC_WANTARROWS;
}

} // namespace kavlix::monitor

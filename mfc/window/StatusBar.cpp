// SPDX-License-Identifier: MIT
// CStatusBar: panes on the system's status bar control.

#include "afx/StatusBar.h"

#include "afx/DC.h"
#include "afx/FrameWnd.h"
#include "afx/WindowDC.h"
#include "afxmsg_.h"
#include "mfc/control/CommonControlInit.h"

#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_NCDESTROY()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
    ON_MESSAGE(SB_SETMINHEIGHT, &CStatusBar::OnSetMinHeight)
END_MESSAGE_MAP()

namespace {

constexpr UINT borderStyles = SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW; // the control's own flags
constexpr DWORD alignStyles = CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM;
constexpr int textMargin = 3; // pixels between the edge of a pane and its text, on each side

/// The control's font, selected into a DC of its window.
class FontDC : public CClientDC {
public:
    explicit FontDC(CWnd& window)
        : CClientDC(&window),
          m_former(::SelectObject(m_hDC, reinterpret_cast<HGDIOBJ>(window.SendMessage(WM_GETFONT)))) {}
    ~FontDC() override { ::SelectObject(m_hDC, m_former); }

private:
    HGDIOBJ m_former;
};

/// A pane during an update.
class PaneUI : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        SetStyle(SBPS_DISABLED, !bOn);
    }
    void SetCheck(int nCheck) override { SetStyle(SBPS_POPOUT, nCheck != 0); }
    void SetText(LPCTSTR lpszText) override { Bar().SetPaneText(static_cast<int>(m_nIndex), lpszText); }

private:
    CStatusBar& Bar() { return *static_cast<CStatusBar*>(m_pOther); }
    void SetStyle(UINT style, bool on) {
        const int index = static_cast<int>(m_nIndex);
        const UINT present = Bar().GetPaneStyle(index);
        Bar().SetPaneStyle(index, on ? present | style : present & ~style);
    }
};

} // namespace

CStatusBar::~CStatusBar() {
    m_bAutoDelete = FALSE; // the object is being deleted already
    DestroyWindow();
    m_control.m_hWnd = nullptr;
}

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    // The grip belongs to a window that the user can size.
    const bool sized = (pParentWnd->GetStyle() & WS_THICKFRAME) != 0;
    return CreateEx(pParentWnd, sized ? SBARS_SIZEGRIP : 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    ASSERT(pParentWnd != nullptr);
    LoadCommonControls(ICC_BAR_CLASSES);
    SetBarStyle(dwStyle & alignStyles);
    // The frame's layout decides about the place of the bar, not the control.
    const DWORD style = (dwStyle & ~alignStyles) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NORESIZE;
    return CWnd::CreateEx(0, STATUSCLASSNAME, nullptr, style | WS_CHILD, CRect(0, 0, 0, 0), pParentWnd, nID);
}

void CStatusBar::PreSubclassWindow() {
    CControlBar::PreSubclassWindow();
    m_control.m_hWnd = m_hWnd; // a derived class may set the panes in its OnCreate()
}

void CStatusBar::OnNcDestroy() {
    m_control.m_hWnd = nullptr;
    m_panes.clear();
    m_nCount = 0;
    CControlBar::OnNcDestroy();
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    ASSERT(nIDCount >= 1);
    std::vector<Pane> panes(static_cast<std::size_t>(nIDCount));
    if (lpIDArray != nullptr) {
        const FontDC dc(*this);
        for (int i = 0; i < nIDCount; ++i) {
            Pane& pane = panes[static_cast<std::size_t>(i)];
            pane.id = lpIDArray[i];
            if (pane.id != 0) {
                if (!pane.text.LoadString(pane.id))
                    return FALSE;
                pane.width = dc.GetTextExtent(pane.text).cx;
            } else {
                pane.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
                if (i == 0)
                    pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
            }
        }
    }
    m_panes = std::move(panes);
    m_nCount = nIDCount;
    PlaceParts();
    for (int i = 0; i < m_nCount; ++i)
        ShowText(i);
    return TRUE;
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    const auto found =
        std::find_if(m_panes.begin(), m_panes.end(), [&](const Pane& pane) { return pane.id == nIDFind; });
    return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

UINT CStatusBar::GetItemID(int nIndex) const {
    ASSERT(IsPane(nIndex));
    return m_panes.at(static_cast<std::size_t>(nIndex)).id;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    ASSERT(IsPane(nIndex));
    if (!m_control.GetRect(nIndex, lpRect))
        ::SetRectEmpty(lpRect);
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    ASSERT(IsPane(nIndex));
    const Pane& pane = m_panes.at(static_cast<std::size_t>(nIndex));
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    ASSERT(IsPane(nIndex));
    Pane& pane = m_panes.at(static_cast<std::size_t>(nIndex));
    const bool moves = pane.width != cxWidth || ((pane.style ^ nStyle) & SBPS_STRETCH) != 0;
    pane.id = nID;
    pane.width = cxWidth;
    SetPaneStyle(nIndex, nStyle);
    if (moves)
        PlaceParts();
}

UINT CStatusBar::GetPaneStyle(int nIndex) const {
    ASSERT(IsPane(nIndex));
    return m_panes.at(static_cast<std::size_t>(nIndex)).style;
}

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    ASSERT(IsPane(nIndex));
    Pane& pane = m_panes.at(static_cast<std::size_t>(nIndex));
    if (pane.style == nStyle)
        return; // an update at every idle time must not repaint the pane
    pane.style = nStyle;
    ShowText(nIndex);
}

CString CStatusBar::GetPaneText(int nIndex) const {
    return IsPane(nIndex) ? m_panes[static_cast<std::size_t>(nIndex)].text : CString();
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    if (!IsPane(nIndex))
        return FALSE;
    Pane& pane = m_panes[static_cast<std::size_t>(nIndex)];
    const CString text(lpszNewText);
    if (pane.text == text)
        return TRUE;
    pane.text = text;
    pane.stale = true;
    if (bUpdate)
        ShowText(nIndex);
    return TRUE;
}

void CStatusBar::ShowText(int index) {
    Pane& pane = m_panes[static_cast<std::size_t>(index)];
    pane.stale = false;
    const bool hidden = (pane.style & SBPS_DISABLED) != 0;
    m_control.SetText(hidden ? _T("") : static_cast<LPCTSTR>(pane.text), index,
                      static_cast<int>(pane.style & borderStyles));
}

void CStatusBar::PlaceParts() {
    if (m_nCount == 0)
        return;
    int border = 0;
    int ignored = 0;
    int spacing = 0;
    m_control.GetBorders(border, ignored, spacing);
    CRect client;
    GetClientRect(&client);
    int left = client.Width() - border;
    if ((GetStyle() & SBARS_SIZEGRIP) != 0)
        left -= ::GetSystemMetrics(SM_CXVSCROLL);
    const int around = 2 * textMargin + spacing; // room of a pane without its text
    for (const Pane& pane : m_panes)
        left -= pane.width + around;

    std::vector<int> edges;
    int right = border;
    for (const Pane& pane : m_panes) {
        right += pane.width + around;
        if ((pane.style & SBPS_STRETCH) != 0)
            right += std::max(left, -pane.width); // a stretched pane may also become narrower
        edges.push_back(right);
    }
    m_control.SetParts(m_nCount, edges.data());
}

void CStatusBar::OnSize(UINT, int, int) {
    Default();
    PlaceParts();
}

void CStatusBar::OnPaint() {
    for (int i = 0; i < m_nCount; ++i)
        if (m_panes[static_cast<std::size_t>(i)].stale)
            ShowText(i);
    Default();
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL) {
    TEXTMETRIC metrics{};
    FontDC(*this).GetTextMetrics(&metrics);
    int borders[3] = {};
    m_control.GetBorders(borders);
    const int edges = 3 * ::GetSystemMetrics(SM_CYEDGE); // of the bar and of the panes in it
    const int height = std::max<int>(metrics.tmHeight + edges, m_nMinHeight) + borders[1];
    return CSize(32767, height);
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    PaneUI state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(m_nCount);
    for (state.m_nIndex = 0; state.m_nIndex < static_cast<UINT>(m_nCount); ++state.m_nIndex) {
        state.m_nID = m_panes[state.m_nIndex].id;
        // A bar of a derived class may have handlers for its panes.
        if (!CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            state.DoUpdate(pTarget, FALSE);
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    return SetPaneText(CommandToIndex(0), reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::OnGetText(WPARAM wParam, LPARAM lParam) {
    const int room = static_cast<int>(wParam);
    if (room <= 0)
        return 0;
    const auto buffer = reinterpret_cast<LPTSTR>(lParam);
    ::lstrcpyn(buffer, GetPaneText(CommandToIndex(0)), room);
    return ::lstrlen(buffer);
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM) {
    return GetPaneText(CommandToIndex(0)).GetLength();
}

LRESULT CStatusBar::OnSetMinHeight(WPARAM wParam, LPARAM) {
    m_nMinHeight = static_cast<int>(wParam);
    return Default();
}

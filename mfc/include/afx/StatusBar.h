// SPDX-License-Identifier: MIT
// CStatusBar, the status bar of a frame window.
#pragma once

#include "afx/CommonControls.h"
#include "afx/ControlBar.h"
#include "afxres.h"

#include <vector>

AFX_BEGIN_OWN_CREATE

/// Styles of a pane: the normal border, no border, a raised border, drawn by DrawItem().
#define SBPS_NORMAL 0x00000000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
/// A disabled pane shows no text.
#define SBPS_DISABLED 0x04000000
/// The pane takes the room that the other panes leave. One pane at most has this style.
#define SBPS_STRETCH 0x08000000

/// The status bar of a frame window: a message line and indicator panes, counted from 0. The message line is the
/// pane with the ID 0 (ID_SEPARATOR); SetWindowText() sets its text. For each other pane, ON_UPDATE_COMMAND_UI
/// handlers with the ID of the pane enable the pane and set its text. CFrameWnd updates ID_INDICATOR_CAPS,
/// ID_INDICATOR_NUM and ID_INDICATOR_SCRL.
class MFC_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar() = default;
    ~CStatusBar() override;

    /// Creates the bar as a child of a frame window or dialog. FALSE on failure.
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                UINT nID = AFX_IDW_STATUS_BAR);
    /// `dwCtrlStyle` are styles of the system's control: SBARS_SIZEGRIP and others.
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0,
                  DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);

    /// Sets the panes. Each ID is that of a string resource, which is the text of the pane and gives its width.
    /// ID_SEPARATOR (0) is a pane without a text; as the first ID it is the message line, without a border, which
    /// stretches. With NULL, `nIDCount` panes without IDs are made. FALSE if a string does not exist.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);
    /// Index of the pane with this ID; -1 if there is none.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// Client coordinates of the pane.
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    /// The width in pixels is that of the text, without the borders.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    /// The text of a pane, also of a disabled one. Empty for an index without a pane.
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& rString) const { rString = GetPaneText(nIndex); }
    /// `bUpdate` FALSE shows the text when the pane is next painted. FALSE for an index without a pane.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /// The system's control. Its parts are the panes.
    CStatusBarCtrl& GetStatusBarCtrl() const { return m_control; }

    /// Override the function to draw panes with the style SBPS_OWNERDRAW. The default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    void PreSubclassWindow() override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnNcDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetMinHeight(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT id = 0;
        UINT style = SBPS_NORMAL;
        int width = 0; // pixels of the text
        CString text;
        bool stale = false; // the control does not show the text yet
    };
    bool IsPane(int index) const { return index >= 0 && index < m_nCount; }
    void ShowText(int index);
    void PlaceParts();

    std::vector<Pane> m_panes;
    mutable CStatusBarCtrl m_control; // refers to the window of this object
    int m_nMinHeight = 0;
};

AFX_END_OWN_CREATE

// SPDX-License-Identifier: MIT
// CFrameWnd, a top-level window with title, menu and accelerators.
#pragma once

#include "afx/Wnd.h"
#include "afxres.h"

class CControlBar;

/// Styles for frame windows that show a document's name in their title. The library has no documents, so
/// neither style has an effect.
#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L
/// Style of a child window that fills a frame. The child's ID is AFX_IDW_PANE_FIRST.
#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

/// A top-level window with title, menu and accelerators. Allocate the object with `new`; the object deletes
/// itself when its window is destroyed.
class MFC_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd() = default;
    ~CFrameWnd() override;

    /// Argument of Create() that lets the system choose position and size.
    static const CRect rectDefault;

    /// TRUE greys menu items whose command has no handler; FALSE leaves them enabled.
    BOOL m_bAutoMenuEnable = TRUE;

    /// Creates the window. A NULL class name stands for the framework's frame class. On failure, returns
    /// FALSE; the object has then deleted itself.
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    using CWnd::Create;
    /// Creates the window with the resources of the ID `nIDResource`: string (its first line is the title),
    /// menu, accelerators and icon. Missing resources are left out.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    /// FALSE if the table does not exist, or if a table is already loaded.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    /// Shows the frame, restores a minimised frame, and brings the frame to the top.
    virtual void ActivateFrame(int nCmdShow = -1);
    /// The active frame. A CFrameWnd without child frames returns itself.
    virtual CFrameWnd* GetActiveFrame() { return this; }
    /// Moves the control bars to their edges, and the child AFX_IDW_PANE_FIRST into the rest of the client area.
    /// Called at creation and after each change of size except minimising.
    virtual void RecalcLayout(BOOL bNotify = TRUE);

    /// The control bar with this ID; NULL if there is none.
    CControlBar* GetControlBar(UINT nID);
    /// Shows or hides the bar and lays the frame out anew; with `bDelay` in the next idle time of the program.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    /// Sets the text of the message line, until the next menu or command shows its own.
    void SetMessageText(LPCTSTR lpszText);
    /// The text is the first line of a string resource.
    void SetMessageText(UINT nID);
    /// The window with the message line: the status bar; NULL if there is none.
    virtual CWnd* GetMessageBar();
    /// The message for a command: the first line of the string resource with its ID. Empty if there is none.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    virtual HACCEL GetDefaultAccelerator() { return m_hAccelTable; }

    BOOL IsFrameWnd() const override { return TRUE; }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Routes commands to the frame, then to the application.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    friend class CWnd;

    /// Called during creation of the window, for example to create children. FALSE makes the creation fail.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    /// Registers a window class with the icon `nIDResource` and returns the name of the class. NULL if the
    /// icon does not exist.
    LPCTSTR GetIconWndClass(DWORD dwDefaultStyle, UINT nIDResource);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    /// Show and hide the bar whose ID is that of the command, such as ID_VIEW_STATUS_BAR.
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);
    /// Enables the pane while its key is on.
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);

    HACCEL m_hAccelTable = nullptr;
    UINT m_nIDHelp = 0;
    CString m_strTitle;

    DECLARE_MESSAGE_MAP()

private:
    UINT m_nIDLastMessage = 0; // the string that the message line shows; 0 for another text
    bool m_bLayingOut = false;
};

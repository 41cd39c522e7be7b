#pragma once

#include "afx/Wnd.h"
#include "afxres.h"

/// Style of frame windows whose title is extended by a document's name. There are no documents; it does
/// nothing.
#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L
/// Style of a child window that fills a frame: child ID AFX_IDW_PANE_FIRST.
#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

/// A top-level window with title, menu and accelerators. The object is made with `new` and deletes itself
/// when its window is destroyed.
class MFC_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd() = default;
    ~CFrameWnd() override;

    /// Tells Create() to let the system choose position and size.
    static const CRect rectDefault;

    /// Items of menus whose command nobody handles are greyed. Clear it before the window is created to keep
    /// them.
    BOOL m_bAutoMenuEnable = TRUE;

    /// Creates the window. NULL for the class name means the framework's frame class. FALSE on failure: the
    /// object has deleted itself then.
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    using CWnd::Create;
    /// Creates the window with everything that has the ID `nIDResource`: the string (the first line is the
    /// title), menu, accelerators and icon, as far as they are there.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    /// FALSE if there is no such table or one is loaded already.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    /// Shows the frame, restores it if it is minimised, and brings it to the top.
    virtual void ActivateFrame(int nCmdShow = -1);
    /// The frame that works for this one: itself.
    virtual CFrameWnd* GetActiveFrame() { return this; }
    /// Lays the child AFX_IDW_PANE_FIRST out over the client area. Called after each change of size.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
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

    /// Called while the window is created, to make children. FALSE lets the creation fail.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    /// The name of a window class with the frame's icon; registers it.
    LPCTSTR GetIconWndClass(DWORD dwDefaultStyle, UINT nIDResource);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);

    HACCEL m_hAccelTable = nullptr;
    UINT m_nIDHelp = 0;
    CString m_strTitle;

    DECLARE_MESSAGE_MAP()
};

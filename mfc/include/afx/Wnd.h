// SPDX-License-Identifier: MIT
// CWnd, a window.
#pragma once

#include "afx/CmdTarget.h"

class CBitmap;
class CDataExchange;
class CDialog;
class CFont;
class CFrameWnd;
class CRgn;
struct CCreateContext;

// <winuser.h> and <windowsx.h> define macros with the names of these members.
#undef GetNextWindow
#undef SubclassWindow

// Derived classes hide CWnd::Create() by a Create() with arguments of their own, which some compilers warn about. The
// macros disable the warning around these classes.
#if defined(__GNUC__)
#define AFX_BEGIN_OWN_CREATE                                                                                 \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Woverloaded-virtual\"")
#define AFX_END_OWN_CREATE _Pragma("GCC diagnostic pop")
#else
#define AFX_BEGIN_OWN_CREATE
#define AFX_END_OWN_CREATE
#endif

/// Flags of CWnd::RunModalLoop().
#define MLF_NOIDLEMSG 0x0001  // the loop does not send WM_ENTERIDLE to the parent
#define MLF_NOKICKIDLE 0x0002 // the loop does not send WM_KICKIDLE to the window
#define MLF_SHOWONIDLE 0x0004 // shows a hidden window once the loop is idle, or after 100 ms without idling

/// A window. The object and the window have separate lifetimes: Create() and SubclassWindow() attach the
/// object to a window, WM_NCDESTROY of the window detaches it, and the destructor destroys a window that is
/// still attached.
///
/// A member with the name of a Win32 function calls that function with m_hWnd and returns its result; the
/// window must exist. Such members have comments only if they do more. Returned CWnd pointers may be
/// temporary (see FromHandle()).
class MFC_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

public:
    /// The window, or NULL. Creation, Attach() and Detach() change the member; programs must not assign it.
    HWND m_hWnd = nullptr;

    CWnd() = default;
    /// Destroys the window if it still exists. Handlers of derived classes no longer run at that time. A
    /// derived class that needs its OnDestroy() calls DestroyWindow() in its own destructor.
    ~CWnd() override;

    /// Values for SetWindowPos(): `&wndTop` and so on.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }
    /// The handle. The call is allowed on a NULL object and then returns NULL.
    HWND GetSafeHwnd() const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// Change style bits. With a nonzero `nFlags`, the function also calls SetWindowPos() with these flags;
    /// size, position and Z order stay. FALSE if no bit changed.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL PASCAL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);

    // ---- Handle maps (per thread) ----

    /// The attached object of `hWnd`, else a temporary object, which the message loop deletes while no
    /// message waits and no message handler runs. NULL for a NULL handle.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    /// The object attached to `hWnd`, or NULL.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    /// Deletes the temporary objects. Their windows stay valid.
    static void PASCAL DeleteTempMap();
    /// Attaches the object to a window without subclassing: messages do not reach the message map. The object
    /// owns the window from now on (see the destructor). FALSE for a NULL handle. Throws CMemoryException* if
    /// memory runs out; the object then stays detached.
    BOOL Attach(HWND hWndNew);
    /// Detaches the object. The window continues to exist.
    HWND Detach();
    /// Attaches the object and routes the window's messages through it. Messages without a row in the message
    /// map go to the former window procedure. `hWnd` must not have an object yet. FALSE on failure.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Restores the former window procedure and detaches the object. Returns the window.
    HWND UnsubclassWindow();
    /// Called before the window's messages reach this object, at creation and at subclassing. m_hWnd is set.
    virtual void PreSubclassWindow() {}
    /// Address of the variable with the former window procedure.
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }

    // ---- Creation and destruction ----

    /// Creates a child window. A NULL class name stands for the framework's child window class.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// Creates a window. On failure the function has called PostNcDestroy(), so the object may be deleted.
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Called before creation; overrides change the arguments in `cs`. FALSE makes the creation fail.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// FALSE if there is no window. PostNcDestroy() may delete the object during the call.
    virtual BOOL DestroyWindow();

    // ---- State ----

    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowVisible() const;
    BOOL ShowWindow(int nCmdShow);
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* SetActiveWindow();
    static CWnd* PASCAL GetActiveWindow();
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetForegroundWindow();
    CWnd* SetFocus();
    static CWnd* PASCAL GetFocus();
    CWnd* SetCapture();
    static CWnd* PASCAL GetCapture();
    /// TRUE for frame windows.
    virtual BOOL IsFrameWnd() const { return FALSE; }

    // ---- Text, font, icon ----

    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;

    // ---- Size, position, coordinates ----

    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    /// Centres the window over `pAlternateOwner`, else over its owner, and keeps the window inside the work
    /// area of the monitor. If the owner is NULL, hidden or minimised, centres the window in the work area. A
    /// child is centred over its parent and kept inside the parent's client area.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    void BringWindowToTop();
    UINT ArrangeIconicWindows();
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    int GetWindowRgn(HRGN hRgn) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    /// Converts a client rectangle to the window rectangle around it. With `nAdjustType` 0, the border of
    /// WS_EX_CLIENTEDGE is left out.
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = 0);
    enum { reposDefault = 0, reposQuery = 1, reposExtra = 2 };
    /// Moves the control bars among the children with IDs from `nIDFirst` to `nIDLast` to their edges of the client
    /// area, or of `lpRectClient`. The child `nIDLeftOver` fills the room that is left; with reposExtra, less the
    /// margins in `lpRectParam`. With reposQuery nothing moves, and `*lpRectParam` receives that room. `bStretch`
    /// TRUE: bars are as wide as the client area; FALSE: they have their own width, and reposQuery answers their
    /// size.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);

    // ---- Painting ----

    /// The functions that return a CDC* return NULL on failure.
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void ShowOwnedPopups(BOOL bShow = TRUE);

    // ---- Timers ----

    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer);
    BOOL KillTimer(UINT_PTR nIDEvent);

    // ---- Dialog items (children by ID) ----

    void CheckDlgButton(int nIDButton, UINT nCheck);
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    UINT IsDlgButtonChecked(int nIDButton) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);
    /// Copies values between controls and members. `bSaveAndValidate` TRUE copies controls to members and
    /// validates the values; FALSE copies members to controls. Returns FALSE if the exchange failed; the user
    /// has then seen a message. If a value was refused, its control has the focus.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Override the function with the DDX_ and DDV_ calls of the window.
    virtual void DoDataExchange(CDataExchange* pDX);
    /// Asks `pTarget` to update the child windows (see CCmdUI::DoUpdate()). `bDisableIfNoHndler` applies to
    /// push buttons only.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// Does nothing, because the library has no ActiveX controls.
    void AttachControlSite(CWnd* /*pWnd*/) {}

    // ---- Scrolling. The functions with `nBar` use the control of GetScrollBarCtrl(), if there is one. ----

    int GetScrollPos(int nBar) const;
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    /// Both functions fill in lpScrollInfo->cbSize; GetScrollInfo() also fills in fMask. SetScrollInfo()
    /// returns TRUE.
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// The largest position that the user can reach: nMax - (nPage - 1), or nMax if nPage is 0; at least
    /// nMin.
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    /// A scroll bar control that replaces the window's own scroll bar; the base returns NULL.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);

    // ---- Menus, caret, clipboard, drag and drop ----

    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL bRevert) const;
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight);
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();
    BOOL OpenClipboard();
    static CWnd* PASCAL GetClipboardOwner();
    static CWnd* PASCAL GetClipboardViewer();
    static CWnd* PASCAL GetOpenClipboardWindow();
    HWND SetClipboardViewer();
    BOOL ChangeClipboardChain(HWND hWndNext);
    void DragAcceptFiles(BOOL bAccept = TRUE);

    // ---- Finding windows ----

    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetLastActivePopup() const;
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    /// The window from SetOwner(), else the parent.
    CWnd* GetOwner() const;
    /// Sets the result of GetOwner(); NULL stands for the parent. The library does not use the owner.
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd ? pOwnerWnd->m_hWnd : nullptr; }
    /// The nearest frame window above this window; NULL if there is none.
    CFrameWnd* GetParentFrame() const;
    /// The topmost frame window above this window, or this window if it is a frame without a frame above it.
    /// NULL if there is none.
    CFrameWnd* GetTopLevelFrame() const;
    /// The topmost window above this window. Owners count as parents. A window without a parent returns
    /// itself.
    CWnd* GetTopLevelParent() const;
    /// The top-level window above this window, or the last window in that window's chain of owners.
    CWnd* GetTopLevelOwner() const;
    /// The nearest window above that is not a child. A window that is not a child returns itself.
    CWnd* GetParentOwner() const;
    /// The descendant with this ID. With `bOnlyPerm`, only windows with an attached object are found.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    static CWnd* PASCAL GetDesktopWindow();
    static CWnd* PASCAL WindowFromPoint(POINT point);

    // ---- Messages ----

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Sends the message to all children; with `bDeep`, to all descendants; with `bOnlyPerm`, only to those
    /// with an attached object.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                                BOOL bDeep, BOOL bOnlyPerm);
    /// Without a caption, the title is the name of the application.
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    BOOL FlashWindow(BOOL bInvert);
    DWORD GetWindowContextHelpId() const;
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    /// Called before translation for queued messages of this window and of the windows below it (main window:
    /// of every window of the thread). TRUE discards the message.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Calls PreTranslateMessage() of the message's window and of its parents up to `hWndStop`, until a call
    /// returns TRUE.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// Passes a keyboard or mouse message to ::IsDialogMessage().
    BOOL PreTranslateInput(LPMSG lpMsg);
    BOOL IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }
    /// The parent calls the function to hand the current message back to this control. TRUE if the control
    /// handled the message.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    /// Runs a message loop until EndModalLoop() or the end of the window. Returns the argument of
    /// EndModalLoop(); -1 after WM_QUIT.
    int RunModalLoop(DWORD dwFlags = 0);
    /// Whether the modal loop continues.
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

protected:
    friend class CDialog;
    friend class CFrameWnd;
    friend struct AfxWndMapTraits;
    friend MFC_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
    friend LRESULT CALLBACK AfxCbtHook(int nCode, WPARAM wParam, LPARAM lParam);

    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}

    // ---- Message processing: the functions between the window procedure and a handler ----

    /// Receives every message of the window. The base calls OnWndMsg() and, for a message without a
    /// handler, DefWindowProc().
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Passes WM_COMMAND to OnCommand() and WM_NOTIFY to OnNotify(). For other messages, calls the handler in
    /// the message map. FALSE if the message was not handled.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Handles WM_COMMAND. The base offers the message to the control and then calls OnCmdMsg(). Nonzero if
    /// the message was handled. The base also returns nonzero, without calling a handler, for a disabled
    /// command, and for notifications of controls during UpdateData().
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// Handles WM_NOTIFY as OnCommand() handles WM_COMMAND.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Called when the parent hands a message of this control back. TRUE ends the handling in the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Calls the handler that the message map has for the reflected message.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Hands the current message back to the control `hWndChild`.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// Calls the former window procedure, or ::DefWindowProc().
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Calls DefWindowProc() with the current message and its original parameters.
    LRESULT Default();
    /// The current message. Call the function inside a handler only.
    static const MSG* PASCAL GetCurrentMessage();
    /// Called at the end of WM_NCDESTROY, and when the creation of the window has failed. m_hWnd is NULL. A
    /// class with objects on the heap deletes the object here.
    virtual void PostNcDestroy() {}

    // ---- Handlers. The base versions call Default() and ignore their arguments. Base versions with named
    // arguments first offer the message to its control or menu, and call Default() only if the control or
    // menu does not handle the message. OnNcDestroy() also detaches the object. ----

    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return Default() != 0; }
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose() { Default(); }
    afx_msg BOOL OnQueryEndSession() { return Default() != 0; }
    afx_msg void OnEndSession(BOOL) { Default(); }
    afx_msg BOOL OnQueryOpen() { return Default() != 0; }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnSizing(UINT, LPRECT) { Default(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnMoving(UINT, LPRECT) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
    afx_msg void OnActivateApp(BOOL, HTASK) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg void OnChildActivate() { Default(); }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }

    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return Default() != 0; }
    afx_msg void OnIconEraseBkgnd(CDC*) { Default(); }
    /// Offers the message to the control. If the control returns no brush, calls Default().
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg int OnCharToItem(UINT nKey, CListBox* pListBox, UINT nIndex);

    afx_msg void OnNcPaint() { Default(); }
    afx_msg BOOL OnNcActivate(BOOL) { return Default() != 0; }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
    afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
    afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }

    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return Default() != 0; }
    afx_msg void OnMouseHWheel(UINT, short, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnMouseHover(UINT, CPoint) { Default(); }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return Default() != 0; }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg void OnDropFiles(HDROP) { Default(); }

    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnHotKey(UINT, UINT, UINT) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return Default() != 0; }

    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnInitMenu(CMenu*) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
    afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*) { return Default(); }
    afx_msg void OnEnterMenuLoop(BOOL) { Default(); }
    afx_msg void OnExitMenuLoop(BOOL) { Default(); }
    afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg void OnDisplayChange(UINT, int, int) { Default(); }
    afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
    afx_msg void OnWinIniChange(LPCTSTR) { Default(); }
    afx_msg void OnFontChange() { Default(); }
    afx_msg void OnTimeChange() { Default(); }
    afx_msg void OnSysColorChange() { Default(); }
    afx_msg void OnCompacting(UINT) { Default(); }
    afx_msg void OnPaletteChanged(CWnd*) { Default(); }
    afx_msg void OnPaletteIsChanging(CWnd*) { Default(); }
    afx_msg BOOL OnQueryNewPalette() { return Default() != 0; }
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*) { return Default() != 0; }
    afx_msg BOOL OnDeviceChange(UINT, DWORD_PTR) { return Default() != 0; }
    afx_msg UINT OnPowerBroadcast(UINT, LPARAM) { return static_cast<UINT>(Default()); }
    afx_msg void OnDrawClipboard() { Default(); }
    afx_msg void OnDestroyClipboard() { Default(); }
    afx_msg void OnRenderFormat(UINT) { Default(); }
    afx_msg void OnRenderAllFormats() { Default(); }
    afx_msg void OnChangeCbChain(HWND, HWND) { Default(); }

    /// The former window procedure; NULL stands for ::DefWindowProc().
    WNDPROC m_pfnSuper = nullptr;
    HWND m_hWndOwner = nullptr;
    /// State of RunModalLoop().
    BOOL m_bModalLoop = FALSE;
    BOOL m_bContinueModal = FALSE;
    int m_nModalResult = -1;

    DECLARE_MESSAGE_MAP()
};

/// The window procedure of all windows that a CWnd created or subclassed.
MFC_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/// Runs one message through `pWnd`: sets the current message, and catches exceptions of the handler.
MFC_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0, LPARAM lParam = 0);
/// Attaches the next window that this thread creates to `pWnd`, before the window's first message.
MFC_API void AfxHookWindowCreate(CWnd* pWnd);
/// Ends AfxHookWindowCreate(). FALSE if no window was attached, because the creation failed early.
MFC_API BOOL AfxUnhookWindowCreate();
/// Numbers of attached and of temporary window objects of the calling thread, for leak checks.
MFC_API void AfxGetWndMapCounts(std::size_t* pPermanent, std::size_t* pTemporary);

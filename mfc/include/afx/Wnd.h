#pragma once

#include "afx/CmdTarget.h"

class CBitmap;
class CDataExchange;
class CDialog;
class CFont;
class CFrameWnd;
class CRgn;
struct CCreateContext;

// Macros of <winuser.h> and <windowsx.h> that stand in the way of members.
#undef GetNextWindow
#undef SubclassWindow

/// Flags of CWnd::RunModalLoop().
#define MLF_NOIDLEMSG 0x0001  // no WM_ENTERIDLE to the parent
#define MLF_NOKICKIDLE 0x0002 // no WM_KICKIDLE to the window
#define MLF_SHOWONIDLE 0x0004 // show the window, if hidden, when the loop is idle for the first time

/// A window. The object and the window are two things with lifetimes of their own: Create() and
/// SubclassWindow() tie them together, the window's WM_NCDESTROY parts them, and the destructor destroys a
/// window that is still there.
///
/// Members named like a Win32 function call it with m_hWnd and return what it returns; they need a window,
/// and have comments only where they do more. Pointers to windows that come back may be temporary
/// (FromHandle()).
class MFC_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

public:
    /// The window, or NULL. It changes by creation, Attach() and Detach(), not by assignment.
    HWND m_hWnd = nullptr;

    CWnd() = default;
    /// Destroys the window if there still is one. Handlers of derived classes do not run any more by then, so
    /// a derived class whose OnDestroy() matters calls DestroyWindow() in its own destructor.
    ~CWnd() override;

    /// Values for SetWindowPos(): `&wndTop` and so on.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }
    /// The handle; NULL also for a NULL object.
    HWND GetSafeHwnd() const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// @name Changes style bits; with `nFlags` nonzero SetWindowPos() is called with them and the size kept.
    /// FALSE if nothing changed. @{
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL PASCAL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    /// @}

    // ---- Handle maps (per thread) ----

    /// The object of `hWnd`, else a temporary one that lives until the message loop is next idle. NULL for
    /// NULL.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    /// The object attached to `hWnd`, or NULL.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    /// Deletes the temporary objects; their windows stay.
    static void PASCAL DeleteTempMap();
    /// Ties the object to a window without changing how the window behaves: no message reaches the message
    /// map. FALSE for NULL. The object then owns the window (see the destructor). Throws CMemoryException*
    /// when memory runs out; nothing is tied then.
    BOOL Attach(HWND hWndNew);
    /// Parts the object from its window, which lives on.
    HWND Detach();
    /// Attaches and routes the window's messages through this object; what the map does not handle goes to
    /// the former window procedure. `hWnd` must have no object yet. FALSE on failure.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Puts the former window procedure back and detaches; returns the window.
    HWND UnsubclassWindow();
    /// Called just before the window's messages start to reach this object, whichever way it is tied. m_hWnd
    /// is set.
    virtual void PreSubclassWindow() {}
    /// Where the former window procedure is kept.
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }

    // ---- Creation and destruction ----

    /// Creates a child window. NULL for the class name means the framework's child window class.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// Creates any window. On failure PostNcDestroy() has run, so the object may be gone.
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Last chance to change what CreateEx() will ask for. FALSE makes the creation fail.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// FALSE without a window. The object may be gone afterwards (PostNcDestroy()).
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
    /// Whether this is a frame window.
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
    /// Centres over `pAlternateOwner`, else over the owner (the parent for a child), and keeps the window on
    /// its monitor's work area.
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
    /// Turns a client rectangle into the window rectangle that holds it.
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = 0);

    // ---- Painting ----

    /// The four that take a DC answer NULL on failure.
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
    /// Moves values between the controls and the members: TRUE from controls to members, with validation.
    /// FALSE if a value was refused; the user has been told and the control has the focus.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Overridden with the window's DDX_ and DDV_ calls.
    virtual void DoDataExchange(CDataExchange* pDX);
    /// Sends update requests for the buttons among the children to `pTarget` (see CCmdUI).
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// Nothing to do: there are no ActiveX controls.
    void AttachControlSite(CWnd* /*pWnd*/) {}

    // ---- Scrolling ----

    int GetScrollPos(int nBar) const;
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// Largest position a user can reach: the range's end less the page.
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    /// The scroll bar that stands beside the window in place of its own; the base has none.
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
    /// The window that SetOwner() named, else the parent.
    CWnd* GetOwner() const;
    /// Makes another window than the parent the target of commands and notifications.
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd ? pOwnerWnd->m_hWnd : nullptr; }
    /// The nearest frame window above; NULL if there is none.
    CFrameWnd* GetParentFrame() const;
    /// The topmost frame window above; NULL if there is none.
    CFrameWnd* GetTopLevelFrame() const;
    /// The topmost window above, owners included.
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    /// The nearest window above that is no child; the window itself if it is none.
    CWnd* GetParentOwner() const;
    /// The descendant with this ID. Only windows with an object are found if `bOnlyPerm`.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    static CWnd* PASCAL GetDesktopWindow();
    static CWnd* PASCAL WindowFromPoint(POINT point);

    // ---- Messages ----

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Sends to all children, and to theirs with `bDeep`; with `bOnlyPerm` only to windows with an object.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                                BOOL bDeep, BOOL bOnlyPerm);
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    BOOL FlashWindow(BOOL bInvert);
    DWORD GetWindowContextHelpId() const;
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    /// Called for every queued message before it is translated; TRUE keeps it from being dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Asks the window of the message and its parents up to `hWndStop`, in that order.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// Lets ::IsDialogMessage() look at a keyboard or mouse message.
    BOOL PreTranslateInput(LPMSG lpMsg);
    BOOL IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }
    /// Gives a message that the parent got from this control back to it. TRUE if the control handled it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    /// Runs messages until EndModalLoop(), and returns its argument.
    int RunModalLoop(DWORD dwFlags = 0);
    /// Whether the modal loop goes on.
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

protected:
    friend class CDialog;
    friend class CFrameWnd;
    friend struct AfxWndMapTraits;
    friend MFC_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
    friend LRESULT CALLBACK AfxCbtHook(int nCode, WPARAM wParam, LPARAM lParam);

    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}

    // ---- Message processing, from the outside in ----

    /// Everything the window receives. The base asks OnWndMsg() and then DefWindowProc().
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks through the message map. FALSE if nothing handled the message.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// WM_COMMAND. The base offers it to the sending control, then to OnCmdMsg(); nonzero if it was handled.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// WM_NOTIFY, likewise.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// A message of this control that its parent hands back. TRUE keeps the parent from handling it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Calls the reflected handler of the message map for such a message.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Hands the current message back to the control `hWndChild`.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// The former window procedure, or ::DefWindowProc().
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc() for the message that is being handled, with the parameters it came with.
    LRESULT Default();
    /// The message that is being handled. Use inside a handler only.
    static const MSG* PASCAL GetCurrentMessage();
    /// The window is gone, m_hWnd is NULL. Classes whose objects live on the heap delete themselves here.
    virtual void PostNcDestroy() {}

    // ---- Handlers. The base of each calls Default(): the parameters given to it are not used. ----

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
    /// Offers the message to the control before the default.
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

    /// How the window procedure that was there before this object took over is reached; NULL for
    /// ::DefWindowProc().
    WNDPROC m_pfnSuper = nullptr;
    HWND m_hWndOwner = nullptr;
    /// State of RunModalLoop().
    BOOL m_bModalLoop = FALSE;
    BOOL m_bContinueModal = FALSE;
    int m_nModalResult = -1;

    DECLARE_MESSAGE_MAP()
};

/// The window procedure of every window that has an object.
MFC_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/// Runs one message through `pWnd` with exceptions stopped and the current message remembered.
MFC_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0, LPARAM lParam = 0);
/// Ties the next window that this thread creates to `pWnd`, before its first message.
MFC_API void AfxHookWindowCreate(CWnd* pWnd);
/// Ends that. FALSE if no window was tied, that is if the creation failed early.
MFC_API BOOL AfxUnhookWindowCreate();
/// Number of attached and of temporary window objects of the calling thread, for leak checks.
MFC_API void AfxGetWndMapCounts(std::size_t* pPermanent, std::size_t* pTemporary);

// SPDX-License-Identifier: MIT
// Message-map rows for Windows messages and for the notifications of the standard controls.
#pragma once

#include "afx/CmdTarget.h"

// A row ON_WM_X() ties the message WM_X to the member function OnX, whose declaration stands in CWnd.
// ON_WM_HELPINFO() ties WM_HELP to OnHelpInfo.

/// A row that maps `message` to the member function `name` of the class in BEGIN_MESSAGE_MAP.
#define AFX_ON_WM(message, sig, result, name, args)                                                          \
    {message, 0, 0, 0, AfxSig::sig, static_cast<result(CWnd::*) args>(&AfxMapNames::Class::name)},

// Messages whose handlers exist with two argument types. The type of the program's handler selects
// the overload.
#ifdef _WIN64
template <class C> constexpr AFX_MSGMAP_ENTRY AfxTimerEntry(void (C::*f)(UINT_PTR)) {
    return {WM_TIMER, 0, 0, 0, AfxSig::v_timer, static_cast<void (CWnd::*)(UINT_PTR)>(f)};
}
#endif
template <class C> constexpr AFX_MSGMAP_ENTRY AfxTimerEntry(void (C::*f)(UINT)) {
    return {WM_TIMER, 0, 0, 0, AfxSig::v_timerUint, static_cast<void (CWnd::*)(UINT)>(f)};
}
template <class C> constexpr AFX_MSGMAP_ENTRY AfxHitTestEntry(UINT (C::*f)(CPoint)) {
    return {WM_NCHITTEST, 0, 0, 0, AfxSig::u_p, static_cast<UINT (CWnd::*)(CPoint)>(f)};
}
template <class C> constexpr AFX_MSGMAP_ENTRY AfxHitTestEntry(LRESULT (C::*f)(CPoint)) {
    return {WM_NCHITTEST, 0, 0, 0, AfxSig::l_p, static_cast<LRESULT (CWnd::*)(CPoint)>(f)};
}
template <class C>
constexpr AFX_MSGMAP_ENTRY AfxScrollEntry(UINT message, void (C::*f)(UINT, UINT, CScrollBar*)) {
    return {message, 0, 0, 0, AfxSig::v_scroll, static_cast<void (CWnd::*)(UINT, UINT, CScrollBar*)>(f)};
}
template <class C> constexpr AFX_MSGMAP_ENTRY AfxScrollEntry(UINT message, void (C::*f)(UINT, UINT, CWnd*)) {
    return {message, 0, 0, 0, AfxSig::v_scrollWnd, static_cast<void (CWnd::*)(UINT, UINT, CWnd*)>(f)};
}
template <class C> constexpr AFX_MSGMAP_ENTRY AfxActivateAppEntry(void (C::*f)(BOOL, DWORD)) {
    return {WM_ACTIVATEAPP, 0, 0, 0, AfxSig::v_bTask, static_cast<void (CWnd::*)(BOOL, DWORD)>(f)};
}
template <class C> constexpr AFX_MSGMAP_ENTRY AfxActivateAppEntry(void (C::*f)(BOOL, HTASK)) {
    return {WM_ACTIVATEAPP, 0, 0, 0, AfxSig::v_bTaskHandle, static_cast<void (CWnd::*)(BOOL, HTASK)>(f)};
}

// Life, state and size
#define ON_WM_CREATE() AFX_ON_WM(WM_CREATE, i_create, int, OnCreate, (LPCREATESTRUCT))
#define ON_WM_NCCREATE() AFX_ON_WM(WM_NCCREATE, i_create, BOOL, OnNcCreate, (LPCREATESTRUCT))
#define ON_WM_DESTROY() AFX_ON_WM(WM_DESTROY, v, void, OnDestroy, ())
#define ON_WM_NCDESTROY() AFX_ON_WM(WM_NCDESTROY, v, void, OnNcDestroy, ())
#define ON_WM_CLOSE() AFX_ON_WM(WM_CLOSE, v, void, OnClose, ())
#define ON_WM_QUERYENDSESSION() AFX_ON_WM(WM_QUERYENDSESSION, b, BOOL, OnQueryEndSession, ())
#define ON_WM_ENDSESSION() AFX_ON_WM(WM_ENDSESSION, v_b, void, OnEndSession, (BOOL))
#define ON_WM_QUERYOPEN() AFX_ON_WM(WM_QUERYOPEN, b, BOOL, OnQueryOpen, ())
#define ON_WM_SIZE() AFX_ON_WM(WM_SIZE, v_uLoHi, void, OnSize, (UINT, int, int))
#define ON_WM_SIZING() AFX_ON_WM(WM_SIZING, v_rect, void, OnSizing, (UINT, LPRECT))
#define ON_WM_MOVE() AFX_ON_WM(WM_MOVE, v_xy, void, OnMove, (int, int))
#define ON_WM_MOVING() AFX_ON_WM(WM_MOVING, v_rect, void, OnMoving, (UINT, LPRECT))
#define ON_WM_GETMINMAXINFO() AFX_ON_WM(WM_GETMINMAXINFO, v_minMax, void, OnGetMinMaxInfo, (MINMAXINFO*))
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    AFX_ON_WM(WM_WINDOWPOSCHANGING, v_windowPos, void, OnWindowPosChanging, (WINDOWPOS*))
#define ON_WM_WINDOWPOSCHANGED()                                                                             \
    AFX_ON_WM(WM_WINDOWPOSCHANGED, v_windowPos, void, OnWindowPosChanged, (WINDOWPOS*))
#define ON_WM_SHOWWINDOW() AFX_ON_WM(WM_SHOWWINDOW, v_bu, void, OnShowWindow, (BOOL, UINT))
#define ON_WM_ENABLE() AFX_ON_WM(WM_ENABLE, v_b, void, OnEnable, (BOOL))
#define ON_WM_ACTIVATE() AFX_ON_WM(WM_ACTIVATE, v_uwb, void, OnActivate, (UINT, CWnd*, BOOL))
#define ON_WM_ACTIVATEAPP() AfxActivateAppEntry(&AfxMapNames::Class::OnActivateApp),
#define ON_WM_SETFOCUS() AFX_ON_WM(WM_SETFOCUS, v_w, void, OnSetFocus, (CWnd*))
#define ON_WM_KILLFOCUS() AFX_ON_WM(WM_KILLFOCUS, v_w, void, OnKillFocus, (CWnd*))
#define ON_WM_CANCELMODE() AFX_ON_WM(WM_CANCELMODE, v, void, OnCancelMode, ())
#define ON_WM_CHILDACTIVATE() AFX_ON_WM(WM_CHILDACTIVATE, v, void, OnChildActivate, ())
#define ON_WM_PARENTNOTIFY() AFX_ON_WM(WM_PARENTNOTIFY, v_ul, void, OnParentNotify, (UINT, LPARAM))
#define ON_WM_STYLECHANGED() AFX_ON_WM(WM_STYLECHANGED, v_style, void, OnStyleChanged, (int, LPSTYLESTRUCT))
#define ON_WM_STYLECHANGING()                                                                                \
    AFX_ON_WM(WM_STYLECHANGING, v_style, void, OnStyleChanging, (int, LPSTYLESTRUCT))
#define ON_WM_TIMER() AfxTimerEntry(&AfxMapNames::Class::OnTimer),

// Painting
#define ON_WM_PAINT() AFX_ON_WM(WM_PAINT, v, void, OnPaint, ())
#define ON_WM_ERASEBKGND() AFX_ON_WM(WM_ERASEBKGND, b_d, BOOL, OnEraseBkgnd, (CDC*))
#define ON_WM_ICONERASEBKGND() AFX_ON_WM(WM_ICONERASEBKGND, v_d, void, OnIconEraseBkgnd, (CDC*))
#define ON_WM_CTLCOLOR() AFX_ON_WM(WM_CTLCOLOR, brush_dwu, HBRUSH, OnCtlColor, (CDC*, CWnd*, UINT))
#define ON_WM_QUERYDRAGICON() AFX_ON_WM(WM_QUERYDRAGICON, icon, HCURSOR, OnQueryDragIcon, ())
#define ON_WM_DRAWITEM() AFX_ON_WM(WM_DRAWITEM, v_drawItem, void, OnDrawItem, (int, LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_ON_WM(WM_MEASUREITEM, v_measureItem, void, OnMeasureItem, (int, LPMEASUREITEMSTRUCT))
#define ON_WM_DELETEITEM()                                                                                   \
    AFX_ON_WM(WM_DELETEITEM, v_deleteItem, void, OnDeleteItem, (int, LPDELETEITEMSTRUCT))
#define ON_WM_COMPAREITEM()                                                                                  \
    AFX_ON_WM(WM_COMPAREITEM, i_compareItem, int, OnCompareItem, (int, LPCOMPAREITEMSTRUCT))
#define ON_WM_VKEYTOITEM() AFX_ON_WM(WM_VKEYTOITEM, i_listKey, int, OnVKeyToItem, (UINT, CListBox*, UINT))
#define ON_WM_CHARTOITEM() AFX_ON_WM(WM_CHARTOITEM, i_listKey, int, OnCharToItem, (UINT, CListBox*, UINT))

// Frame area
#define ON_WM_NCPAINT() AFX_ON_WM(WM_NCPAINT, v, void, OnNcPaint, ())
#define ON_WM_NCACTIVATE() AFX_ON_WM(WM_NCACTIVATE, b_b, BOOL, OnNcActivate, (BOOL))
#define ON_WM_NCCALCSIZE()                                                                                   \
    AFX_ON_WM(WM_NCCALCSIZE, v_ncCalcSize, void, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS*))
#define ON_WM_NCHITTEST() AfxHitTestEntry(&AfxMapNames::Class::OnNcHitTest),
#define ON_WM_NCLBUTTONDOWN() AFX_ON_WM(WM_NCLBUTTONDOWN, v_up, void, OnNcLButtonDown, (UINT, CPoint))
#define ON_WM_NCLBUTTONUP() AFX_ON_WM(WM_NCLBUTTONUP, v_up, void, OnNcLButtonUp, (UINT, CPoint))
#define ON_WM_NCLBUTTONDBLCLK() AFX_ON_WM(WM_NCLBUTTONDBLCLK, v_up, void, OnNcLButtonDblClk, (UINT, CPoint))
#define ON_WM_NCRBUTTONDOWN() AFX_ON_WM(WM_NCRBUTTONDOWN, v_up, void, OnNcRButtonDown, (UINT, CPoint))
#define ON_WM_NCRBUTTONUP() AFX_ON_WM(WM_NCRBUTTONUP, v_up, void, OnNcRButtonUp, (UINT, CPoint))
#define ON_WM_NCRBUTTONDBLCLK() AFX_ON_WM(WM_NCRBUTTONDBLCLK, v_up, void, OnNcRButtonDblClk, (UINT, CPoint))
#define ON_WM_NCMBUTTONDOWN() AFX_ON_WM(WM_NCMBUTTONDOWN, v_up, void, OnNcMButtonDown, (UINT, CPoint))
#define ON_WM_NCMBUTTONUP() AFX_ON_WM(WM_NCMBUTTONUP, v_up, void, OnNcMButtonUp, (UINT, CPoint))
#define ON_WM_NCMBUTTONDBLCLK() AFX_ON_WM(WM_NCMBUTTONDBLCLK, v_up, void, OnNcMButtonDblClk, (UINT, CPoint))
#define ON_WM_NCMOUSEMOVE() AFX_ON_WM(WM_NCMOUSEMOVE, v_up, void, OnNcMouseMove, (UINT, CPoint))

// Mouse
#define ON_WM_MOUSEMOVE() AFX_ON_WM(WM_MOUSEMOVE, v_up, void, OnMouseMove, (UINT, CPoint))
#define ON_WM_MOUSEWHEEL() AFX_ON_WM(WM_MOUSEWHEEL, b_wheel, BOOL, OnMouseWheel, (UINT, short, CPoint))
#define ON_WM_MOUSEHWHEEL() AFX_ON_WM(WM_MOUSEHWHEEL, v_wheel, void, OnMouseHWheel, (UINT, short, CPoint))
#define ON_WM_MOUSELEAVE() AFX_ON_WM(WM_MOUSELEAVE, v, void, OnMouseLeave, ())
#define ON_WM_MOUSEHOVER() AFX_ON_WM(WM_MOUSEHOVER, v_up, void, OnMouseHover, (UINT, CPoint))
#define ON_WM_MOUSEACTIVATE()                                                                                \
    AFX_ON_WM(WM_MOUSEACTIVATE, i_mouseActivate, int, OnMouseActivate, (CWnd*, UINT, UINT))
#define ON_WM_LBUTTONDOWN() AFX_ON_WM(WM_LBUTTONDOWN, v_up, void, OnLButtonDown, (UINT, CPoint))
#define ON_WM_LBUTTONUP() AFX_ON_WM(WM_LBUTTONUP, v_up, void, OnLButtonUp, (UINT, CPoint))
#define ON_WM_LBUTTONDBLCLK() AFX_ON_WM(WM_LBUTTONDBLCLK, v_up, void, OnLButtonDblClk, (UINT, CPoint))
#define ON_WM_RBUTTONDOWN() AFX_ON_WM(WM_RBUTTONDOWN, v_up, void, OnRButtonDown, (UINT, CPoint))
#define ON_WM_RBUTTONUP() AFX_ON_WM(WM_RBUTTONUP, v_up, void, OnRButtonUp, (UINT, CPoint))
#define ON_WM_RBUTTONDBLCLK() AFX_ON_WM(WM_RBUTTONDBLCLK, v_up, void, OnRButtonDblClk, (UINT, CPoint))
#define ON_WM_MBUTTONDOWN() AFX_ON_WM(WM_MBUTTONDOWN, v_up, void, OnMButtonDown, (UINT, CPoint))
#define ON_WM_MBUTTONUP() AFX_ON_WM(WM_MBUTTONUP, v_up, void, OnMButtonUp, (UINT, CPoint))
#define ON_WM_MBUTTONDBLCLK() AFX_ON_WM(WM_MBUTTONDBLCLK, v_up, void, OnMButtonDblClk, (UINT, CPoint))
#define ON_WM_SETCURSOR() AFX_ON_WM(WM_SETCURSOR, b_setCursor, BOOL, OnSetCursor, (CWnd*, UINT, UINT))
#define ON_WM_CAPTURECHANGED() AFX_ON_WM(WM_CAPTURECHANGED, v_wL, void, OnCaptureChanged, (CWnd*))
#define ON_WM_CONTEXTMENU() AFX_ON_WM(WM_CONTEXTMENU, v_wp, void, OnContextMenu, (CWnd*, CPoint))
#define ON_WM_DROPFILES() AFX_ON_WM(WM_DROPFILES, v_drop, void, OnDropFiles, (HDROP))

// Keyboard
#define ON_WM_KEYDOWN() AFX_ON_WM(WM_KEYDOWN, v_key, void, OnKeyDown, (UINT, UINT, UINT))
#define ON_WM_KEYUP() AFX_ON_WM(WM_KEYUP, v_key, void, OnKeyUp, (UINT, UINT, UINT))
#define ON_WM_CHAR() AFX_ON_WM(WM_CHAR, v_key, void, OnChar, (UINT, UINT, UINT))
#define ON_WM_DEADCHAR() AFX_ON_WM(WM_DEADCHAR, v_key, void, OnDeadChar, (UINT, UINT, UINT))
#define ON_WM_SYSKEYDOWN() AFX_ON_WM(WM_SYSKEYDOWN, v_key, void, OnSysKeyDown, (UINT, UINT, UINT))
#define ON_WM_SYSKEYUP() AFX_ON_WM(WM_SYSKEYUP, v_key, void, OnSysKeyUp, (UINT, UINT, UINT))
#define ON_WM_SYSCHAR() AFX_ON_WM(WM_SYSCHAR, v_key, void, OnSysChar, (UINT, UINT, UINT))
#define ON_WM_SYSDEADCHAR() AFX_ON_WM(WM_SYSDEADCHAR, v_key, void, OnSysDeadChar, (UINT, UINT, UINT))
#define ON_WM_HOTKEY() AFX_ON_WM(WM_HOTKEY, v_hotKey, void, OnHotKey, (UINT, UINT, UINT))
#define ON_WM_GETDLGCODE() AFX_ON_WM(WM_GETDLGCODE, u, UINT, OnGetDlgCode, ())
#define ON_WM_HELPINFO() AFX_ON_WM(WM_HELP, b_help, BOOL, OnHelpInfo, (HELPINFO*))

// Scroll bars, menus, system
#define ON_WM_HSCROLL() AfxScrollEntry(WM_HSCROLL, &AfxMapNames::Class::OnHScroll),
#define ON_WM_VSCROLL() AfxScrollEntry(WM_VSCROLL, &AfxMapNames::Class::OnVScroll),
#define ON_WM_INITMENU() AFX_ON_WM(WM_INITMENU, v_menu, void, OnInitMenu, (CMenu*))
#define ON_WM_INITMENUPOPUP()                                                                                \
    AFX_ON_WM(WM_INITMENUPOPUP, v_menuPopup, void, OnInitMenuPopup, (CMenu*, UINT, BOOL))
#define ON_WM_MENUSELECT() AFX_ON_WM(WM_MENUSELECT, v_menuSelect, void, OnMenuSelect, (UINT, UINT, HMENU))
#define ON_WM_MENUCHAR() AFX_ON_WM(WM_MENUCHAR, l_menuChar, LRESULT, OnMenuChar, (UINT, UINT, CMenu*))
#define ON_WM_ENTERMENULOOP() AFX_ON_WM(WM_ENTERMENULOOP, v_b, void, OnEnterMenuLoop, (BOOL))
#define ON_WM_EXITMENULOOP() AFX_ON_WM(WM_EXITMENULOOP, v_b, void, OnExitMenuLoop, (BOOL))
#define ON_WM_ENTERIDLE() AFX_ON_WM(WM_ENTERIDLE, v_uw, void, OnEnterIdle, (UINT, CWnd*))
#define ON_WM_SYSCOMMAND() AFX_ON_WM(WM_SYSCOMMAND, v_ul, void, OnSysCommand, (UINT, LPARAM))
#define ON_WM_DISPLAYCHANGE() AFX_ON_WM(WM_DISPLAYCHANGE, v_uLoHi, void, OnDisplayChange, (UINT, int, int))
#define ON_WM_SETTINGCHANGE() AFX_ON_WM(WM_SETTINGCHANGE, v_setting, void, OnSettingChange, (UINT, LPCTSTR))
#define ON_WM_WININICHANGE() AFX_ON_WM(WM_WININICHANGE, v_text, void, OnWinIniChange, (LPCTSTR))
#define ON_WM_FONTCHANGE() AFX_ON_WM(WM_FONTCHANGE, v, void, OnFontChange, ())
#define ON_WM_TIMECHANGE() AFX_ON_WM(WM_TIMECHANGE, v, void, OnTimeChange, ())
#define ON_WM_SYSCOLORCHANGE() AFX_ON_WM(WM_SYSCOLORCHANGE, v, void, OnSysColorChange, ())
#define ON_WM_COMPACTING() AFX_ON_WM(WM_COMPACTING, v_u, void, OnCompacting, (UINT))
#define ON_WM_PALETTECHANGED() AFX_ON_WM(WM_PALETTECHANGED, v_w, void, OnPaletteChanged, (CWnd*))
#define ON_WM_PALETTEISCHANGING() AFX_ON_WM(WM_PALETTEISCHANGING, v_w, void, OnPaletteIsChanging, (CWnd*))
#define ON_WM_QUERYNEWPALETTE() AFX_ON_WM(WM_QUERYNEWPALETTE, b, BOOL, OnQueryNewPalette, ())
#define ON_WM_COPYDATA() AFX_ON_WM(WM_COPYDATA, b_copyData, BOOL, OnCopyData, (CWnd*, COPYDATASTRUCT*))
#define ON_WM_DEVICECHANGE() AFX_ON_WM(WM_DEVICECHANGE, b_device, BOOL, OnDeviceChange, (UINT, DWORD_PTR))
#define ON_WM_POWERBROADCAST() AFX_ON_WM(WM_POWERBROADCAST, u_ul, UINT, OnPowerBroadcast, (UINT, LPARAM))
#define ON_WM_DRAWCLIPBOARD() AFX_ON_WM(WM_DRAWCLIPBOARD, v, void, OnDrawClipboard, ())
#define ON_WM_DESTROYCLIPBOARD() AFX_ON_WM(WM_DESTROYCLIPBOARD, v, void, OnDestroyClipboard, ())
#define ON_WM_RENDERFORMAT() AFX_ON_WM(WM_RENDERFORMAT, v_u, void, OnRenderFormat, (UINT))
#define ON_WM_RENDERALLFORMATS() AFX_ON_WM(WM_RENDERALLFORMATS, v, void, OnRenderAllFormats, ())
#define ON_WM_CHANGECBCHAIN() AFX_ON_WM(WM_CHANGECBCHAIN, v_windows, void, OnChangeCbChain, (HWND, HWND))

// Reflected messages: the parent hands the message back, and the control's own handler runs
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    AFX_ON_WM(WM_REFLECT_BASE + WM_CTLCOLOR, brush_du, HBRUSH, CtlColor, (CDC*, UINT))
#define ON_WM_HSCROLL_REFLECT()                                                                              \
    AFX_ON_WM(WM_REFLECT_BASE + WM_HSCROLL, v_scrollReflect, void, HScroll, (UINT, UINT))
#define ON_WM_VSCROLL_REFLECT()                                                                              \
    AFX_ON_WM(WM_REFLECT_BASE + WM_VSCROLL, v_scrollReflect, void, VScroll, (UINT, UINT))
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                         \
    AFX_ON_WM(WM_REFLECT_BASE + WM_PARENTNOTIFY, v_ul, void, ParentNotify, (UINT, LPARAM))
#define ON_WM_DRAWITEM_REFLECT()                                                                             \
    AFX_ON_WM(WM_REFLECT_BASE + WM_DRAWITEM, v_drawReflect, void, DrawItem, (LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    AFX_ON_WM(WM_REFLECT_BASE + WM_MEASUREITEM, v_measureReflect, void, MeasureItem, (LPMEASUREITEMSTRUCT))
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    AFX_ON_WM(WM_REFLECT_BASE + WM_DELETEITEM, v_deleteReflect, void, DeleteItem, (LPDELETEITEMSTRUCT))
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    AFX_ON_WM(WM_REFLECT_BASE + WM_COMPAREITEM, i_compareReflect, int, CompareItem, (LPCOMPAREITEMSTRUCT))
#define ON_WM_VKEYTOITEM_REFLECT()                                                                           \
    AFX_ON_WM(WM_REFLECT_BASE + WM_VKEYTOITEM, i_listKeyReflect, int, VKeyToItem, (UINT, UINT))
#define ON_WM_CHARTOITEM_REFLECT()                                                                           \
    AFX_ON_WM(WM_REFLECT_BASE + WM_CHARTOITEM, i_listKeyReflect, int, CharToItem, (UINT, UINT))

// Notifications of the standard controls: `void OnFoo()`
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)

#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)

#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)

/// The user ticked or cleared an item of a check list box.
#define CLBN_CHKCHANGE 40
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)

#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)

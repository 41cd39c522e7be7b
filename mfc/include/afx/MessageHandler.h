// SPDX-License-Identifier: MIT
// The handler of a message-map row: its type, and how a message's parameters become its arguments.
#pragma once

#include "afx/Export.h"
#include <afx.h>

class CCmdTarget;
class CCmdUI;
class CDC;
class CListBox;
class CMenu;
class CScrollBar;
class CWinThread;
class CWnd;

// AfxHandler keeps each handler with the handler's own signature, so no handler is cast to another signature.

// clang-format off

/// How the parameters of a message become the arguments of its handler. The letters before the underscore
/// name the result, the letters after it the arguments: v none, b BOOL, i int, u UINT, w CWnd*, d CDC*, p
/// CPoint, l LPARAM (as result: LRESULT). `L`, `Lo` and `Hi`: the argument comes from lParam, from its low
/// word or from its high word.
enum class AfxSig : UINT {
    End,              // last row of a table
    Command,          // void()
    CommandRange,     // void(UINT id)
    CommandEx,        // BOOL(UINT id)
    UpdateUI,         // void(CCmdUI*)
    Notify,           // void(NMHDR*, LRESULT*)
    NotifyRange,      // void(UINT id, NMHDR*, LRESULT*)
    NotifyEx,         // BOOL(UINT id, NMHDR*, LRESULT*)
    NotifyReflectEx,  // BOOL(NMHDR*, LRESULT*)
    ControlReflectEx, // BOOL()
    Message,          // LRESULT(WPARAM, LPARAM)
    ThreadMessage,    // void(WPARAM, LPARAM)
    v,                // void()
    b,                // BOOL()
    u,                // UINT()
    icon,             // HCURSOR()
    v_b,              // void(BOOL wParam)
    b_b,              // BOOL(BOOL wParam)
    v_bu,             // void(BOOL wParam, UINT lParam)
    v_bTask,          // void(BOOL wParam, DWORD lParam)
    v_bTaskHandle,    // void(BOOL wParam, HTASK lParam)
    v_u,              // void(UINT wParam)
    v_uLoHi,          // void(UINT wParam, int LOWORD(lParam), int HIWORD(lParam)), both unsigned
    v_xy,             // void(int x, int y), both signed
    v_uwb,            // void(UINT LOWORD(wParam), CWnd* lParam, BOOL HIWORD(wParam))
    v_w,              // void(CWnd* wParam)
    v_wL,             // void(CWnd* lParam)
    v_up,             // void(UINT wParam, CPoint lParam)
    b_wheel,          // BOOL(UINT keys, short delta, CPoint)
    v_wheel,          // void(UINT keys, short delta, CPoint)
    v_key,            // void(UINT key, UINT repeat, UINT flags)
    v_hotKey,         // void(UINT id, UINT modifiers, UINT key)
    b_setCursor,      // BOOL(CWnd* wParam, UINT LOWORD(lParam), UINT HIWORD(lParam))
    i_mouseActivate,  // int(CWnd* wParam, UINT LOWORD(lParam), UINT HIWORD(lParam))
    brush_dwu,        // HBRUSH(CDC*, CWnd*, UINT kind)
    brush_du,         // HBRUSH(CDC*, UINT kind)
    b_d,              // BOOL(CDC* wParam)
    v_d,              // void(CDC* wParam)
    i_create,         // int(LPCREATESTRUCT)
    v_scroll,         // void(UINT code, UINT pos, CScrollBar*)
    v_scrollWnd,      // void(UINT code, UINT pos, CWnd*)
    v_scrollReflect,  // void(UINT code, UINT pos)
    v_ul,             // void(UINT wParam, LPARAM)
    u_ul,             // UINT(UINT wParam, LPARAM)
    v_wp,             // void(CWnd* wParam, CPoint lParam)
    u_p,              // UINT(CPoint lParam)
    l_p,              // LRESULT(CPoint lParam)
    v_ncCalcSize,     // void(BOOL wParam, NCCALCSIZE_PARAMS*)
    v_minMax,         // void(MINMAXINFO*)
    v_windowPos,      // void(WINDOWPOS*)
    v_drawItem,       // void(int id, LPDRAWITEMSTRUCT)
    v_measureItem,    // void(int id, LPMEASUREITEMSTRUCT)
    v_deleteItem,     // void(int id, LPDELETEITEMSTRUCT)
    i_compareItem,    // int(int id, LPCOMPAREITEMSTRUCT)
    v_drawReflect,    // void(LPDRAWITEMSTRUCT)
    v_measureReflect, // void(LPMEASUREITEMSTRUCT)
    v_deleteReflect,  // void(LPDELETEITEMSTRUCT)
    i_compareReflect, // int(LPCOMPAREITEMSTRUCT)
    i_listKey,        // int(UINT key, CListBox*, UINT index)
    i_listKeyReflect, // int(UINT key, UINT index)
    v_menu,           // void(CMenu* wParam)
    v_menuPopup,      // void(CMenu* wParam, UINT index, BOOL system)
    v_menuSelect,     // void(UINT id, UINT flags, HMENU)
    l_menuChar,       // LRESULT(UINT char, UINT flags, CMenu*)
    v_style,          // void(int wParam, LPSTYLESTRUCT)
    v_drop,           // void(HDROP)
    v_uw,             // void(UINT wParam, CWnd* lParam)
    v_setting,        // void(UINT wParam, LPCTSTR)
    v_text,           // void(LPCTSTR lParam)
    v_rect,           // void(UINT wParam, LPRECT)
    b_help,           // BOOL(HELPINFO*)
    b_copyData,       // BOOL(CWnd*, COPYDATASTRUCT*)
    b_device,         // BOOL(UINT, DWORD_PTR)
    v_windows,        // void(HWND, HWND)
    v_timer,          // void(UINT_PTR)
    v_timerUint,      // void(UINT)
};

/// Expands the macro X(class, name, result, arguments) once for each type of handler.
#define AFX_HANDLER_TYPES(X) \
    X(CCmdTarget, command, void, ()) \
    X(CCmdTarget, commandRange, void, (UINT)) \
    X(CCmdTarget, commandEx, BOOL, (UINT)) \
    X(CCmdTarget, updateUI, void, (CCmdUI*)) \
    X(CCmdTarget, notify, void, (NMHDR*, LRESULT*)) \
    X(CCmdTarget, notifyRange, void, (UINT, NMHDR*, LRESULT*)) \
    X(CCmdTarget, notifyEx, BOOL, (UINT, NMHDR*, LRESULT*)) \
    X(CCmdTarget, notifyReflectEx, BOOL, (NMHDR*, LRESULT*)) \
    X(CCmdTarget, controlReflectEx, BOOL, ()) \
    X(CWinThread, threadMessage, void, (WPARAM, LPARAM)) \
    X(CWnd, message, LRESULT, (WPARAM, LPARAM)) \
    X(CWnd, v, void, ()) \
    X(CWnd, b, BOOL, ()) \
    X(CWnd, u, UINT, ()) \
    X(CWnd, icon, HCURSOR, ()) \
    X(CWnd, v_b, void, (BOOL)) \
    X(CWnd, b_b, BOOL, (BOOL)) \
    X(CWnd, v_bu, void, (BOOL, UINT)) \
    X(CWnd, v_bTask, void, (BOOL, DWORD)) \
    X(CWnd, v_bTaskHandle, void, (BOOL, HTASK)) \
    X(CWnd, v_u, void, (UINT)) \
    X(CWnd, v_uii, void, (UINT, int, int)) \
    X(CWnd, v_ii, void, (int, int)) \
    X(CWnd, v_uwb, void, (UINT, CWnd*, BOOL)) \
    X(CWnd, v_w, void, (CWnd*)) \
    X(CWnd, v_up, void, (UINT, CPoint)) \
    X(CWnd, b_wheel, BOOL, (UINT, short, CPoint)) \
    X(CWnd, v_wheel, void, (UINT, short, CPoint)) \
    X(CWnd, v_uuu, void, (UINT, UINT, UINT)) \
    X(CWnd, b_wuu, BOOL, (CWnd*, UINT, UINT)) \
    X(CWnd, brush_dwu, HBRUSH, (CDC*, CWnd*, UINT)) \
    X(CWnd, brush_du, HBRUSH, (CDC*, UINT)) \
    X(CWnd, b_d, BOOL, (CDC*)) \
    X(CWnd, v_d, void, (CDC*)) \
    X(CWnd, i_create, int, (LPCREATESTRUCT)) \
    X(CWnd, v_scroll, void, (UINT, UINT, CScrollBar*)) \
    X(CWnd, v_scrollWnd, void, (UINT, UINT, CWnd*)) \
    X(CWnd, v_uu, void, (UINT, UINT)) \
    X(CWnd, v_ul, void, (UINT, LPARAM)) \
    X(CWnd, u_ul, UINT, (UINT, LPARAM)) \
    X(CWnd, v_wp, void, (CWnd*, CPoint)) \
    X(CWnd, u_p, UINT, (CPoint)) \
    X(CWnd, l_p, LRESULT, (CPoint)) \
    X(CWnd, v_ncCalcSize, void, (BOOL, NCCALCSIZE_PARAMS*)) \
    X(CWnd, v_minMax, void, (MINMAXINFO*)) \
    X(CWnd, v_windowPos, void, (WINDOWPOS*)) \
    X(CWnd, v_drawItem, void, (int, LPDRAWITEMSTRUCT)) \
    X(CWnd, v_measureItem, void, (int, LPMEASUREITEMSTRUCT)) \
    X(CWnd, v_deleteItem, void, (int, LPDELETEITEMSTRUCT)) \
    X(CWnd, i_compareItem, int, (int, LPCOMPAREITEMSTRUCT)) \
    X(CWnd, v_drawReflect, void, (LPDRAWITEMSTRUCT)) \
    X(CWnd, v_measureReflect, void, (LPMEASUREITEMSTRUCT)) \
    X(CWnd, v_deleteReflect, void, (LPDELETEITEMSTRUCT)) \
    X(CWnd, i_compareReflect, int, (LPCOMPAREITEMSTRUCT)) \
    X(CWnd, i_listKey, int, (UINT, CListBox*, UINT)) \
    X(CWnd, i_uu, int, (UINT, UINT)) \
    X(CWnd, v_menu, void, (CMenu*)) \
    X(CWnd, v_menuPopup, void, (CMenu*, UINT, BOOL)) \
    X(CWnd, v_menuSelect, void, (UINT, UINT, HMENU)) \
    X(CWnd, l_menuChar, LRESULT, (UINT, UINT, CMenu*)) \
    X(CWnd, v_style, void, (int, LPSTYLESTRUCT)) \
    X(CWnd, v_drop, void, (HDROP)) \
    X(CWnd, v_uw, void, (UINT, CWnd*)) \
    X(CWnd, v_setting, void, (UINT, LPCTSTR)) \
    X(CWnd, v_text, void, (LPCTSTR)) \
    X(CWnd, v_rect, void, (UINT, LPRECT)) \
    X(CWnd, b_help, BOOL, (HELPINFO*)) \
    X(CWnd, b_copyData, BOOL, (CWnd*, COPYDATASTRUCT*)) \
    X(CWnd, b_device, BOOL, (UINT, DWORD_PTR)) \
    X(CWnd, v_windows, void, (HWND, HWND))

#define AFX_DECLARE_HANDLER(owner, name, result, arguments) result (owner::*name) arguments;
#define AFX_HANDLER_CONSTRUCTOR(owner, name, result, arguments) \
    constexpr AfxHandler(result (owner::*function) arguments) : name(function) {}

/// A handler: a member function of a command target, a window or a thread. The AfxSig of the row tells which
/// member of the union is set.
union AfxHandler {
    constexpr AfxHandler() : command(nullptr) {}
    AFX_HANDLER_TYPES(AFX_DECLARE_HANDLER)
    AFX_HANDLER_TYPES(AFX_HANDLER_CONSTRUCTOR)
#ifdef _WIN64
    AFX_DECLARE_HANDLER(CWnd, v_timer, void, (UINT_PTR))
    AFX_HANDLER_CONSTRUCTOR(CWnd, v_timer, void, (UINT_PTR))
#endif
};
#undef AFX_DECLARE_HANDLER
#undef AFX_HANDLER_CONSTRUCTOR
#undef AFX_HANDLER_TYPES

// clang-format on

#pragma once

/// Messages, notification codes, command identifiers and records that pass between the Kavlix controls and
/// their parent windows. The numbers never change. Resource scripts may include this header for the command
/// identifiers.

/// Commands of the graph controls' context menu, sent as WM_COMMAND to the control itself. "Copy" is the
/// framework's ID_EDIT_COPY.
#define ID_GRAPH_CLEAR_SELECTION_MARK 1324
#define ID_GRAPH_REMOVE_DATA_BEFORE_MARK 1325
#define ID_GRAPH_SEND_SELECTION_MARK 1326

#ifndef RC_INVOKED

#include <afxwin.h>

#include <cstddef>

/// Posted to the parent when a click, a key or the menu changes the selection mark. wParam: the new mark as
/// an int, -1 for none; lParam: 0. Issued just before GCN_SELCHANGE, but posted, so it arrives after it.
constexpr UINT WM_GRAPH_SELMARK = WM_USER + 100;

/// Sent to the parent by the scrolling graph when the selection mark's time is exported. wParam: 0; lParam:
/// the characters of the time text "YYYY/MM/DD hh:mm:ss", valid only during the call.
constexpr UINT WM_GRAPH_SELMARKTIME = 1327;

/// Codes of WM_NOTIFY messages sent with an NMGRAPHCTRL. wParam is the control's dialog identifier.
constexpr UINT GCN_DBLCLK = 1224; ///< double-click outside caption and legend; nFlags, pt, nIndex = -1
constexpr UINT GCN_DBLCLK_CAPTION = 1225; ///< double-click in the caption band; nFlags, pt, nIndex = -1
constexpr UINT GCN_DBLCLK_LEGEND = 1226;  ///< double-click in the legend; nFlags, pt, nIndex = dataset or -1
constexpr UINT GCN_MAXIMIZE = 1234;       ///< button released over the pressed maximize icon; nFlags, pt
constexpr UINT GCN_MOUSEMOVE = 1244;      ///< every mouse move; nFlags, pt
constexpr UINT GCN_SELCHANGE = 1254;      ///< selection mark changed by click, key or menu; nIndex = new mark
constexpr UINT GCN_REMOVEDATA = 1255; ///< samples removed by menu; nIndex = first removed, nCount = how many
constexpr UINT GCN_SCROLL = 1264;     ///< scrolling graph moved its view; nIndex = scroll position in x units

/// Record of every graph control notification. It lives on the sender's stack: copy what is needed. Fields
/// that a code does not list are zero.
struct NMGRAPHCTRL {
    NMHDR hdr;   ///< the control's window, its dialog identifier, the code
    UINT nFlags; ///< key-state flags (MK_...) of the mouse message
    POINT pt;    ///< mouse position in client pixels
    int nIndex;  ///< see the codes
    int nCount;  ///< see the codes
};

/// Record of the pie chart's WM_NOTIFY with code NM_CLICK. It lives on the sender's stack.
struct NMPIECHART {
    NMHDR hdr;   ///< the control's window, its dialog identifier, NM_CLICK
    UINT nFlags; ///< key-state flags (MK_...) of the click
    int nIndex;  ///< piece that was clicked
};

// Hosts written in other languages read these records by offset. Where a handle takes 8 bytes the header is
// 24 bytes long, its last 4 being padding, and the fields follow in the same order.
#ifdef _WIN64
static_assert(sizeof(NMHDR) == 24 && sizeof(NMGRAPHCTRL) == 48 && sizeof(NMPIECHART) == 32);
#else
static_assert(sizeof(NMHDR) == 12 && sizeof(NMGRAPHCTRL) == 32 && sizeof(NMPIECHART) == 20);
static_assert(offsetof(NMHDR, idFrom) == 4 && offsetof(NMHDR, code) == 8);
#endif
static_assert(offsetof(NMGRAPHCTRL, nFlags) == sizeof(NMHDR) &&
              offsetof(NMGRAPHCTRL, pt) == sizeof(NMHDR) + 4 &&
              offsetof(NMGRAPHCTRL, nIndex) == sizeof(NMHDR) + 12 &&
              offsetof(NMGRAPHCTRL, nCount) == sizeof(NMHDR) + 16);
static_assert(offsetof(NMPIECHART, nFlags) == sizeof(NMHDR) &&
              offsetof(NMPIECHART, nIndex) == sizeof(NMHDR) + 4);

#endif // RC_INVOKED

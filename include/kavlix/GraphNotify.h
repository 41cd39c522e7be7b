// SPDX-License-Identifier: MIT
// What passes between the controls and their parent windows: messages, codes, commands and records.
#pragma once

// The numbers never change. Resource scripts may include this header for the command identifiers.

// Commands of the graph controls' context menu, sent as WM_COMMAND to the control itself. The menu's "Copy"
// has the framework's identifier ID_EDIT_COPY.
#define ID_GRAPH_CLEAR_SELECTION_MARK 1324
#define ID_GRAPH_REMOVE_DATA_BEFORE_MARK 1325
#define ID_GRAPH_SEND_SELECTION_MARK 1326

#ifndef RC_INVOKED

#include <afxwin.h>

#include <cstddef>

/// Posted to the parent at a click into the plot, even if the selection mark stays in its place, and when a
/// key or the menu command ID_GRAPH_CLEAR_SELECTION_MARK changes the selection mark. wParam: the index of the
/// marked sample as an int, -1 for none; lParam: 0. The control posts this message before it sends
/// GCN_SELCHANGE, but the parent receives GCN_SELCHANGE first, because a sent message does not wait in the
/// queue.
constexpr UINT WM_GRAPH_SELMARK = WM_USER + 100;

/// Sent to the parent when the scrolling graph exports the time of the selection mark. wParam: 0; lParam: the
/// time text "YYYY/MM/DD hh:mm:ss" of the last sample exported, empty if there was none; a zero-terminated
/// TCHAR string (LPCTSTR) that is valid only during the call.
constexpr UINT WM_GRAPH_SELMARKTIME = 1327;

// Codes of the WM_NOTIFY messages with an NMGRAPHCTRL record: when the parent gets each, and the record's
// fields that are set besides `hdr`. wParam is the control's dialog identifier.
constexpr UINT GCN_DBLCLK = 1224; ///< double-click outside caption and legend; nFlags, pt, nIndex = -1
constexpr UINT GCN_DBLCLK_CAPTION = 1225; ///< double-click in the caption band; nFlags, pt, nIndex = -1
/// Double-click in the legend's rectangle, also while the legend is hidden; nFlags, pt. nIndex is the dataset
/// whose row has the height of the mouse, as if every dataset had a row; -1 for none, and for a dataset with
/// an empty legend text.
constexpr UINT GCN_DBLCLK_LEGEND = 1226;
constexpr UINT GCN_MAXIMIZE = 1234;  ///< button released over the pressed maximize icon; nFlags, pt
constexpr UINT GCN_MOUSEMOVE = 1244; ///< every mouse move; nFlags, pt
/// Sent on the occasions of WM_GRAPH_SELMARK. nIndex is the index of the marked sample, -1 for none.
constexpr UINT GCN_SELCHANGE = 1254;
/// The user removed samples by the menu. nIndex is the index of the first removed sample, nCount the number
/// of samples removed from dataset 0.
constexpr UINT GCN_REMOVEDATA = 1255;
/// The user moved the scroll bar while SetScrollSync is on, or the host called SendScrollInfo. nIndex is the
/// left edge of the view, or the host's position, in x units.
constexpr UINT GCN_SCROLL = 1264;

/// Record of every notification of a graph control. The control owns it and keeps it only during the call:
/// copy the fields that are needed later. Fields that a code does not list are zero.
struct NMGRAPHCTRL {
    NMHDR hdr;   ///< the control's window, its dialog identifier, the code
    UINT nFlags; ///< key-state flags (MK_...) of the mouse message
    POINT pt;    ///< mouse position in client pixels
    int nIndex;  ///< meaning depends on the code
    int nCount;  ///< meaning depends on the code
};

/// Record of the pie chart's WM_NOTIFY with the code NM_CLICK. The control keeps it only during the call.
struct NMPIECHART {
    NMHDR hdr;   ///< the control's window, its dialog identifier, NM_CLICK
    UINT nFlags; ///< key-state flags (MK_...) of the click
    int nIndex;  ///< index of the clicked piece
};

// Hosts written in other languages read these records by offset. On 64-bit Windows the header takes 24 bytes,
// of which the last 4 are padding.
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

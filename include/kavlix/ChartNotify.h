// SPDX-License-Identifier: MIT
// What passes between a chart window and its parent window: codes, commands and the record.
#pragma once

// The numbers never change. Resource scripts may include this header for the command identifiers.

// Commands of the chart's context menu. A host can send them to the chart as WM_COMMAND. The menu's "Copy" has the
// framework's identifier ID_EDIT_COPY, "Print" has ID_FILE_PRINT; these two work in the menu only, so that they can be
// routed through the chart to the host's own handlers.
#define ID_CHART_SAVE_PICTURE 1330
#define ID_CHART_SAVE_DATA 1331
#define ID_CHART_FIT 1332
#define ID_CHART_BACK 1333

#ifndef RC_INVOKED

#include <afxwin.h>

// Codes of the WM_NOTIFY messages with an NMCHARTDRAW record: when the parent gets each, and the record's fields
// that are set besides `hdr`. wParam is the chart's dialog identifier.

/// The user, a linked chart, or follow mode changed the range of an axis. The new ranges are those of
/// CChartAxis::GetRange. Changes that the host makes itself are not reported.
constexpr UINT CDN_VIEW = 1280;
/// The user moved, showed or hid a cursor. nIndex: the dataset of the sample that the cursor is at, -1 for none;
/// nItem: 0 for the first cursor, 1 for the second; dValue: the cursor's x, NaN while it is hidden.
constexpr UINT CDN_CURSOR = 1281;
/// The user showed or hid a dataset by the legend. nIndex: the dataset.
constexpr UINT CDN_DATASET = 1282;
/// The user moved a reference line or band. nItem: its identifier; dValue, dSecond: its values. Sent at every
/// step; nFlags is TRUE when the user has let go, or has undone the move by Escape.
constexpr UINT CDN_REFERENCE = 1283;
/// The context menu is about to open. hMenu: the menu, to which the parent may add items of its own; pt: the
/// position. A nonzero result suppresses the menu.
constexpr UINT CDN_MENU = 1284;
/// The user asks to print the chart (the menu's "Print" or Ctrl+P). The parent prints.
constexpr UINT CDN_PRINT = 1285;
/// Points of PostData have entered the datasets. nItem: number of points; nIndex: number of points among them
/// that were not taken, because their dataset does not exist any more or memory ran out.
constexpr UINT CDN_POSTED = 1286;

/// Record of every notification of a chart. The chart owns it and keeps it only during the call. Fields that a
/// code does not list are zero.
struct NMCHARTDRAW {
    NMHDR hdr;      ///< the chart's window, its dialog identifier, the code
    UINT nFlags;    ///< meaning depends on the code
    int nIndex;     ///< meaning depends on the code
    int nItem;      ///< meaning depends on the code
    POINT pt;       ///< position in client pixels
    HMENU hMenu;    ///< meaning depends on the code
    double dValue;  ///< meaning depends on the code
    double dSecond; ///< meaning depends on the code
};

#endif // RC_INVOKED

// SPDX-License-Identifier: MIT
// The owner-draw messages of list boxes and combo boxes.
#pragma once

#include <windows.h>

/// Calls the control's member for an owner-draw message that the parent has handed back. Returns FALSE for
/// other messages.
template <class Control> BOOL CallOwnerDraw(Control& control, UINT message, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *pResult = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}

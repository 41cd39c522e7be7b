// SPDX-License-Identifier: MIT
// CTabCtrl, the system's tab control.
#pragma once

#include "afx/CommonControls.h"

AFX_BEGIN_OWN_CREATE

/// A row of tabs, counted from 0. The parent gets TCN_SELCHANGE as a WM_NOTIFY notification when the user chooses
/// another tab, and shows the window of that tab itself.
class MFC_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl() = default;
    ~CTabCtrl() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const { return afx_control::Ask(m_hWnd, TCM_GETITEMCOUNT); }
    /// The mask of the record names the members to be copied.
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    /// Bytes of the program's own data in each item, 4 or 8 at first. Only an empty control accepts the call.
    BOOL SetItemExtra(int nBytes) { return afx_control::Ask(m_hWnd, TCM_SETITEMEXTRA, Param(nBytes)); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    /// TCIS_ flags among `dwMask`. SetItemState() changes the flags in `dwMask` to those in `dwState`.
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    /// -1 if no tab is selected. SetCurSel() returns the former selection, and sends no notification.
    int GetCurSel() const { return afx_control::Ask(m_hWnd, TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return afx_control::Ask(m_hWnd, TCM_SETCURSEL, Param(nItem)); }
    int GetCurFocus() const { return afx_control::Ask(m_hWnd, TCM_GETCURFOCUS); }
    /// Moves the focus. Without the style TCS_BUTTONS the tab is also selected, with notifications.
    void SetCurFocus(int nItem) { ::SendMessage(m_hWnd, TCM_SETCURFOCUS, Param(nItem), 0); }

    /// Width and height of the tabs in pixels. Returns the former size.
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { ::SendMessage(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    /// Pixels; -1 restores the default. Returns the former width.
    int SetMinTabWidth(int cx) { return afx_control::Ask(m_hWnd, TCM_SETMINTABWIDTH, 0, cx); }
    int GetRowCount() const { return afx_control::Ask(m_hWnd, TCM_GETROWCOUNT); }
    /// The tooltip of a control with the style TCS_TOOLTIPS; NULL if there is none.
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    /// TCS_EX_ styles. SetExtendedStyle() returns the former styles; a nonzero `dwExMask` limits the change.
    DWORD GetExtendedStyle() { return static_cast<DWORD>(afx_control::Ask(m_hWnd, TCM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);

    /// Inserts a tab before tab `nItem`. Returns the index of the new tab, -1 on failure. `nImage` is an index into
    /// the image list that the program set with TCM_SETIMAGELIST.
    int InsertItem(int nItem, TCITEM* pTabCtrlItem);
    int InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0); }
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
        return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
    }
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return afx_control::Ask(m_hWnd, TCM_DELETEITEM, Param(nItem)); }
    BOOL DeleteAllItems() { return afx_control::Ask(m_hWnd, TCM_DELETEALLITEMS); }

    /// `bLarger` TRUE: converts the rectangle of the tab's contents to that of the control. FALSE: the reverse.
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    /// The tab at a point; -1 if there is none.
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    /// Resets the pressed items of a control with the style TCS_BUTTONS; TRUE leaves the current item pressed.
    void DeselectAll(BOOL fExcludeFocus) {
        ::SendMessage(m_hWnd, TCM_DESELECTALL, static_cast<WPARAM>(fExcludeFocus), 0);
    }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);

    /// Override the function for TCS_OWNERDRAWFIXED. The default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    static WPARAM Param(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
};

AFX_END_OWN_CREATE

// SPDX-License-Identifier: MIT
// CListBox and CComboBox.
#pragma once

#include "afx/Controls.h"

AFX_BEGIN_OWN_CREATE

/// A list box. Indices count from 0. LB_ERR (-1) means failure or "none"; LB_ERRSPACE (-2) means that memory
/// ran out.
class MFC_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox() = default;
    ~CListBox() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return afx_control::Ask(m_hWnd, LB_GETCOUNT); }
    int GetHorizontalExtent() const { return afx_control::Ask(m_hWnd, LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) {
        afx_control::Ask(m_hWnd, LB_SETHORIZONTALEXTENT, Param(cxExtent));
    }
    int GetTopIndex() const { return afx_control::Ask(m_hWnd, LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return afx_control::Ask(m_hWnd, LB_SETTOPINDEX, Param(nIndex)); }
    LCID GetLocale() const { return static_cast<LCID>(afx_control::Ask(m_hWnd, LB_GETLOCALE)); }
    LCID SetLocale(LCID nNewLocale) {
        return static_cast<LCID>(afx_control::Ask(m_hWnd, LB_SETLOCALE, nNewLocale));
    }
    int InitStorage(int nItems, UINT nBytes) {
        return afx_control::Ask(m_hWnd, LB_INITSTORAGE, Param(nItems), static_cast<LPARAM>(nBytes));
    }
    /// Returns the item nearest to a client point. `bOutside` receives whether the point is outside the
    /// client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;

    /// The selected item of a single-selection list box; LB_ERR if none.
    int GetCurSel() const { return afx_control::Ask(m_hWnd, LB_GETCURSEL); }
    /// `nSelect` -1 removes the selection; the call then returns LB_ERR although it has succeeded.
    int SetCurSel(int nSelect) { return afx_control::Ask(m_hWnd, LB_SETCURSEL, Param(nSelect)); }

    /// Members for list boxes with multiple selection.
    int GetSel(int nIndex) const { return afx_control::Ask(m_hWnd, LB_GETSEL, Param(nIndex)); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return afx_control::Ask(m_hWnd, LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex);
    }
    int GetSelCount() const { return afx_control::Ask(m_hWnd, LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex) { afx_control::Ask(m_hWnd, LB_SETANCHORINDEX, Param(nIndex)); }
    int GetAnchorIndex() const { return afx_control::Ask(m_hWnd, LB_GETANCHORINDEX); }
    /// `bScroll` FALSE scrolls until the item is fully visible, TRUE until it is at least partly visible.
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);
    int GetCaretIndex() const { return afx_control::Ask(m_hWnd, LB_GETCARETINDEX); }

    /// A value that the program stores with an item, for its own use.
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(::SendMessage(m_hWnd, LB_GETITEMDATA, Param(nIndex), 0));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return afx_control::Ask(m_hWnd, LB_SETITEMDATA, Param(nIndex), static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    /// The buffer needs GetTextLen() + 1 characters. Returns the length; LB_ERR for an invalid index.
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    /// The text is empty for an invalid index.
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return afx_control::Ask(m_hWnd, LB_GETTEXTLEN, Param(nIndex)); }

    /// Heights and widths are pixels; tab stops are dialog units.
    void SetColumnWidth(int cxWidth) { afx_control::Ask(m_hWnd, LB_SETCOLUMNWIDTH, Param(cxWidth)); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetTabStops() { afx_control::Ask(m_hWnd, LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) { return SetTabStops(1, const_cast<LPINT>(&cxEachStop)); }
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const { return afx_control::Ask(m_hWnd, LB_GETITEMHEIGHT, Param(nIndex)); }

    /// Items. Functions that add return the new index; DeleteString() returns the number of remaining items.
    int AddString(LPCTSTR lpszItem);
    int DeleteString(UINT nIndex) { return afx_control::Ask(m_hWnd, LB_DELETESTRING, nIndex); }
    /// Inserts without sorting; `nIndex` -1 appends.
    int InsertString(int nIndex, LPCTSTR lpszItem);
    void ResetContent() { afx_control::Ask(m_hWnd, LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    /// Return the index of the first item that begins with the text (FindStringExact: that equals the text).
    /// The search starts after item `nStartAfter` (-1: at the top) and after the last item continues at the
    /// top. SelectString() also selects the item.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszItem);

    /// Owner draw. Override the functions that the style needs. The defaults draw nothing and keep the
    /// system's measures.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// Return -1, 0 or 1: the first item comes before, equals or comes after the second.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /// For LBS_WANTKEYBOARDINPUT. Return the index to select, -1 for the default action, -2 for no action.
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    static WPARAM Param(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
};

/// A combo box. Indices count from 0. CB_ERR (-1) means failure or "none"; CB_ERRSPACE (-2) means that memory
/// ran out.
class MFC_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox() = default;
    ~CComboBox() override;
    /// `rect` includes the open list.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return afx_control::Ask(m_hWnd, CB_GETCOUNT); }
    int GetCurSel() const { return afx_control::Ask(m_hWnd, CB_GETCURSEL); }
    /// -1 removes the selection and empties the edit field.
    int SetCurSel(int nSelect) { return afx_control::Ask(m_hWnd, CB_SETCURSEL, Param(nSelect)); }
    LCID GetLocale() const { return static_cast<LCID>(afx_control::Ask(m_hWnd, CB_GETLOCALE)); }
    LCID SetLocale(LCID nNewLocale) {
        return static_cast<LCID>(afx_control::Ask(m_hWnd, CB_SETLOCALE, nNewLocale));
    }
    int GetTopIndex() const { return afx_control::Ask(m_hWnd, CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return afx_control::Ask(m_hWnd, CB_SETTOPINDEX, Param(nIndex)); }
    int InitStorage(int nItems, UINT nBytes) {
        return afx_control::Ask(m_hWnd, CB_INITSTORAGE, Param(nItems), static_cast<LPARAM>(nBytes));
    }
    void SetHorizontalExtent(UINT nExtent) { afx_control::Ask(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent); }
    UINT GetHorizontalExtent() const {
        return static_cast<UINT>(afx_control::Ask(m_hWnd, CB_GETHORIZONTALEXTENT));
    }
    int SetDroppedWidth(UINT nWidth) { return afx_control::Ask(m_hWnd, CB_SETDROPPEDWIDTH, nWidth); }
    int GetDroppedWidth() const { return afx_control::Ask(m_hWnd, CB_GETDROPPEDWIDTH); }

    /// Selection of the edit field. Low word: start; high word: end.
    DWORD GetEditSel() const { return static_cast<DWORD>(afx_control::Ask(m_hWnd, CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar) {
        return afx_control::Ask(m_hWnd, CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
    }
    BOOL LimitText(int nMaxChars) { return afx_control::Ask(m_hWnd, CB_LIMITTEXT, Param(nMaxChars)); }

    /// A value that the program stores with an item, for its own use.
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(::SendMessage(m_hWnd, CB_GETITEMDATA, Param(nIndex), 0));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return afx_control::Ask(m_hWnd, CB_SETITEMDATA, Param(nIndex), static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    /// The buffer needs GetLBTextLen() + 1 characters. Returns the length; CB_ERR for an invalid index.
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    /// The text is empty for an invalid index.
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return afx_control::Ask(m_hWnd, CB_GETLBTEXTLEN, Param(nIndex)); }

    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return afx_control::Ask(m_hWnd, CB_SETITEMHEIGHT, Param(nIndex), static_cast<LPARAM>(cyItemHeight));
    }
    int GetItemHeight(int nIndex) const { return afx_control::Ask(m_hWnd, CB_GETITEMHEIGHT, Param(nIndex)); }
    int SetExtendedUI(BOOL bExtended = TRUE) {
        return afx_control::Ask(m_hWnd, CB_SETEXTENDEDUI, static_cast<WPARAM>(bExtended));
    }
    BOOL GetExtendedUI() const { return afx_control::Ask(m_hWnd, CB_GETEXTENDEDUI); }
    /// Screen coordinates of the open list.
    void GetDroppedControlRect(LPRECT lprect) const;
    BOOL GetDroppedState() const { return afx_control::Ask(m_hWnd, CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) {
        afx_control::Ask(m_hWnd, CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt));
    }

    /// Items. Functions that add return the new index; DeleteString() returns the number of remaining items.
    int AddString(LPCTSTR lpszString);
    int DeleteString(UINT nIndex) { return afx_control::Ask(m_hWnd, CB_DELETESTRING, nIndex); }
    /// Inserts without sorting; `nIndex` -1 appends.
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent() { afx_control::Ask(m_hWnd, CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    /// Return the index of the first item that begins with the text (FindStringExact: that equals the text).
    /// The search starts after item `nStartAfter` (-1: at the top) and after the last item continues at the
    /// top. SelectString() also selects the item.
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);

    void Clear() { afx_control::Ask(m_hWnd, WM_CLEAR); }
    void Copy() { afx_control::Ask(m_hWnd, WM_COPY); }
    void Cut() { afx_control::Ask(m_hWnd, WM_CUT); }
    void Paste() { afx_control::Ask(m_hWnd, WM_PASTE); }

    /// Owner draw. Override the functions that the style needs. The defaults draw nothing and keep the
    /// system's measures.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// Return -1, 0 or 1: the first item comes before, equals or comes after the second.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    static WPARAM Param(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
};

AFX_END_OWN_CREATE

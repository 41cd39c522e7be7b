// SPDX-License-Identifier: MIT
// The classes of the system's controls: static, button, edit, scroll bar.
#pragma once

#include "afx/Export.h"
#include "afx/GdiObject.h"
#include "afx/Wnd.h"

AFX_BEGIN_OWN_CREATE

/// The controls of the system. Create() makes the control as a child of `pParentWnd` with the ID `nID`, in
/// client coordinates of the parent, and returns FALSE on failure. Members send messages to the control, so
/// the window must exist.

namespace afx_control {
/// Sends a message to a control. Returns the answer as an int: counts, indices and flags fit into an int.
inline int Ask(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(::SendMessage(control, message, wParam, lParam));
}
} // namespace afx_control

/// A label, frame or picture.
class MFC_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic() = default;
    ~CStatic() override;
    BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);

    /// The caller keeps ownership of pictures. Setters return the former picture.
    HBITMAP SetBitmap(HBITMAP hBitmap) { return reinterpret_cast<HBITMAP>(SetImage(IMAGE_BITMAP, hBitmap)); }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(GetImage(IMAGE_BITMAP)); }
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HCURSOR SetCursor(HCURSOR hCursor) { return reinterpret_cast<HCURSOR>(SetImage(IMAGE_CURSOR, hCursor)); }
    HCURSOR GetCursor() const { return reinterpret_cast<HCURSOR>(GetImage(IMAGE_CURSOR)); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile) {
        return reinterpret_cast<HENHMETAFILE>(SetImage(IMAGE_ENHMETAFILE, hMetaFile));
    }
    HENHMETAFILE GetEnhMetaFile() const {
        return reinterpret_cast<HENHMETAFILE>(GetImage(IMAGE_ENHMETAFILE));
    }

    /// Override the function for SS_OWNERDRAW. The default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    LRESULT SetImage(UINT kind, HANDLE image);
    LRESULT GetImage(UINT kind) const;
};

/// A push button, check box, radio button or group box.
class MFC_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    CButton() = default;
    ~CButton() override;
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// BST_ flags: checked, pushed, focus.
    UINT GetState() const { return static_cast<UINT>(afx_control::Ask(m_hWnd, BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { afx_control::Ask(m_hWnd, BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    /// 0 unchecked, 1 checked, 2 indeterminate.
    int GetCheck() const { return afx_control::Ask(m_hWnd, BM_GETCHECK); }
    void SetCheck(int nCheck) { afx_control::Ask(m_hWnd, BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    /// The BS_ flags of the window style.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) {
        afx_control::Ask(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
    }
    /// The caller keeps ownership of pictures. Setters return the former picture.
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor) { return static_cast<HCURSOR>(SetIcon(static_cast<HICON>(hCursor))); }
    HCURSOR GetCursor() const { return static_cast<HCURSOR>(GetIcon()); }

    /// Override the function for BS_OWNERDRAW. The default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// An edit control with one line or several lines. Character positions count from 0 through the whole text.
class MFC_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit() = default;
    ~CEdit() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return afx_control::Ask(m_hWnd, EM_CANUNDO); }
    int GetLineCount() const { return afx_control::Ask(m_hWnd, EM_GETLINECOUNT); }
    BOOL GetModify() const { return afx_control::Ask(m_hWnd, EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) {
        afx_control::Ask(m_hWnd, EM_SETMODIFY, static_cast<WPARAM>(bModified));
    }
    void GetRect(LPRECT lpRect) const;
    /// Low word: start of the selection; high word: its end. Texts of more than 65,535 characters need the
    /// other form.
    DWORD GetSel() const { return static_cast<DWORD>(afx_control::Ask(m_hWnd, EM_GETSEL)); }
    /// `nEndChar` is the first character after the selection.
    void GetSel(int& nStartChar, int& nEndChar) const;
    HLOCAL GetHandle() const { return reinterpret_cast<HLOCAL>(::SendMessage(m_hWnd, EM_GETHANDLE, 0, 0)); }
    void SetHandle(HLOCAL hBuffer) {
        ::SendMessage(m_hWnd, EM_SETHANDLE, reinterpret_cast<WPARAM>(hBuffer), 0);
    }
    /// Low word: left margin in pixels; high word: right margin.
    DWORD GetMargins() const { return static_cast<DWORD>(afx_control::Ask(m_hWnd, EM_GETMARGINS)); }
    void SetMargins(UINT nLeft, UINT nRight);
    UINT GetLimitText() const { return static_cast<UINT>(afx_control::Ask(m_hWnd, EM_GETLIMITTEXT)); }
    void SetLimitText(UINT nMax) { afx_control::Ask(m_hWnd, EM_SETLIMITTEXT, nMax); }
    CPoint PosFromChar(UINT nChar) const;
    /// Low word: character index; high word: line.
    int CharFromPos(CPoint pt) const;
    /// Copies line `nIndex`, counted from 0, without a terminating zero. For the first form, the caller
    /// stores the size of the buffer, in characters, in the first WORD of the buffer. Returns the number of
    /// characters; 0 if the line does not exist.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    void EmptyUndoBuffer() { afx_control::Ask(m_hWnd, EM_EMPTYUNDOBUFFER); }
    BOOL FmtLines(BOOL bAddEOL) {
        return afx_control::Ask(m_hWnd, EM_FMTLINES, static_cast<WPARAM>(bAddEOL));
    }
    void LimitText(int nChars = 0) { afx_control::Ask(m_hWnd, EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    /// The index of the line that contains character `nIndex`; -1 stands for the start of the selection.
    int LineFromChar(int nIndex = -1) const {
        return afx_control::Ask(m_hWnd, EM_LINEFROMCHAR, Position(nIndex));
    }
    /// The index of the first character of line `nLine`; -1 stands for the line with the caret.
    int LineIndex(int nLine = -1) const { return afx_control::Ask(m_hWnd, EM_LINEINDEX, Position(nLine)); }
    /// The length, in characters, of the line that contains character `nLine`. -1 counts the characters
    /// outside the selection in the selected lines.
    int LineLength(int nLine = -1) const { return afx_control::Ask(m_hWnd, EM_LINELENGTH, Position(nLine)); }
    void LineScroll(int nLines, int nChars = 0) {
        afx_control::Ask(m_hWnd, EM_LINESCROLL, Position(nChars), nLines);
    }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void SetPasswordChar(TCHAR ch) { afx_control::Ask(m_hWnd, EM_SETPASSWORDCHAR, static_cast<BYTE>(ch)); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(afx_control::Ask(m_hWnd, EM_GETPASSWORDCHAR)); }
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);
    /// The range (0, -1) selects all; a start of -1 removes the selection. The control scrolls the caret into
    /// view unless `bNoScroll` is TRUE.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop) { return SetTabStops(1, const_cast<LPINT>(&cxEachStop)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return afx_control::Ask(m_hWnd, EM_SETREADONLY, static_cast<WPARAM>(bReadOnly));
    }
    int GetFirstVisibleLine() const { return afx_control::Ask(m_hWnd, EM_GETFIRSTVISIBLELINE); }

    BOOL Undo() { return afx_control::Ask(m_hWnd, EM_UNDO); }
    void Clear() { afx_control::Ask(m_hWnd, WM_CLEAR); }
    void Copy() { afx_control::Ask(m_hWnd, WM_COPY); }
    void Cut() { afx_control::Ask(m_hWnd, WM_CUT); }
    void Paste() { afx_control::Ask(m_hWnd, WM_PASTE); }

private:
    static WPARAM Position(int index) { return static_cast<WPARAM>(static_cast<INT_PTR>(index)); }
};

/// A scroll bar control. CWnd has the functions for scroll bars in a window's frame.
class MFC_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar() = default;
    ~CScrollBar() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    /// Returns the former position.
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
    }
    /// Both functions fill in lpScrollInfo->cbSize; GetScrollInfo() also fills in fMask.
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// The largest position that the user can reach: nMax - (nPage - 1), or nMax if nPage is 0; at least
    /// nMin.
    int GetScrollLimit();
};

AFX_END_OWN_CREATE

#include "afx/ListControls.h"

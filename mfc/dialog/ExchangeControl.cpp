// SPDX-License-Identifier: MIT
// DDX_ routines for states, selections, positions and control objects.

#include <afxdd_.h>
#include <afxwin.h>

#include "mfc/dialog/ControlText.h"

#include <commctrl.h>

namespace {

int Ask(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(::SendMessage(control, message, wParam, lParam));
}

WPARAM Index(int index) {
    return static_cast<WPARAM>(static_cast<INT_PTR>(index));
}

LPARAM Text(LPCTSTR text) {
    return reinterpret_cast<LPARAM>(text);
}

CString SelectedText(HWND listBox) {
    CString text;
    const int selected = Ask(listBox, LB_GETCURSEL);
    const int length = selected < 0 ? 0 : Ask(listBox, LB_GETTEXTLEN, Index(selected));
    if (length > 0) {
        Ask(listBox, LB_GETTEXT, Index(selected), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
        text.ReleaseBuffer();
    }
    return text;
}

} // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr)
        return; // an earlier exchange has bound the object
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowNotSupportedException();
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = Ask(control, BM_GETCHECK);
    else
        Ask(control, BM_SETCHECK,
            Index(value < BST_UNCHECKED || value > BST_INDETERMINATE ? BST_UNCHECKED : value));
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    ASSERT((::GetWindowLong(control, GWL_STYLE) & WS_GROUP) != 0);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int button = 0;
    do {
        if ((Ask(control, WM_GETDLGCODE) & DLGC_RADIOBUTTON) != 0) {
            if (!pDX->m_bSaveAndValidate)
                Ask(control, BM_SETCHECK, button == value ? BST_CHECKED : BST_UNCHECKED);
            else if (Ask(control, BM_GETCHECK) != BST_UNCHECKED)
                value = button;
            ++button;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control != nullptr && (::GetWindowLong(control, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = Ask(control, LB_GETCURSEL);
    else
        Ask(control, LB_SETCURSEL, Index(index));
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = SelectedText(control);
    else
        Ask(control, LB_SELECTSTRING, Index(-1), Text(value));
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = SelectedText(control);
        return;
    }
    const int index = Ask(control, LB_FINDSTRINGEXACT, Index(-1), Text(value));
    if (index >= 0)
        Ask(control, LB_SETCURSEL, Index(index));
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = Ask(control, CB_GETCURSEL);
    else
        Ask(control, CB_SETCURSEL, Index(index));
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ControlText(control);
    else if (Ask(control, CB_SELECTSTRING, Index(-1), Text(value)) < 0)
        ::SetWindowText(control, value);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ControlText(control);
        return;
    }
    const int index = Ask(control, CB_FINDSTRINGEXACT, Index(-1), Text(value));
    if (index >= 0)
        Ask(control, CB_SETCURSEL, Index(index));
    else
        ::SetWindowText(control, value);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = Ask(control, TBM_GETPOS);
    else
        Ask(control, TBM_SETPOS, TRUE, value);
}

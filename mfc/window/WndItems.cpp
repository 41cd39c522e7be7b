// SPDX-License-Identifier: MIT
// CWnd: children by ID, data exchange and updates of buttons.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afx/DataExchange.h"
#include "afxres.h"

#include <vector>

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) {
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
        if (::IsDlgButtonChecked(m_hWnd, id) != BST_UNCHECKED)
            return id;
    return 0;
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const {
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const {
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) {
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    const HWND item = ::GetDlgItem(m_hWnd, nID);
    if (item == nullptr)
        return 0;
    const int length = ::GetWindowTextLength(item);
    ::GetWindowText(item, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) {
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, SafeWindow(pWndCtl), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, SafeWindow(pWndCtl), bPrevious));
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType) {
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

void CWnd::DoDataExchange(CDataExchange*) {
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    // A control whose value changes notifies its parent, as if the user had changed it. These notifications
    // are ignored.
    class NotificationLock {
    public:
        explicit NotificationLock(HWND window) : m_previous(CurrentThreadState().exchangingWindow) {
            CurrentThreadState().exchangingWindow = window;
        }
        ~NotificationLock() { CurrentThreadState().exchangingWindow = m_previous; }
        NotificationLock(const NotificationLock&) = delete;
        NotificationLock& operator=(const NotificationLock&) = delete;

    private:
        const HWND m_previous;
    };

    CDataExchange exchange(this, bSaveAndValidate);
    const NotificationLock lock(m_hWnd);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* exception) {
        exception->Delete(); // the user has already seen a message
    } catch (CException* exception) {
        exception->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        exception->Delete();
    }
    return FALSE;
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* const control = FromHandle(child);
        CCmdUI state;
        state.m_nID = LOWORD(::GetDlgCtrlID(child));
        state.m_pOther = control;
        // Only push buttons represent commands. Other controls without a handler stay enabled.
        const LRESULT kind = ::SendMessage(child, WM_GETDLGCODE, 0, 0);
        const bool isCommand = (kind & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
        state.DoUpdate(pTarget, bDisableIfNoHndler && isCommand);
    }
}

// SPDX-License-Identifier: MIT
// CDataExchange.

#include <afxwin.h>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {
}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND const control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == nullptr) {
        TRACE(_T("Data exchange: there is no control with the ID 0x%x.\n"), nIDC);
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    HWND const control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl != nullptr) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

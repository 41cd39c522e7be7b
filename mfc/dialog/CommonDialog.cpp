// SPDX-License-Identifier: MIT
// CCommonDialog, the base of the system's dialogs.

#include <afxdlgs.h>

#include "mfc/dialog/ModalOwner.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : m_pOwnerWnd(pParentWnd) {
}

CCommonDialog::~CCommonDialog() {
    Detach(); // the system destroys the windows of its dialogs
}

HWND CCommonDialog::OwnerWindow() const {
    return ModalOwner(m_pOwnerWnd);
}

void CCommonDialog::OnOK() {
    Default();
}

void CCommonDialog::OnCancel() {
    Default();
}

// SPDX-License-Identifier: MIT
// DDX_GraphControl: binds a dialog item to a graph control.
#include <kavlix/GraphCtrl.h>

void DDX_GraphControl(CDataExchange* pDX, int nIDC, CGraphCtrl& control) {
    if (control.m_hWnd != nullptr)
        return;
    const HWND item = pDX->PrepareCtrl(nIDC);
    if (!control.SubclassWindow(item))
        AfxThrowNotSupportedException();
    // In a container for ActiveX controls the item's parent is a window other than the dialog.
    if (::GetParent(item) != pDX->m_pDlgWnd->GetSafeHwnd())
        control.AttachControlSite(pDX->m_pDlgWnd);
}

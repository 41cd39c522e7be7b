#include <kavlix/GraphCtrl.h>

void DDX_GraphControl(CDataExchange* pDX, int nIDC, CGraphCtrl& control) {
    if (control.m_hWnd != nullptr)
        return;
    const HWND item = pDX->PrepareCtrl(nIDC);
    if (!control.SubclassWindow(item))
        AfxThrowNotSupportedException();
    // The item's parent is another window than the dialog when it sits in a container for ActiveX controls.
    if (::GetParent(item) != pDX->m_pDlgWnd->GetSafeHwnd())
        control.AttachControlSite(pDX->m_pDlgWnd);
}

// SPDX-License-Identifier: MIT
// CFontDialog.

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd) {
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_szStyleName;
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    m_cf.lpfnHook = HookProc;
    if (lplfInitial != nullptr) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

CFontDialog::~CFontDialog() = default;

INT_PTR CFontDialog::DoModal() {
    m_cf.hwndOwner = OwnerWindow();
    m_cf.lCustData = reinterpret_cast<LPARAM>(this);
    const BOOL accepted = ::ChooseFont(&m_cf);
    Detach();
    return accepted ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFontDialog::HookProc(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* const dialog = reinterpret_cast<CFontDialog*>(reinterpret_cast<CHOOSEFONT*>(lParam)->lCustData);
    return dialog->SubclassWindow(window) && dialog->OnInitDialog();
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf) {
    if (m_hWnd != nullptr)
        ::SendMessage(m_hWnd, WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    else
        *lplf = m_lf;
}

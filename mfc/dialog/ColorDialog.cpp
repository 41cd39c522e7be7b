// SPDX-License-Identifier: MIT
// CColorDialog.

#include <afxdlgs.h>

#include <array>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd) {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.rgbResult = clrInit;
    m_cc.Flags = dwFlags | CC_ENABLEHOOK | CC_RGBINIT;
    m_cc.lpfnHook = HookProc;
}

CColorDialog::~CColorDialog() = default;

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = OwnerWindow();
    m_cc.lCustData = reinterpret_cast<LPARAM>(this);
    const BOOL accepted = ::ChooseColor(&m_cc);
    Detach();
    return accepted ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CColorDialog::HookProc(HWND window, UINT message, WPARAM, LPARAM lParam) {
    static const UINT colorOk = ::RegisterWindowMessage(COLOROKSTRING);
    if (message == WM_INITDIALOG) {
        auto* const dialog =
            reinterpret_cast<CColorDialog*>(reinterpret_cast<CHOOSECOLOR*>(lParam)->lCustData);
        return dialog->SubclassWindow(window) && dialog->OnInitDialog();
    }
    auto* const dialog = DYNAMIC_DOWNCAST(CColorDialog, CWnd::FromHandlePermanent(window));
    if (message != colorOk || dialog == nullptr)
        return FALSE;
    dialog->m_cc.rgbResult = reinterpret_cast<const CHOOSECOLOR*>(lParam)->rgbResult;
    return dialog->OnColorOK() ? TRUE : FALSE;
}

void CColorDialog::SetCurrentColor(COLORREF clr) {
    static const UINT setColor = ::RegisterWindowMessage(SETRGBSTRING);
    ::SendMessage(m_hWnd, setColor, 0, static_cast<LPARAM>(clr));
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors() {
    static std::array<COLORREF, 16> colors = [] {
        std::array<COLORREF, 16> white{};
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return colors.data();
}

BOOL CColorDialog::OnColorOK() {
    return FALSE;
}

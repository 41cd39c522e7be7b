// SPDX-License-Identifier: MIT
// CPropertyPage.

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
    ON_MESSAGE(WM_INITDIALOG, &CPropertyPage::HandleInitDialog)
END_MESSAGE_MAP()

namespace {

/// Handles nothing: AfxWndProc() has already passed the message to the message map.
INT_PTR CALLBACK NoDialogProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

} // namespace

CPropertyPage::CPropertyPage() {
    m_psp.dwSize = sizeof(m_psp);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, dwSize) {
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize) {
    m_psp.dwSize = dwSize;
    Construct(lpszTemplateName, nIDCaption);
}

CPropertyPage::~CPropertyPage() {
    EndHook();
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption) {
    Construct(MAKEINTRESOURCE(nIDTemplate), nIDCaption);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    ASSERT(m_lpszTemplateName == nullptr && lpszTemplateName != nullptr);
    if (!IS_INTRESOURCE(lpszTemplateName)) {
        m_strTemplateName = lpszTemplateName;
        lpszTemplateName = m_strTemplateName;
    }
    m_lpszTemplateName = lpszTemplateName;
    m_psp.pszTemplate = lpszTemplateName;
    if (nIDCaption != 0 && m_strCaption.LoadString(nIDCaption)) {
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
}

HPROPSHEETPAGE CPropertyPage::MakeHandle() {
    m_psp.dwFlags |= PSP_USECALLBACK;
    m_psp.pfnDlgProc = NoDialogProc;
    m_psp.pfnCallback = Callback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    if ((m_psp.dwFlags & PSP_DLGINDIRECT) == 0) {
        m_psp.hInstance = AfxFindResourceHandle(m_psp.pszTemplate, RT_DIALOG);
        if (::FindResource(m_psp.hInstance, m_psp.pszTemplate, RT_DIALOG) == nullptr)
            return nullptr;
    }
    m_bWasActive = false;
    return ::CreatePropertySheetPage(&m_psp);
}

UINT CALLBACK CPropertyPage::Callback(HWND, UINT message, LPPROPSHEETPAGE record) {
    auto* const page = reinterpret_cast<CPropertyPage*>(record->lParam);
    if (message == PSPCB_CREATE && !page->m_bHooked && page->m_hWnd == nullptr) {
        AfxHookWindowCreate(page);
        page->m_bHooked = true;
    } else if (message == PSPCB_RELEASE) {
        page->EndHook(); // the window could not be created
    }
    return TRUE;
}

void CPropertyPage::EndHook() {
    if (m_bHooked)
        AfxUnhookWindowCreate();
    m_bHooked = false;
}

LRESULT CPropertyPage::HandleInitDialog(WPARAM wParam, LPARAM lParam) {
    EndHook();
    return CDialog::HandleInitDialog(wParam, lParam);
}

CPropertySheet* CPropertyPage::Sheet() const {
    return DYNAMIC_DOWNCAST(CPropertySheet, GetParent());
}

void CPropertyPage::SetModified(BOOL bChanged) {
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED,
                      reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CPropertyPage::CancelToClose() {
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    return m_hWnd == nullptr ? 0 : ::SendMessage(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam);
}

BOOL CPropertyPage::OnSetActive() {
    if (m_bWasActive) // the first time, OnInitDialog() has just filled the controls
        UpdateData(FALSE);
    m_bWasActive = true;
    return TRUE;
}

BOOL CPropertyPage::OnKillActive() {
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset() {
    OnCancel();
}

void CPropertyPage::OnOK() {
}

void CPropertyPage::OnCancel() {
}

BOOL CPropertyPage::OnQueryCancel() {
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack() {
    return 0;
}

LRESULT CPropertyPage::OnWizardNext() {
    return 0;
}

BOOL CPropertyPage::OnWizardFinish() {
    return TRUE;
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg); // the sheet translates the keys of its pages
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* const notify = reinterpret_cast<const PSHNOTIFY*>(lParam);
    if (notify->hdr.hwndFrom != ::GetParent(m_hWnd))
        return CDialog::OnNotify(wParam, lParam, pResult);
    CPropertySheet* const sheet = Sheet();
    const auto close = [&](int result) {
        if (sheet != nullptr)
            sheet->m_nModalResult = result;
    };
    switch (notify->hdr.code) {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        break;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        break;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        if (*pResult == PSNRET_NOERROR && notify->lParam != 0 && sheet != nullptr && !sheet->IsWizard())
            close(IDOK); // OK, not Apply
        break;
    case PSN_RESET:
        OnReset();
        close(IDCANCEL);
        break;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        break;
    case PSN_WIZBACK:
        *pResult = OnWizardBack();
        break;
    case PSN_WIZNEXT:
        *pResult = OnWizardNext();
        break;
    case PSN_WIZFINISH:
        *pResult = !OnWizardFinish();
        if (*pResult == 0)
            close(ID_WIZFINISH);
        break;
    case PSN_HELP:
        SendMessage(WM_COMMAND, ID_HELP);
        break;
    default:
        return CDialog::OnNotify(wParam, lParam, pResult);
    }
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

// SPDX-License-Identifier: MIT
// CDialog.

#include <afxwin.h>

#include "mfc/control/CommonControlInit.h"
#include "mfc/dialog/CommandRoute.h"
#include "mfc/dialog/DialogTemplate.h"
#include "mfc/dialog/ModalOwner.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

/// A dialog procedure that handles nothing: AfxWndProc() has already passed the message to the message map.
INT_PTR CALLBACK NoDialogProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : m_pParentWnd(pParentWnd) {
    if (IS_INTRESOURCE(lpszTemplateName)) {
        m_lpszTemplateName = lpszTemplateName;
    } else {
        m_strTemplateName = lpszTemplateName;
        m_lpszTemplateName = m_strTemplateName;
    }
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {
}

CDialog::~CDialog() {
    DestroyWindow();
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    HINSTANCE const module = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    const LPCDLGTEMPLATE dialogTemplate = LoadDialogTemplate(module, lpszTemplateName);
    if (dialogTemplate == nullptr)
        return FALSE;
    m_lpszTemplateName = lpszTemplateName; // FillLists() looks for list data under this name
    const BOOL created = CreateIndirect(dialogTemplate, pParentWnd);
    m_lpszTemplateName = nullptr;
    return created;
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    m_lpDialogInit = lpDialogInit;
    CWnd* const parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    return CreateFromTemplate(lpDialogTemplate, parent == nullptr ? nullptr : parent->m_hWnd);
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const auto dialogTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate));
    const BOOL created = dialogTemplate != nullptr && CreateIndirect(dialogTemplate, pParentWnd);
    if (dialogTemplate != nullptr)
        ::GlobalUnlock(hDialogTemplate);
    return created;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    ASSERT(m_lpszTemplateName == nullptr && lpDialogTemplate != nullptr);
    m_lpDialogTemplate = lpDialogTemplate;
    m_pParentWnd = pParentWnd;
    m_lpDialogInit = lpDialogInit;
    return lpDialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    ASSERT(m_lpszTemplateName == nullptr && hDialogTemplate != nullptr);
    m_hDialogTemplate = hDialogTemplate;
    m_pParentWnd = pParentWnd;
    return hDialogTemplate != nullptr;
}

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND owner) {
    ASSERT(m_hWnd == nullptr);
    LoadCommonControls(ICC_WIN95_CLASSES); // a template may contain any common control
    m_bCenter = WantsCentering(dialogTemplate);
    AfxHookWindowCreate(this);
    HWND const window =
        ::CreateDialogIndirectParam(AfxGetInstanceHandle(), dialogTemplate, owner, NoDialogProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // no window was attached, so there was no WM_NCDESTROY
    if (window != nullptr && m_hWnd != window)
        ::DestroyWindow(window);
    return window != nullptr && m_hWnd == window;
}

LPCDLGTEMPLATE CDialog::FindTemplate() {
    if (m_lpszTemplateName != nullptr)
        return LoadDialogTemplate(AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG), m_lpszTemplateName);
    if (m_hDialogTemplate != nullptr)
        return static_cast<LPCDLGTEMPLATE>(::GlobalLock(m_hDialogTemplate));
    return m_lpDialogTemplate;
}

void CDialog::ForgetTemplate() {
    if (m_lpszTemplateName == nullptr && m_hDialogTemplate != nullptr)
        ::GlobalUnlock(m_hDialogTemplate);
}

INT_PTR CDialog::DoModal() {
    const LPCDLGTEMPLATE dialogTemplate = FindTemplate();
    if (dialogTemplate == nullptr)
        return -1;
    HWND const owner = ModalOwner(m_pParentWnd);
    m_nModalResult = -1;
    m_bContinueModal = TRUE; // EndDialog() in OnInitDialog() needs the flag before RunModalLoop() sets it
    try {
        ModalWindow modal(*this, owner);
        {
            const DisabledWindow disabledOwner(owner);
            const DisabledWindow disabledTop(TopmostOwner(owner));
            if (!CreateFromTemplate(dialogTemplate, owner)) {
                m_nModalResult = -1;
            } else if (m_bContinueModal) {
                DWORD flags = MLF_SHOWONIDLE;
                if ((GetStyle() & DS_NOIDLEMSG) != 0)
                    flags |= MLF_NOIDLEMSG;
                RunModalLoop(flags);
            }
        }
        modal.HandOver();
    } catch (...) {
        m_bContinueModal = FALSE;
        ForgetTemplate();
        throw;
    }
    m_bContinueModal = FALSE;
    ForgetTemplate();
    return m_nModalResult;
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

void CDialog::EndDialog(int nResult) {
    if (m_bContinueModal)
        EndModalLoop(nResult);
    else
        ::EndDialog(m_hWnd, nResult);
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    PreInitDialog();
    if (!FillLists(m_hWnd, m_lpszTemplateName, m_lpDialogInit)) {
        EndDialog(-1);
        return FALSE;
    }
    RECT created{};
    ::GetWindowRect(m_hWnd, &created);
    BOOL setFocus = FALSE;
    try {
        setFocus = OnInitDialog();
    } catch (...) {
        if (m_hWnd != nullptr)
            EndDialog(IDABORT);
        throw;
    }
    if (m_hWnd != nullptr)
        CenterUnlessPlaced(created);
    return setFocus;
}

void CDialog::CenterUnlessPlaced(const RECT& created) {
    RECT now{};
    ::GetWindowRect(m_hWnd, &now);
    const bool moved = now.left != created.left || now.top != created.top;
    if (m_bCenter && !moved && !::IsWindowVisible(m_hWnd))
        CenterWindow();
}

BOOL CDialog::OnInitDialog() {
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::PreInitDialog() {
}

void CDialog::OnSetFont(CFont*) {
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           PassCommandOn(*this, nID, nCode, pExtra, pHandlerInfo);
}

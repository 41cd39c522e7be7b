// SPDX-License-Identifier: MIT
// CPropertySheet: the system's property sheet in a message loop of this library.

#include <afxdlgs.h>

#include "afxpriv.h"
#include "mfc/control/CommonControlInit.h"
#include "mfc/dialog/CommandRoute.h"
#include "mfc/dialog/ModalOwner.h"

#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(WM_KICKIDLE, &CPropertySheet::HandleKickIdle)
    ON_WM_CLOSE()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace {

/// The sheet that the system creates on this thread. The system's callback has no argument for it.
thread_local CPropertySheet* t_sheetInCreation = nullptr;

constexpr DWORD popupStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME;
constexpr WORD extendedSignature = 0xFFFF; // second word of a DLGTEMPLATEEX
constexpr std::size_t extendedStyles = 8;  // bytes before exStyle and style in a DLGTEMPLATEEX

/// Changes the styles in a dialog template of either format.
void SetTemplateStyles(void* dialogTemplate, DWORD style, DWORD exStyle) {
    auto* const bytes = static_cast<BYTE*>(dialogTemplate);
    WORD signature = 0;
    std::memcpy(&signature, bytes + sizeof(WORD), sizeof(signature));
    const bool extended = signature == extendedSignature;
    std::memcpy(bytes + (extended ? extendedStyles + sizeof(DWORD) : 0), &style, sizeof(style));
    std::memcpy(bytes + (extended ? extendedStyles : sizeof(DWORD)), &exStyle, sizeof(exStyle));
}

DWORD TemplateStyle(const void* dialogTemplate) {
    const auto* const bytes = static_cast<const BYTE*>(dialogTemplate);
    WORD signature = 0;
    DWORD style = 0;
    std::memcpy(&signature, bytes + sizeof(WORD), sizeof(signature));
    std::memcpy(&style, bytes + (signature == extendedSignature ? extendedStyles + sizeof(DWORD) : 0),
                sizeof(style));
    return style;
}

} // namespace

CPropertySheet::CPropertySheet() {
    m_psh.dwSize = sizeof(m_psh);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) : CPropertySheet() {
    Construct(nIDCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) : CPropertySheet() {
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::~CPropertySheet() {
    DestroyWindow();
    m_tabs.m_hWnd = nullptr; // the sheet's, so that its destructor must not destroy it
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    CString caption;
    VERIFY(caption.LoadString(nIDCaption));
    Construct(caption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_strCaption = pszCaption;
    m_psh.pszCaption = m_strCaption;
    m_psh.nStartPage = iSelectPage;
    m_pParentWnd = pParentWnd;
}

int CALLBACK CPropertySheet::Callback(HWND, UINT message, LPARAM lParam) {
    const CPropertySheet* const sheet = t_sheetInCreation;
    if (message != PSCB_PRECREATE || sheet == nullptr || !sheet->m_bModeless)
        return 0;
    // Font and units of the template stay.
    const DWORD kept =
        TemplateStyle(reinterpret_cast<void*>(lParam)) & (DS_SETFONT | DS_3DLOOK | DS_FIXEDSYS);
    SetTemplateStyles(reinterpret_cast<void*>(lParam), sheet->m_dwStyle | kept, sheet->m_dwExStyle);
    return 0;
}

BOOL CPropertySheet::CreateSheet(HWND owner) {
    ASSERT(m_hWnd == nullptr && !m_pages.empty());
    LoadCommonControls(ICC_WIN95_CLASSES);
    std::vector<HPROPSHEETPAGE> handles;
    for (CPropertyPage* const page : m_pages) {
        HPROPSHEETPAGE const handle = page->MakeHandle();
        if (handle == nullptr) {
            for (HPROPSHEETPAGE const made : handles)
                ::DestroyPropertySheetPage(made);
            return FALSE;
        }
        handles.push_back(handle);
    }
    // Modeless for the system: the loop around the sheet is this library's, with its translation of messages.
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPSHEETPAGE)) | PSH_MODELESS | PSH_USECALLBACK;
    m_psh.hwndParent = owner;
    m_psh.hInstance = AfxGetInstanceHandle();
    m_psh.nPages = static_cast<UINT>(handles.size());
    m_psh.phpage = handles.data();
    m_psh.pfnCallback = Callback;

    t_sheetInCreation = this;
    AfxHookWindowCreate(this);
    const INT_PTR result = ::PropertySheet(&m_psh);
    const BOOL tied = AfxUnhookWindowCreate();
    t_sheetInCreation = nullptr;
    m_psh.phpage = nullptr;
    if (!tied)
        PostNcDestroy();
    return tied && result != -1 && m_hWnd != nullptr;
}

INT_PTR CPropertySheet::DoModal() {
    m_bModeless = false;
    m_nModalResult = IDCANCEL;
    HWND const owner = ModalOwner(m_pParentWnd);
    int result = -1;
    m_bContinueModal = TRUE; // EndDialog() during the creation needs the flag before RunModalLoop() sets it
    try {
        ModalWindow modal(*this, owner);
        {
            const DisabledWindow disabledOwner(owner);
            const DisabledWindow disabledTop(TopmostOwner(owner));
            if (CreateSheet(owner))
                result = m_bContinueModal ? RunModalLoop(MLF_NOIDLEMSG) : m_nModalResult;
        }
        modal.HandOver();
    } catch (...) {
        m_bContinueModal = FALSE;
        throw;
    }
    m_bContinueModal = FALSE;
    return result;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    m_bModeless = true;
    m_pParentWnd = pParentWnd;
    m_dwStyle = dwStyle != static_cast<DWORD>(-1) ? dwStyle : popupStyle;
    m_dwExStyle = dwExStyle;
    if ((m_dwStyle & WS_CHILD) != 0) {
        m_dwStyle |= DS_CONTROL; // the tab key leaves the sheet
        m_dwExStyle |= WS_EX_CONTROLPARENT;
    }
    CWnd* const parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    return CreateSheet(parent == nullptr ? nullptr : parent->m_hWnd);
}

void CPropertySheet::EndDialog(int nEndID) {
    EndModalLoop(nEndID);
}

HWND CPropertySheet::ActiveWindow() const {
    return m_hWnd == nullptr ? nullptr : reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
}

BOOL CPropertySheet::ContinueModal() {
    // A sheet of the system has no active page once the user has closed it.
    return CWnd::ContinueModal() && ActiveWindow() != nullptr;
}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ASSERT(pPage != nullptr);
    m_pages.push_back(pPage);
    if (m_hWnd == nullptr)
        return;
    HPROPSHEETPAGE const handle = pPage->MakeHandle();
    if (handle == nullptr || !SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle))) {
        if (handle != nullptr)
            ::DestroyPropertySheetPage(handle);
        m_pages.pop_back();
        AfxThrowMemoryException();
    }
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    const int index = GetPageIndex(pPage);
    if (index >= 0)
        RemovePage(index);
}

void CPropertySheet::RemovePage(int nPage) {
    ASSERT(nPage >= 0 && nPage < GetPageCount());
    m_pages.erase(m_pages.begin() + nPage);
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage));
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    ASSERT(nPage >= 0 && nPage < GetPageCount());
    return m_pages.at(static_cast<std::size_t>(nPage));
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) {
    const auto found = std::find(m_pages.begin(), m_pages.end(), pPage);
    return found == m_pages.end() ? -1 : static_cast<int>(found - m_pages.begin());
}

int CPropertySheet::GetActiveIndex() const {
    if (m_hWnd == nullptr)
        return static_cast<int>(m_psh.nStartPage);
    HWND const active = ActiveWindow();
    const auto found = std::find_if(m_pages.begin(), m_pages.end(), [&](const CPropertyPage* page) {
        return active != nullptr && page->m_hWnd == active;
    });
    return found != m_pages.end() ? static_cast<int>(found - m_pages.begin())
                                  : afx_control::Ask(TabWindow(), TCM_GETCURSEL);
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    const int index = GetActiveIndex();
    return m_hWnd != nullptr && index >= 0 && index < GetPageCount() ? GetPage(index) : nullptr;
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (nPage < 0)
        return FALSE;
    if (m_hWnd != nullptr)
        return SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage)) != 0;
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

HWND CPropertySheet::TabWindow() const {
    return reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL));
}

CTabCtrl* CPropertySheet::GetTabControl() const {
    if (m_hWnd == nullptr)
        return nullptr;
    m_tabs.m_hWnd = TabWindow(); // not attached, so that the program can subclass the tabs
    auto* const subclassed = DYNAMIC_DOWNCAST(CTabCtrl, FromHandlePermanent(m_tabs.m_hWnd));
    return subclassed != nullptr ? subclassed : &m_tabs;
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    m_strCaption = lpszText;
    m_psh.pszCaption = m_strCaption;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETTITLE, nStyle, reinterpret_cast<LPARAM>(lpszText));
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags) {
    PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags)); // the system sets its own buttons first
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText) {
    SendMessage(PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(lpszText));
}

BOOL CPropertySheet::PressButton(int nButton) {
    return SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton)) != 0;
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM) {
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog() {
    const BOOL setFocus = static_cast<BOOL>(Default());
    if (!m_bStacked && !IsWizard())
        GetTabControl()->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
    if (m_bModeless && !IsWizard())
        RemoveButtons();
    else if (!m_bModeless)
        CenterWindow();
    return setFocus;
}

void CPropertySheet::RemoveButtons() {
    for (const int id : {static_cast<int>(IDOK), static_cast<int>(IDCANCEL), ID_APPLY_NOW, IDHELP})
        if (HWND const button = ::GetDlgItem(m_hWnd, id)) {
            ::ShowWindow(button, SW_HIDE);
            ::EnableWindow(button, FALSE);
        }
    // The margin below the tabs becomes that above them.
    CRect tabs;
    CRect client;
    GetTabControl()->GetWindowRect(&tabs);
    ScreenToClient(&tabs);
    GetClientRect(&client);
    const int tooHigh = client.bottom - (tabs.bottom + tabs.top);
    CRect window;
    GetWindowRect(&window);
    if (tooHigh > 0)
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - tooHigh,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CPropertySheet::HandleKickIdle(WPARAM wParam, LPARAM lParam) {
    HWND const page = ActiveWindow();
    return page == nullptr ? 0 : ::SendMessage(page, WM_KICKIDLE, wParam, lParam);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    const bool wasOpen = ActiveWindow() != nullptr;
    Default();
    if (wasOpen && ActiveWindow() == nullptr) {
        // The command has closed the sheet.
        if (m_bModeless)
            DestroyWindow();
        else
            EndModalLoop(m_nModalResult);
    }
    return TRUE;
}

void CPropertySheet::OnClose() {
    if (m_bModeless)
        DestroyWindow();
    else
        CWnd::OnClose();
}

void CPropertySheet::OnNcDestroy() {
    m_tabs.m_hWnd = nullptr;
    CWnd::OnNcDestroy();
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    const bool isMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    return (isKey || isMouse) && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg));
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           PassCommandOn(*this, nID, nCode, pExtra, pHandlerInfo);
}

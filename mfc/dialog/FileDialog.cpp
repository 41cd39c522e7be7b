// SPDX-License-Identifier: MIT
// CFileDialog.

#include <afxdlgs.h>

#include <cstring>

#include "mfc/base/PathNames.h"

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL)
    : CCommonDialog(pParentWnd), m_bOpenFileDialog(bOpenFileDialog) {
    m_ofn.lStructSize = dwSize != 0 ? dwSize : sizeof(m_ofn);
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = _countof(m_szFileName);
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = _countof(m_szFileTitle);
    m_ofn.lpstrDefExt = lpszDefExt;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.hInstance = AfxGetInstanceHandle();
    m_ofn.lpfnHook = HookProc;
    if (lpszFileName != nullptr)
        lstrcpyn(m_szFileName, lpszFileName, _countof(m_szFileName));
    if (lpszFilter != nullptr) {
        m_strFilter = lpszFilter;
        m_strFilter += _T("||"); // the list must end with two zeros, even if the last bars are missing
        for (int i = 0; i < m_strFilter.GetLength(); ++i)
            if (m_strFilter[i] == _T('|'))
                m_strFilter.SetAt(i, _T('\0'));
        m_ofn.lpstrFilter = m_strFilter;
    }
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = OwnerWindow();
    m_ofn.lCustData = reinterpret_cast<LPARAM>(this);
    const BOOL accepted = m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    Detach();
    return accepted ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFileDialog::HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG) {
        auto* const open = DYNAMIC_DOWNCAST(CFileDialog, CWnd::FromHandlePermanent(window));
        return open != nullptr && !open->IsExplorer() ? open->AnswerOldDialog(message, wParam, lParam)
                                                      : FALSE;
    }
    auto* const dialog = reinterpret_cast<CFileDialog*>(reinterpret_cast<OPENFILENAME*>(lParam)->lCustData);
    return dialog->SubclassWindow(window) && dialog->OnInitDialog();
}

CString CFileDialog::AskDialog(UINT message) const {
    TCHAR text[MAX_PATH] = {};
    ::SendMessage(::GetParent(m_hWnd), message, _countof(text), reinterpret_cast<LPARAM>(text));
    text[MAX_PATH - 1] = 0;
    return text;
}

UINT_PTR CFileDialog::AnswerOldDialog(UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT fileOk = ::RegisterWindowMessage(FILEOKSTRING);
    static const UINT shareViolation = ::RegisterWindowMessage(SHAREVISTRING);
    static const UINT selectionChange = ::RegisterWindowMessage(LBSELCHSTRING);
    if (message == fileOk)
        return static_cast<UINT_PTR>(OnFileNameOK());
    if (message == shareViolation)
        return OnShareViolation(reinterpret_cast<LPCTSTR>(lParam));
    if (message == selectionChange)
        OnLBSelChangedNotify(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    return FALSE;
}

CString CFileDialog::GetPathName() const {
    return m_hWnd != nullptr && IsExplorer() ? AskDialog(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    if (m_hWnd != nullptr && IsExplorer())
        return AskDialog(CDM_GETSPEC);
    return m_ofn.lpstrFileTitle != nullptr && m_ofn.lpstrFileTitle[0] != 0
               ? CString(m_ofn.lpstrFileTitle)
               : CString(m_ofn.lpstrFile + m_ofn.nFileOffset);
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(_T('.'));
    return dot >= 0 ? name.Mid(dot + 1) : CString();
}

CString CFileDialog::GetFileTitle() const {
    return AfxWithoutExtension(GetFileName());
}

/// The first of several names; NULL if the user chose one file. The names follow their folder. Each text ends with a
/// zero, in the old dialog with a blank. The old dialog uses short names, which contain no blanks.
static LPTSTR FirstOfSeveral(const OPENFILENAME& choice) {
    if ((choice.Flags & OFN_ALLOWMULTISELECT) == 0)
        return nullptr;
    const bool hasOffset = choice.nFileOffset > 0;
    const LPTSTR before = choice.lpstrFile + (hasOffset ? choice.nFileOffset - 1 : 0);
    if ((choice.Flags & OFN_EXPLORER) != 0)
        return hasOffset && *before == 0 ? before + 1 : nullptr;
    const LPTSTR blank = _tcschr(before, _T(' '));
    return blank == nullptr ? nullptr : blank + 1;
}

POSITION CFileDialog::GetStartPosition() const {
    const LPTSTR first = FirstOfSeveral(m_ofn);
    return reinterpret_cast<POSITION>(first != nullptr ? first : m_ofn.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const auto name = reinterpret_cast<LPCTSTR>(pos);
    if (name == m_ofn.lpstrFile) {
        pos = nullptr;
        return name;
    }
    CString path(m_ofn.lpstrFile, static_cast<int>(FirstOfSeveral(m_ofn) - 1 - m_ofn.lpstrFile));
    if (path.Right(1) != _T("\\"))
        path += _T('\\');
    const LPCTSTR end = name + _tcscspn(name, IsExplorer() ? _T("") : _T(" "));
    path += CString(name, static_cast<int>(end - name));
    // The list of the Explorer's dialog ends with an empty name, the one of the old dialog with its only zero.
    const LPCTSTR next = *end != 0 || IsExplorer() ? end + 1 : end;
    pos = *next == 0 ? nullptr : reinterpret_cast<POSITION>(const_cast<LPTSTR>(next));
    return path;
}

BOOL CFileDialog::OnFileNameOK() {
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR) {
    return OFN_SHAREWARN;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {
}

void CFileDialog::OnInitDone() {
}

void CFileDialog::OnFileNameChange() {
}

void CFileDialog::OnFolderChange() {
}

void CFileDialog::OnTypeChange() {
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* const notify = reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notify->hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        OnFileNameChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return TRUE;
    case CDN_TYPECHANGE:
        OnTypeChange();
        return TRUE;
    case CDN_SHAREVIOLATION:
        *pResult = static_cast<LRESULT>(OnShareViolation(notify->pszFile));
        break;
    case CDN_FILEOK:
        *pResult = OnFileNameOK();
        break;
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
    // The system's dialog reads the result from DWLP_MSGRESULT.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

// SPDX-License-Identifier: MIT
// CRecentFileList, and CWinApp's list of recent files.

#include "afx/RecentFiles.h"

#include "afx/App.h"
#include "afx/Menu.h"
#include "afxres.h"

#include <shlwapi.h>

#include "mfc/base/PathNames.h"

namespace {

/// The path with "..." for folders in its middle; empty if the name of the file does not fit too.
CString Compacted(const CString& path, int length) {
    TCHAR text[MAX_PATH] = {};
    if (length >= MAX_PATH || !::PathCompactPathEx(text, path, static_cast<UINT>(length + 1), 0))
        return CString();
    const CString compacted(text);
    const CString name = _T('\\') + AfxLastPart(path);
    return compacted.Right(name.GetLength()) == name ? compacted : CString();
}

/// The text of a menu item: number with its mnemonic, and name.
CString ItemText(UINT number, CString name) {
    name.Replace(_T("&"), _T("&&"));
    CString text;
    if (number < 10)
        text.Format(_T("&%u %s"), number, static_cast<LPCTSTR>(name));
    else if (number == 10)
        text.Format(_T("1&0 %s"), static_cast<LPCTSTR>(name));
    else
        text.Format(_T("%u %s"), number, static_cast<LPCTSTR>(name));
    return text;
}

} // namespace

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                                 int nMaxDispLen)
    : m_nSize(nSize), m_arrNames(new CString[static_cast<std::size_t>(nSize)]), m_strSectionName(lpszSection),
      m_strEntryFormat(lpszEntryFormat), m_nStart(nStart), m_nMaxDisplayLength(nMaxDispLen) {
    ASSERT(nSize > 0);
}

CRecentFileList::~CRecentFileList() {
    delete[] m_arrNames;
}

CString& CRecentFileList::operator[](int nIndex) {
    ASSERT(nIndex >= 0 && nIndex < m_nSize);
    return m_arrNames[nIndex];
}

void CRecentFileList::Add(LPCTSTR lpszPathName) {
    ASSERT(lpszPathName != nullptr && lpszPathName[0] != 0);
    const CString path = AfxFullPath(lpszPathName);
    int place = 0; // of the same file, else of the last one
    while (place < m_nSize - 1 && m_arrNames[place].CompareNoCase(path) != 0)
        ++place;
    for (; place > 0; --place)
        m_arrNames[place] = m_arrNames[place - 1];
    m_arrNames[0] = path;
}

void CRecentFileList::Remove(int nIndex) {
    ASSERT(nIndex >= 0 && nIndex < m_nSize);
    for (; nIndex < m_nSize - 1; ++nIndex)
        m_arrNames[nIndex] = m_arrNames[nIndex + 1];
    m_arrNames[m_nSize - 1].Empty();
}

BOOL CRecentFileList::GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const {
    if (nIndex < 0 || nIndex >= m_nSize || m_arrNames[nIndex].IsEmpty())
        return FALSE;
    const CString& path = m_arrNames[nIndex];
    const CString name = AfxLastPart(path);
    const bool here = nCurDir == path.GetLength() - name.GetLength() &&
                      path.Left(nCurDir).CompareNoCase(CString(lpszCurDir, nCurDir)) == 0;
    strName = here ? name : path;
    const auto isTooLong = [&] {
        return m_nMaxDisplayLength >= 0 && strName.GetLength() > m_nMaxDisplayLength;
    };
    if (isTooLong())
        strName = Compacted(path, m_nMaxDisplayLength);
    if (strName.IsEmpty())
        strName = name;
    if (isTooLong())
        strName = AfxWithoutExtension(name);
    if (isTooLong() && !bAtLeastName)
        strName.Empty();
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI* pCmdUI) {
    CMenu* const menu = pCmdUI->m_pMenu;
    if (menu == nullptr || pCmdUI->m_pSubMenu != nullptr)
        return;
    if (m_strOriginal.IsEmpty())
        menu->GetMenuString(pCmdUI->m_nID, m_strOriginal, MF_BYCOMMAND);
    for (int i = 1; i < m_nSize; ++i)
        menu->DeleteMenu(pCmdUI->m_nID + static_cast<UINT>(i), MF_BYCOMMAND);
    if (m_arrNames[0].IsEmpty()) {
        if (!m_strOriginal.IsEmpty())
            pCmdUI->SetText(m_strOriginal);
        pCmdUI->Enable(FALSE);
        pCmdUI->m_nIndexMax = menu->GetMenuItemCount();
        return;
    }
    menu->DeleteMenu(pCmdUI->m_nID, MF_BYCOMMAND);

    TCHAR folder[MAX_PATH + 1] = {};
    ::GetCurrentDirectory(MAX_PATH, folder);
    CString current(folder);
    if (current.Right(1) != _T("\\"))
        current += _T('\\');
    CString name;
    const UINT first = pCmdUI->m_nIndex;
    UINT count = 0;
    for (int i = 0; GetDisplayName(name, i, current, current.GetLength()); ++i, ++count)
        menu->InsertMenu(first + count, MF_STRING | MF_BYPOSITION, pCmdUI->m_nID + count,
                         ItemText(m_nStart + count + 1, name));
    // The update goes on behind the last file.
    pCmdUI->m_nIndex = first + count - 1;
    pCmdUI->m_nIndexMax = menu->GetMenuItemCount();
    pCmdUI->m_bEnableChanged = TRUE;
}

CString CRecentFileList::Entry(int index) const {
    CString entry;
    entry.Format(m_strEntryFormat, index + 1);
    return entry;
}

void CRecentFileList::ReadList() {
    CWinApp* const app = AfxGetApp();
    for (int i = 0; i < m_nSize; ++i)
        m_arrNames[i] = app->GetProfileString(m_strSectionName, Entry(i));
}

void CRecentFileList::WriteList() {
    CWinApp* const app = AfxGetApp();
    app->WriteProfileString(m_strSectionName, nullptr, nullptr);
    for (int i = 0; i < m_nSize; ++i)
        if (!m_arrNames[i].IsEmpty())
            app->WriteProfileString(m_strSectionName, Entry(i), m_arrNames[i]);
}

// ---- CWinApp ----

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU) {
    delete m_pRecentFileList;
    m_pRecentFileList = nullptr;
    if (nMaxMRU == 0)
        return;
    m_pRecentFileList =
        new CRecentFileList(0, _T("Recent File List"), _T("File%d"), static_cast<int>(nMaxMRU));
    m_pRecentFileList->ReadList();
}

void CWinApp::SaveStdProfileSettings() {
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->WriteList();
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName) {
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->Add(lpszPathName);
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR) {
    return nullptr;
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI* pCmdUI) {
    if (m_pRecentFileList == nullptr)
        pCmdUI->Enable(FALSE);
    else
        m_pRecentFileList->UpdateMenu(pCmdUI);
}

BOOL CWinApp::OnOpenRecentFile(UINT nID) {
    const int index = static_cast<int>(nID) - ID_FILE_MRU_FILE1;
    if (m_pRecentFileList == nullptr || index < 0 || index >= m_pRecentFileList->GetSize() ||
        (*m_pRecentFileList)[index].IsEmpty())
        return FALSE;
    const CString path = (*m_pRecentFileList)[index];
    if (OpenDocumentFile(path) != nullptr)
        return TRUE;
    // The attempt may have changed the order of the list.
    for (int i = 0; i < m_pRecentFileList->GetSize(); ++i)
        if ((*m_pRecentFileList)[i].CompareNoCase(path) == 0) {
            m_pRecentFileList->Remove(i);
            break;
        }
    return TRUE;
}

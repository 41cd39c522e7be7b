// SPDX-License-Identifier: MIT
// CRecentFileList, the files that the user opened last.
#pragma once

#include "afx/CmdTarget.h"
#include "afx/Export.h"

/// Default width in characters of a name in the menu of recent files.
#define AFX_ABBREV_FILENAME_LEN 30

/// The files that the user opened last, the latest first. The list is kept in the profile data of the application
/// and shown in a menu.
class MFC_API CRecentFileList {
public:
    /// `nStart` is added to the first number that the menu shows. `lpszSection` is the section of the profile data;
    /// `lpszEntryFormat` makes the name of an entry from its number, for example "File%d". `nSize` is the largest
    /// number of files. The menu shows names of at most `nMaxDispLen` characters.
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();
    CRecentFileList(const CRecentFileList&) = delete;
    CRecentFileList& operator=(const CRecentFileList&) = delete;

    /// The largest number of files.
    int GetSize() const { return m_nSize; }
    /// Full path of a file; empty beyond the last file.
    CString& operator[](int nIndex);

    /// Puts the file in the first place. A relative path is completed. The last file is dropped if there are too
    /// many.
    virtual void Add(LPCTSTR lpszPathName);
    virtual void Remove(int nIndex);
    /// The name that the menu shows: without the folder if this is `lpszCurDir`, a path of `nCurDir` characters
    /// with a backslash at its end. Of a name that is too long, folders in the middle are left out, then all
    /// folders, then the extension. If the rest is still too long, the name is empty, or with `bAtLeastName` the
    /// rest. FALSE if there is no such file.
    virtual BOOL GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                BOOL bAtLeastName = TRUE) const;
    /// Call the function in the ON_UPDATE_COMMAND_UI handler of the first of `GetSize()` consecutive commands. The
    /// files replace the menu item. Without files, the item keeps its text and is greyed.
    virtual void UpdateMenu(CCmdUI* pCmdUI);
    /// Reads the list from the profile data of the application, and writes the list.
    virtual void ReadList();
    virtual void WriteList();

private:
    CString Entry(int index) const;

    int m_nSize;
    CString* m_arrNames; // an array of m_nSize paths
    CString m_strSectionName;
    CString m_strEntryFormat;
    UINT m_nStart;
    int m_nMaxDisplayLength;
    CString m_strOriginal; // text of the menu item before the first update
};

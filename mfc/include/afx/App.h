// SPDX-License-Identifier: MIT
// CWinApp, the application object, and CCommandLineInfo.
#pragma once

#include "afx/Thread.h"

class CDocument;
class CRecentFileList;

/// Default number of recent files.
#define _AFX_MRU_COUNT 4

/// The command line's meaning, filled in by CWinApp::ParseCommandLine().
class MFC_API CCommandLineInfo : public CObject {
public:
    enum { FileNew, FileOpen, FilePrint, FilePrintTo, FileDDE, AppRegister, AppUnregister, FileNothing = -1 };

    CCommandLineInfo() = default;

    BOOL m_bShowSplash = TRUE;
    BOOL m_bRunEmbedded = FALSE;
    BOOL m_bRunAutomated = FALSE;
    int m_nShellCommand = FileNew;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;

    /// Evaluates one argument of the command line. `bFlag` TRUE: the argument began with '-' or '/', and
    /// `pszParam` is the text after this character. `bLast` TRUE: the argument is the last one.
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);

protected:
    void ParseParamFlag(LPCTSTR pszParam);
    void ParseParamNotFlag(LPCTSTR pszParam);
    void ParseLast(BOOL bLast);
};

/// The application. A program has exactly one object of a class derived from CWinApp, usually a global one.
/// The start-up code initialises the object, then calls InitInstance() and Run().
class MFC_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    /// `lpszAppName` is the title of message boxes. Without a name, the title is the string
    /// AFX_IDS_APP_TITLE; without that string, the name of the program file.
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    HINSTANCE m_hPrevInstance = nullptr; ///< from WinMain(), where it is always NULL
    LPTSTR m_lpCmdLine = nullptr;        ///< the command line; from WinMain() without the program's name
    int m_nCmdShow = SW_SHOWNORMAL;      ///< SW_ code for the first ShowWindow() of the main window

    // The names are allocated with malloc(); the destructor frees them. To change a name, free the old one
    // with free() and assign the result of _strdup().
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;      ///< file name of the program without folder and extension
    LPCTSTR m_pszHelpFilePath = nullptr; ///< path of the help file: the program's path with .HLP
    LPCTSTR m_pszProfileName = nullptr;  ///< name of the INI file, or of the registry key of the program
    LPCTSTR m_pszRegistryKey = nullptr;  ///< registry key of the company; NULL: profile data in an INI file

    LPCTSTR GetAppName() const { return m_pszAppName; }

    // ---- Resources (through the resource chain) ----

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
    HCURSOR LoadOEMCursor(UINT nIDCursor) const { return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor)); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }
    HICON LoadOEMIcon(UINT nIDIcon) const { return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon)); }

    // ---- Profile data ----

    /// Keeps profile data in HKEY_CURRENT_USER\Software\<company>\<application> instead of an INI file.
    /// `lpszRegistryKey` is the company's name; m_pszAppName is the application's name.
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /// Open the registry key of the application or of a section, and create a key that does not exist. The
    /// caller closes the key. NULL on failure, and NULL before SetRegistryKey().
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// A NULL value deletes the entry. A NULL entry deletes the whole section. An INI file keeps characters outside
    /// the code page only if the file begins with the byte-order mark of UTF-16.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// Allocates the data with new BYTE[]; the caller deletes the block. If the entry does not exist or
    /// is not binary, returns FALSE and allocates nothing.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    // ---- Recent files ----

    /// Puts a file in the first place of the recent files. Does nothing before LoadStdProfileSettings().
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    /// Opens a file, of the command line or of the recent files. The library has no documents, so the base opens
    /// nothing and returns NULL, which stands for failure.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);

    // ---- Behaviour ----

    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    /// Shows a message box for AfxMessageBox(). The main window, or its popup that was active last, owns the
    /// box. If `nType` names no icon, boxes with Yes and No show a question mark, others an exclamation mark.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// `nCode` 1 shows the hourglass, and -1 undoes one call with 1. 0 shows the hourglass again if a call
    /// with 1 is not undone yet.
    virtual void DoWaitCursor(int nCode);
    /// Enables or disables the main window, for programs that show a modal window of another library.
    void EnableModeless(BOOL bEnable);
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    BOOL Enable3dControls() { return TRUE; }
    BOOL Enable3dControlsStatic() { return TRUE; }

    virtual BOOL InitApplication() { return TRUE; }
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    /// Closes the main window (ID_APP_EXIT).
    afx_msg void OnAppExit();
    /// The four functions show the help file. CWinApp's message map has no rows for them; a program adds the
    /// rows that it needs, for example for ID_HELP.
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

protected:
    /// Reads the recent files, at most `nMaxMRU`, from the profile data. Call the function in InitInstance(), after
    /// SetRegistryKey(). The menu item ID_FILE_MRU_FILE1 then shows the files. 0 keeps no recent files.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    /// Writes the recent files. ExitInstance() calls the function.
    void SaveStdProfileSettings();
    CRecentFileList* m_pRecentFileList =
        nullptr; ///< NULL before LoadStdProfileSettings(); owned by the object

    /// Shows the recent files in place of the menu item ID_FILE_MRU_FILE1.
    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    /// Passes the recent file of the command ID_FILE_MRU_FILE1 to ID_FILE_MRU_FILE16 to OpenDocumentFile(). Removes
    /// the file from the list if it cannot be opened. Programs that open files without documents handle the
    /// commands in their frame window (ON_COMMAND_EX_RANGE).
    afx_msg BOOL OnOpenRecentFile(UINT nID);

    friend MFC_API BOOL AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);

    void SetCurrentHandles();

    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;

    DECLARE_MESSAGE_MAP()
};

/// The application object, or NULL.
MFC_API CWinApp* AfxGetApp();
MFC_API LPCTSTR AfxGetAppName();

/// Initialises the library for a program. The start-up code calls the function. Console programs call it
/// themselves, with `::GetModuleHandle(NULL), NULL, ::GetCommandLine(), 0`.
MFC_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Calls AfxWinInit(), runs the application object and calls AfxWinTerm(). Returns the exit status.
MFC_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Releases what AfxWinInit() acquired for the calling thread.
MFC_API void AfxWinTerm();

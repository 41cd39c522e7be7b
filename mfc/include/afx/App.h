#pragma once

#include "afx/Thread.h"

/// What the command line asked for, as CWinApp::ParseCommandLine() fills it in.
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

    /// Takes one argument. `bFlag`: it began with - or /, which is cut off; `bLast`: none follows.
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);

protected:
    void ParseParamFlag(LPCTSTR pszParam);
    void ParseParamNotFlag(LPCTSTR pszParam);
    void ParseLast(BOOL bLast);
};

/// The application: a program has exactly one object of a class derived from this, usually global. The
/// start-up code sets it up, calls InitInstance() and Run().
class MFC_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    /// @param lpszAppName  title of message boxes; without it the string AFX_IDS_APP_TITLE, else the
    /// program's name
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    HINSTANCE m_hPrevInstance = nullptr; ///< always NULL
    LPTSTR m_lpCmdLine = nullptr;        ///< the command line behind the program's name
    int m_nCmdShow = SW_SHOWNORMAL;      ///< for the first ShowWindow()

    // These names are blocks of malloc(), freed by the destructor. To change one, free it and assign a
    // _strdup().
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;      ///< file name without folder and extension
    LPCTSTR m_pszHelpFilePath = nullptr; ///< the program's path with .HLP
    LPCTSTR m_pszProfileName = nullptr;  ///< INI file, or the application's key below m_pszRegistryKey
    LPCTSTR m_pszRegistryKey = nullptr;  ///< company key; NULL: profile data are in the INI file

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
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /// The application's key and a section's key; the caller closes them. NULL on failure or without
    /// SetRegistryKey().
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// A NULL value deletes the entry, a NULL entry the section.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// Allocates the data with new BYTE[]; the caller deletes them. FALSE, and nothing allocated, if there
    /// are none.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    // ---- Behaviour of the program ----

    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    /// Shows AfxMessageBox()'s box, owned by the active window; adds an icon if `nType` has none.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// 1 shows the hourglass, -1 takes one call of that back, 0 shows it again if it should be there.
    virtual void DoWaitCursor(int nCode);
    /// Disables or enables all of the program while a system-modal thing is up: here, the main window.
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
    /// Shows the help file. Not in the message map: programs add it for ID_HELP.
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

protected:
    friend MFC_API BOOL AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);

    void SetCurrentHandles();

    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;

    DECLARE_MESSAGE_MAP()
};

/// The application object, or NULL.
MFC_API CWinApp* AfxGetApp();
MFC_API LPCTSTR AfxGetAppName();

/// Sets the library up for a program. The start-up code calls it; console programs call it themselves, with
/// `::GetModuleHandle(NULL), NULL, ::GetCommandLine(), 0`.
MFC_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Runs the application object from AfxWinInit() to AfxWinTerm(); returns the exit status.
MFC_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Undoes AfxWinInit() for the calling thread.
MFC_API void AfxWinTerm();

// SPDX-License-Identifier: MIT
// CWinApp, and the start and end of a program. The profile data are in Profile.cpp, recent files in RecentFiles.cpp.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afx/RecentFiles.h"
#include "afxmsg_.h"
#include "afxres.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
    ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

namespace {

/// Replaces a name of the application. Names are allocated with malloc().
void SetName(LPCTSTR& name, const AfxText& text) {
    std::free(const_cast<LPTSTR>(name));
    name = _tcsdup(text.c_str());
}

struct LocalFreer {
    void operator()(LPWSTR* block) const { ::LocalFree(block); }
};

/// The owner of a message box. MessageBox() disables the owner only, so the object disables the topmost
/// window above the owner and enables that window again when the box is closed.
struct BoxOwner {
    HWND owner = nullptr;
    HWND disabled = nullptr;

    BoxOwner() {
        HWND main = SafeWindow(AfxGetMainWnd());
        if (main == nullptr)
            return;
        // The popup in front of the main window, for example a modal dialog, owns the box.
        owner = ::GetLastActivePopup(main);
        HWND top = owner;
        for (HWND above = ::GetParent(top); above != nullptr; above = ::GetParent(above))
            top = above;
        if (top != owner && ::IsWindowEnabled(top)) {
            disabled = top;
            ::EnableWindow(disabled, FALSE);
        }
    }
    ~BoxOwner() {
        if (disabled != nullptr)
            ::EnableWindow(disabled, TRUE);
    }
    BoxOwner(const BoxOwner&) = delete;
    BoxOwner& operator=(const BoxOwner&) = delete;
};

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName) {
    if (lpszAppName != nullptr)
        SetName(m_pszAppName, lpszAppName);
    m_bAutoDelete = FALSE;
    AfxStateOfModule(nullptr)->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    AFX_MODULE_STATE* const state = AfxStateOfModule(nullptr);
    if (state->m_pCurrentWinApp == this)
        state->m_pCurrentWinApp = nullptr;
    if (state->m_lpszCurrentAppName == m_pszAppName)
        state->m_lpszCurrentAppName = nullptr;
    delete m_pRecentFileList;
    for (const LPCTSTR name :
         {m_pszAppName, m_pszExeName, m_pszHelpFilePath, m_pszProfileName, m_pszRegistryKey})
        std::free(const_cast<LPTSTR>(name));
}

void CWinApp::SetCurrentHandles() {
    TCHAR path[MAX_PATH] = _T("");
    ::GetModuleFileName(m_hInstance, path, _countof(path));
    const AfxText program = path;
    const std::size_t folderEnd = program.find_last_of(_T("\\/"));
    const std::size_t nameStart = folderEnd == AfxText::npos ? 0 : folderEnd + 1;
    const std::size_t dot = program.find_last_of('.');
    const std::size_t nameEnd = dot == AfxText::npos || dot < nameStart ? program.size() : dot;
    const AfxText name = program.substr(nameStart, nameEnd - nameStart);

    if (m_pszExeName == nullptr)
        SetName(m_pszExeName, name);
    if (m_pszAppName == nullptr) {
        TCHAR title[256] = _T("");
        SetName(m_pszAppName, AfxLoadString(AFX_IDS_APP_TITLE, title, _countof(title)) > 0 ? title : name);
    }
    AfxStateOfModule(nullptr)->m_lpszCurrentAppName = m_pszAppName;
    if (m_pszHelpFilePath == nullptr)
        SetName(m_pszHelpFilePath, program.substr(0, nameEnd) + _T(".HLP"));
    if (m_pszProfileName == nullptr)
        SetName(m_pszProfileName, name + _T(".INI"));
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::Run() {
    // A program without a main window ends at once.
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance() {
    SaveStdProfileSettings();
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG lCount) {
    return CWinThread::OnIdle(lCount);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
    return CWinThread::ProcessWndProcException(e, pMsg);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    const BoxOwner owner;
    if ((nType & MB_ICONMASK) == 0) {
        const UINT buttons = nType & MB_TYPEMASK;
        const bool asks = buttons == MB_YESNO || buttons == MB_YESNOCANCEL;
        nType |= asks ? MB_ICONQUESTION : MB_ICONEXCLAMATION;
    }
    const LPCTSTR caption = m_pszAppName != nullptr ? m_pszAppName : TEXT("");
    return ::MessageBox(owner.owner, lpszPrompt, caption, nType);
}

void CWinApp::DoWaitCursor(int nCode) {
    m_nWaitCursorCount += nCode;
    if (m_nWaitCursorCount > 0) {
        const HCURSOR previous = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (nCode > 0 && m_nWaitCursorCount == 1)
            m_hcurWaitCursorRestore = previous;
    } else {
        m_nWaitCursorCount = 0;
        if (nCode != 0)
            ::SetCursor(m_hcurWaitCursorRestore);
    }
}

void CWinApp::EnableModeless(BOOL bEnable) {
    if (const HWND main = SafeWindow(m_pMainWnd))
        ::EnableWindow(main, bEnable);
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    const CWaitCursor wait;
    if (!::WinHelp(SafeWindow(m_pMainWnd), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::OnHelp() {
    WinHelp(0, HELP_CONTENTS);
}

void CWinApp::OnHelpIndex() {
    WinHelp(0, HELP_INDEX);
}

void CWinApp::OnHelpFinder() {
    WinHelp(0, HELP_FINDER);
}

void CWinApp::OnHelpUsing() {
    WinHelp(0, HELP_HELPONHELP);
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    int count = 0;
    const std::unique_ptr<LPWSTR, LocalFreer> words(::CommandLineToArgvW(::GetCommandLineW(), &count));
    for (int i = 1; i < count; ++i) {
        const CString text = words.get()[i];
        LPCTSTR parameter = text;
        const bool isFlag = parameter[0] == '-' || parameter[0] == '/';
        rCmdInfo.ParseParam(isFlag ? parameter + 1 : parameter, isFlag, i + 1 == count);
    }
}

// ---- Start and end of a program ----

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    AFX_MODULE_STATE* const state = AfxStateOfModule(nullptr);
    state->m_hCurrentInstanceHandle = hInstance;
    state->m_hCurrentResourceHandle = hInstance;
    if (CWinApp* const app = AfxGetApp()) {
        app->m_hInstance = hInstance;
        app->m_hPrevInstance = hPrevInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
        app->m_nThreadID = ::GetCurrentThreadId();
        app->SetCurrentHandles();
    }
    HookMessageFilter();
    return TRUE;
}

void AfxWinTerm() {
    ThreadState& state = CurrentThreadState();
    UnhookMessageFilter();
    if (state.creationHook != nullptr)
        ::UnhookWindowsHookEx(state.creationHook);
    state.creationHook = nullptr;
    state.creationHookDepth = 0;
    DeleteTemporariesWhenIdle();
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    CWinApp* const app = AfxGetApp();
    int status = -1;
    if (app != nullptr && AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) &&
        app->InitApplication()) {
        if (app->InitInstance()) {
            status = app->Run();
        } else {
            if (app->m_pMainWnd != nullptr) {
                TRACE(_T("InitInstance failed and left a main window.\n"));
                app->m_pMainWnd->DestroyWindow();
            }
            status = app->ExitInstance();
        }
    }
    AfxWinTerm();
    return status;
}

// SPDX-License-Identifier: MIT
// Start and end of the program.

#include "monitor/MonitorApp.h"

#include <shellapi.h>

#include <string>
#include <utility>
#include <vector>

#include "monitor/Console.h"
#include "monitor/MainFrame.h"
#include "monitor/TextConversion.h"
#include "monitor/recording/CheckReport.h"
#include "monitor/recording/Options.h"
#include "monitor/recording/RecordingLoader.h"
#include "monitor/resource.h"

namespace kavlix::monitor {
namespace {

constexpr int kNothing = static_cast<int>(recording::Status::Nothing);

/// The arguments of the command line in UTF-8, without the program's name.
std::vector<std::string> Arguments() {
    std::vector<std::string> arguments;
    int count = 0;
    LPWSTR* const all = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; all != nullptr && i < count; ++i)
        arguments.push_back(ToUtf8(all[i]));
    ::LocalFree(all);
    return arguments;
}

/// Writes an error to standard error or, when that fails, shows it in a message box.
void Tell(const std::string& text) {
    if (!WriteError(text + "\n"))
        AfxMessageBox(ToText(text), MB_OK | MB_ICONEXCLAMATION);
}

} // namespace

BEGIN_MESSAGE_MAP(CMonitorApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, &CMonitorApp::OnAppAbout)
END_MESSAGE_MAP()

CMonitorApp::CMonitorApp() : CWinApp(_T("Kavlix Monitor")) {
}

BOOL CMonitorApp::InitInstance() {
    CWinApp::InitInstance();
    recording::Options options = recording::ParseOptions(Arguments());
    if (options.help) {
        WriteOutput(recording::HelpText());
        return FALSE;
    }
    if (!options.error.empty()) {
        Tell(options.error);
        m_exitStatus = kNothing;
        return FALSE;
    }
    if (options.check) {
        const recording::Recording read = recording::RecordingLoader::Load(options.files);
        WriteOutput(recording::CheckReport(read));
        m_exitStatus = static_cast<int>(read.GetStatus());
        return FALSE;
    }

    // No picture can be taken of a minimized window: with --shot, ignore how the parent process wants the
    // window shown.
    const int show = options.shot.empty() ? m_nCmdShow : SW_SHOWNORMAL;
    m_frame = new CMainFrame(std::move(options), m_exitStatus);
    if (!m_frame->CreateMainWindow()) {
        // The frame has deleted itself.
        m_frame = nullptr;
        Tell("The window cannot be made: is there a display?");
        m_exitStatus = kNothing;
        return FALSE;
    }
    m_pMainWnd = m_frame;
    m_frame->ShowWindow(show);
    m_frame->UpdateWindow();
    m_frame->Start();
    return TRUE;
}

int CMonitorApp::ExitInstance() {
    CWinApp::ExitInstance();
    return m_exitStatus;
}

BOOL CMonitorApp::OnIdle(LONG lCount) {
    const BOOL more = CWinApp::OnIdle(lCount);
    if (!m_pMainWnd)
        return more;
    return m_frame->WorkInIdle() || more;
}

void CMonitorApp::OnAppAbout() {
    CDialog(IDD_ABOUT, m_pMainWnd).DoModal();
}

CMonitorApp theApp;

} // namespace kavlix::monitor

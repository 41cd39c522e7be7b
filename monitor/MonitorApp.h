// SPDX-License-Identifier: MIT
// The application object of KavlixMonitor.exe.
#pragma once

#include <afxwin.h>

namespace kavlix::monitor {

class CMainFrame;

/// The application object. With `--check` or `--help`, or after a wrong command line, it writes a text and
/// ends; otherwise it opens the main window.
class CMonitorApp : public CWinApp {
public:
    CMonitorApp();

    BOOL InitInstance() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;

protected:
    afx_msg void OnAppAbout();
    DECLARE_MESSAGE_MAP()

private:
    /// The main window. The object deletes itself when its window is destroyed, which ends the message loop.
    CMainFrame* m_frame = nullptr;
    int m_exitStatus = 0;
};

} // namespace kavlix::monitor

#pragma once

#include <afxwin.h>

namespace kavlix::monitor {

class CMainFrame;

/// The program. With `--check` or `--help` it only prints; otherwise it opens its window.
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
    CMainFrame* m_frame = nullptr; ///< deletes itself with its window; the message loop ends with it
    int m_exitStatus = 0;
};

} // namespace kavlix::monitor

#pragma once

#include "monitor/MainFrame.h"
#include "monitor/resource.h"
#include "tests/monitor_app/MonitorProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace kavlix::test {

/// The main window on one of its pages.
class FrameWithPage : public testing::Test {
protected:
    ~FrameWithPage() override { Close(); }

    /// Opens the window on the page with these files, or with live readings.
    void Open(std::string_view page, std::vector<std::string> files) {
        Close();
        recording::Options options;
        options.files = std::move(files);
        const auto found = std::find(recording::kPageNames.begin(), recording::kPageNames.end(), page);
        options.page = static_cast<std::size_t>(found - recording::kPageNames.begin());
        m_frame = new monitor::CMainFrame(std::move(options), m_exitStatus);
        ASSERT_TRUE(m_frame->CreateMainWindow());
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->Start();
        WorkOff();
    }
    void Close() {
        if (m_frame)
            m_frame->DestroyWindow();
        m_frame = nullptr;
    }
    void WorkOff() {
        while (m_frame->WorkInIdle())
            ;
    }
    void Command(UINT id) { m_frame->SendMessage(WM_COMMAND, id); }
    /// What the status bar says first.
    std::string Text() {
        auto* const status = static_cast<CStatusBarCtrl*>(m_frame->GetDlgItem(IDC_STATUS));
        return static_cast<LPCTSTR>(status->GetText(0));
    }
    template <class Control> Control& ControlOf(UINT id) {
        return dynamic_cast<Control&>(*m_frame->Page().GetDlgItem(static_cast<int>(id)));
    }

    TempFolder m_folder;
    int m_exitStatus = 0;
    monitor::CMainFrame* m_frame = nullptr; ///< deletes itself
};

} // namespace kavlix::test

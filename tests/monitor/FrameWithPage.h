// SPDX-License-Identifier: MIT
// A fixture with the main window on one of its pages.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "monitor/MainFrame.h"
#include "monitor/resource.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Utf8.h"

namespace kavlix::test {

/// The main window on one of its pages.
class FrameWithPage : public testing::Test {
protected:
    struct Frame : monitor::CMainFrame {
        using CMainFrame::CMainFrame, CMainFrame::PreTranslateMessage;
    };

    ~FrameWithPage() override { Close(); }

    /// Opens the window with these files, or with live readings, on the named page or by default on its
    /// own choice.
    void Open(std::string_view page, std::vector<std::string> files) {
        Close();
        recording::Options options;
        options.files = std::move(files);
        const auto found = std::find(recording::kPageNames.begin(), recording::kPageNames.end(), page);
        if (!page.empty())
            options.page = static_cast<std::size_t>(found - recording::kPageNames.begin());
        m_frame = new Frame(std::move(options), m_exitStatus);
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
    /// Takes the next live reading.
    void Tick() {
        constexpr WPARAM liveTimer = 1;
        m_frame->SendMessage(WM_TIMER, liveTimer);
    }
    /// The text of a pane of the status bar.
    std::string Pane(int pane) {
        auto* const status = static_cast<CStatusBarCtrl*>(m_frame->GetDlgItem(IDC_STATUS));
        return testkit::Utf8(status->GetText(pane));
    }
    std::string Text() { return Pane(0); }
    static std::string TitleOf(const CWnd& window) {
        CString text;
        window.GetWindowText(text);
        return testkit::Utf8(text);
    }
    static void ClearClipboard() {
        ASSERT_TRUE(::OpenClipboard(nullptr));
        ::EmptyClipboard();
        ::CloseClipboard();
    }
    template <class Control> Control& ControlOf(UINT id) {
        return dynamic_cast<Control&>(*m_frame->Page().GetDlgItem(static_cast<int>(id)));
    }

    testkit::TempFolder m_folder;
    int m_exitStatus = 0;
    Frame* m_frame = nullptr; ///< deletes itself with its window
};

} // namespace kavlix::test

// SPDX-License-Identifier: MIT
// The user of the client programs, and the running program.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

/// The user of modal dialogs. A timer runs in every message loop and performs the next step in the top popup.
class User {
public:
    using Step = std::function<void(HWND popup)>;

    explicit User(std::vector<Step> steps) : m_timer(::SetTimer(nullptr, 0, 10, Tick)) {
        s_steps = std::move(steps);
    }
    ~User() { ::KillTimer(nullptr, m_timer); }

    /// Runs the program's own loop until the steps are done and no message waits, and then its idle work. False at
    /// the end of the program.
    static bool Pump() {
        CWinApp& app = *AfxGetApp();
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) || !s_steps.empty())
            if (!app.PumpMessage())
                return false;
        for (LONG count = 0; app.OnIdle(count); ++count) {
        }
        return true;
    }

    /// Chooses a command of the main window, and waits for the steps that it leads to.
    static void Choose(UINT command) {
        AfxGetMainWnd()->PostMessage(WM_COMMAND, command);
        Pump();
    }

    /// A popup of the menu bar as the user sees it when it opens.
    static CMenu& Open(int popup) {
        CMenu* const menu = AfxGetMainWnd()->GetMenu()->GetSubMenu(popup);
        AfxGetMainWnd()->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu));
        return *menu;
    }

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        HWND const frame = *AfxGetMainWnd();
        HWND const popup = ::GetLastActivePopup(frame);
        if (s_steps.empty() || popup == frame || !::IsWindowVisible(popup))
            return;
        const Step step = s_steps.front();
        s_steps.erase(s_steps.begin());
        step(popup);
    }

    static inline std::vector<Step> s_steps;
    UINT_PTR m_timer;
};

/// The running program with its main window.
class RunningClient : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(AfxGetApp()->InitInstance());
        User::Pump();
    }
    void TearDown() override {
        if (AfxGetApp()->m_pMainWnd != nullptr)
            AfxGetMainWnd()->PostMessage(WM_COMMAND, ID_APP_EXIT);
        EXPECT_EQ(0, AfxGetApp()->Run()) << "closing the main window ends the program";
        EXPECT_EQ(nullptr, AfxGetApp()->m_pMainWnd);
    }
};

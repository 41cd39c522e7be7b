// The thermostat program as its user meets it: menu, accelerators, dialog, start and end.
#include "stdafx.h"

#include "Thermostat.h"

#include "tests/support/GdiCounter.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

namespace {

CMainFrame& Frame() {
    return *static_cast<CMainFrame*>(AfxGetMainWnd());
}

/// The user of modal dialogs. A timer runs in every message loop and performs the next step in the top popup.
class User {
public:
    using Step = std::function<void(HWND popup, CSettingsDlg* dialog)>; ///< no dialog: a message box

    explicit User(std::vector<Step> steps) : m_timer(::SetTimer(nullptr, 0, 10, Tick)) {
        s_steps = std::move(steps);
    }
    ~User() { ::KillTimer(nullptr, m_timer); }

    /// Runs the program's own loop until the steps are done and no message waits. False at the end.
    static bool Pump() {
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) || !s_steps.empty())
            if (!theApp.PumpMessage())
                return false;
        for (LONG count = 0; theApp.OnIdle(count); ++count) {
        }
        return true;
    }

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        HWND const popup = ::GetLastActivePopup(Frame());
        if (s_steps.empty() || popup == Frame().m_hWnd || !::IsWindowVisible(popup))
            return;
        const Step step = s_steps.front();
        s_steps.erase(s_steps.begin());
        step(popup, dynamic_cast<CSettingsDlg*>(CWnd::FromHandlePermanent(popup)));
    }

    static inline std::vector<Step> s_steps;
    UINT_PTR m_timer;
};

void Choose(UINT command) {
    Frame().PostMessage(WM_COMMAND, command);
    User::Pump();
}

void Type(BYTE key, bool withControl) {
    BYTE keys[256] = {};
    keys[VK_CONTROL] = withControl ? 0x80 : 0;
    ::SetKeyboardState(keys);
    Frame().PostMessage(WM_KEYDOWN, key, 1);
    User::Pump();
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
}

/// The state of a menu item as the user sees it when the menu opens.
UINT ItemState(UINT command) {
    CMenu* const popup = Frame().GetMenu()->GetSubMenu(0);
    Frame().SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu));
    return popup->GetMenuState(command, MF_BYCOMMAND);
}

/// The running program with its main window.
class Client : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(theApp.InitInstance());
        User::Pump();
    }
    void TearDown() override {
        if (theApp.m_pMainWnd != nullptr)
            Frame().PostMessage(WM_COMMAND, ID_APP_EXIT);
        EXPECT_EQ(0, theApp.Run()) << "closing the main window ends the program";
        EXPECT_EQ(nullptr, theApp.m_pMainWnd);
    }
};

TEST_F(Client, CommandsComeFromTheMenuAndFromKeys) {
    CString title;
    CRect rect;
    Frame().GetWindowText(title);
    Frame().GetWindowRect(rect);
    EXPECT_STREQ("Thermostat", title);
    EXPECT_EQ(CSize(420, 300), rect.Size()) << "as PreCreateWindow asked";
    EXPECT_EQ(0u, ItemState(ID_HEATING_ON) & MF_CHECKED);
    EXPECT_NE(0u, ItemState(ID_HEATING_WARMER) & MF_GRAYED) << "off";
    Type(VK_F5, false);
    EXPECT_NE(0u, ItemState(ID_HEATING_ON) & MF_CHECKED);
    EXPECT_EQ(0u, ItemState(ID_HEATING_WARMER) & MF_GRAYED);
    Type('W', false);
    EXPECT_EQ(18, Frame().m_nTarget) << "the key alone is no accelerator";
    Type('W', true);
    EXPECT_EQ(19, Frame().m_nTarget);
    Choose(ID_HEATING_ON);
    Type('W', true);
    EXPECT_EQ(19, Frame().m_nTarget) << "greyed commands have no accelerator either";
}

TEST_F(Client, DialogExchangesItsDataAndKeepsWrongInput) {
    User user({[](HWND, CSettingsDlg* dialog) {
                   ASSERT_NE(nullptr, dialog);
                   EXPECT_FALSE(Frame().IsWindowEnabled());
                   EXPECT_EQ(18u, dialog->GetDlgItemInt(IDC_TARGET));
                   dialog->SetDlgItemText(IDC_NAME, "Cabin");
                   dialog->SetDlgItemText(IDC_TARGET, "31");
                   dialog->PostMessage(WM_COMMAND, IDOK);
               },
               [](HWND box, CSettingsDlg* dialog) {
                   EXPECT_EQ(nullptr, dialog);
                   EXPECT_NE(nullptr,
                             ::FindWindowEx(box, nullptr, nullptr, "Enter an integer between 5 and 30."));
                   ::PostMessage(box, WM_COMMAND, IDOK, 0);
               },
               [](HWND, CSettingsDlg* dialog) {
                   EXPECT_EQ(::GetDlgItem(*dialog, IDC_TARGET), ::GetFocus());
                   dialog->SendMessage(WM_COMMAND, IDC_DEFAULTS);
                   EXPECT_EQ(20u, dialog->GetDlgItemInt(IDC_TARGET));
                   EXPECT_TRUE(dialog->IsDlgButtonChecked(IDC_ALARM));
                   dialog->PostMessage(WM_COMMAND, IDOK);
               }});
    Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(20, Frame().m_nTarget);
    EXPECT_STREQ("Cabin", Frame().m_strName);
    EXPECT_TRUE(Frame().IsWindowEnabled());
}

TEST_F(Client, SessionsFreeEverything) {
    const auto session = [this] {
        User user({[](HWND popup, CSettingsDlg*) { ::PostMessage(popup, WM_COMMAND, IDCANCEL, 0); }});
        Choose(ID_VIEW_SETTINGS);
        EXPECT_EQ(18, Frame().m_nTarget) << "cancelled";
        ItemState(ID_HEATING_ON);
        TearDown();
        AfxDeleteTempGdiMaps();
        CWnd::DeleteTempMap();
        const testkit::ObjectCounts left = testkit::CountObjects();
        SetUp();
        return left;
    };
    const testkit::ObjectCounts first = session();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(first, session());
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW)) {
        std::fputs("AfxWinInit failed: no test was run\n", stderr);
        return 3;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

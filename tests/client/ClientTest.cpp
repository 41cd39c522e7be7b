#include "stdafx.h"

#include "GaugeCtrl.h"
#include "MainFrm.h"
#include "SettingsDlg.h"
#include "Thermostat.h"

#include "tests/client/ModalDriver.h"
#include "tests/support/GdiCounter.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// Dispatches what is queued, as the program's own loop does, with its idle work. FALSE once the program
/// ends.
bool PumpAll() {
    MSG message;
    for (;;) {
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
            if (!theApp.PumpMessage())
                return false;
        LONG count = 0;
        while (theApp.OnIdle(count++)) {
        }
        if (!::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
            return true;
    }
}

CMainFrame& Frame() {
    return *static_cast<CMainFrame*>(AfxGetMainWnd());
}

void Choose(UINT command) {
    Frame().PostMessage(WM_COMMAND, command);
    PumpAll();
}

void Type(HWND window, BYTE key, bool withControl) {
    BYTE before[256];
    ::GetKeyboardState(before);
    BYTE keys[256] = {};
    keys[VK_CONTROL] = withControl ? 0x80 : 0;
    ::SetKeyboardState(keys);
    ::PostMessage(window, WM_KEYDOWN, key, 1);
    PumpAll();
    ::SetKeyboardState(before);
}

/// The state of a menu item as the user sees it when the menu opens.
UINT ItemState(int menu, UINT command) {
    CMenu* const popup = Frame().GetMenu()->GetSubMenu(menu);
    Frame().SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(menu, FALSE));
    return popup->GetMenuState(command, MF_BYCOMMAND);
}

CString ItemText(CWnd& dialog, int item) {
    CString text;
    dialog.GetDlgItemText(item, text);
    return text;
}

constexpr int kHeatingMenu = 1;

/// The program, running with its main window open.
class Client : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(theApp.InitInstance());
        PumpAll();
    }
    void TearDown() override {
        if (theApp.m_pMainWnd != nullptr) {
            Frame().PostMessage(WM_CLOSE);
            EXPECT_FALSE(PumpAll()) << "closing the main window ends the program";
        }
        EXPECT_EQ(0, CMainFrame::m_nAlive);
        EXPECT_EQ(0, CGaugeCtrl::m_nAlive);
    }
};

TEST_F(Client, ShowsItsFrameWithTitleAndMenu) {
    EXPECT_TRUE(Frame().IsWindowVisible());
    CString title;
    Frame().GetWindowText(title);
    EXPECT_STREQ("Thermostat", title);
    ASSERT_NE(nullptr, Frame().GetMenu());
    EXPECT_EQ(3u, Frame().GetMenu()->GetMenuItemCount());
    CRect rect;
    Frame().GetWindowRect(rect);
    EXPECT_EQ(CSize(420, 300), rect.Size()) << "as PreCreateWindow asked";
    EXPECT_GT(Frame().m_nPaints, 0);
}

TEST_F(Client, CommandsReachTheFrameAndUpdateHandlersTheMenu) {
    EXPECT_EQ(0u, ItemState(kHeatingMenu, ID_HEATING_ON) & MF_CHECKED);
    EXPECT_NE(0u, ItemState(kHeatingMenu, ID_HEATING_WARMER) & MF_GRAYED) << "off";
    Choose(ID_HEATING_ON);
    EXPECT_TRUE(Frame().m_bOn);
    EXPECT_NE(0u, ItemState(kHeatingMenu, ID_HEATING_ON) & MF_CHECKED);
    EXPECT_EQ(0u, ItemState(kHeatingMenu, ID_HEATING_WARMER) & MF_GRAYED);

    EXPECT_NE(0u, ItemState(kHeatingMenu, ID_UNITS_CELSIUS) & MF_CHECKED);
    Choose(ID_UNITS_FAHRENHEIT);
    EXPECT_EQ(ID_UNITS_FAHRENHEIT, Frame().m_nUnits);
    EXPECT_EQ(0u, ItemState(kHeatingMenu, ID_UNITS_CELSIUS) & MF_CHECKED);
    MENUITEMINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    ASSERT_TRUE(Frame().GetMenu()->GetMenuItemInfo(ID_UNITS_FAHRENHEIT, &info));
    EXPECT_NE(0u, info.fType & MFT_RADIOCHECK);
    EXPECT_NE(0u, info.fState & MFS_CHECKED);

}

TEST_F(Client, AcceleratorsBecomeCommands) {
    Type(Frame(), VK_F5, false);
    EXPECT_TRUE(Frame().m_bOn);
    const int before = Frame().m_nTarget;
    Type(Frame(), 'W', false);
    EXPECT_EQ(before, Frame().m_nTarget) << "the key alone is no accelerator";
    Type(Frame(), 'W', true);
    EXPECT_EQ(before + 1, Frame().m_nTarget);
    Choose(ID_HEATING_ON);
    Type(Frame(), 'W', true);
    EXPECT_EQ(before + 1, Frame().m_nTarget) << "greyed commands have no accelerator either";
}

TEST_F(Client, SettingsAreExchangedThroughTheDialog) {
    ModalDriver user({[](HWND, CDialog* dialog) {
        auto* const settings = dynamic_cast<CSettingsDlg*>(dialog);
        ASSERT_NE(nullptr, settings);
        EXPECT_TRUE(settings->IsWindowVisible());
        EXPECT_FALSE(Frame().IsWindowEnabled());
        EXPECT_STREQ("Home", ItemText(*settings, IDC_NAME));
        EXPECT_EQ(18u, settings->GetDlgItemInt(IDC_TARGET));
        EXPECT_STREQ("1.25", ItemText(*settings, IDC_FACTOR));
        EXPECT_EQ(IDC_MODE_NIGHT, settings->GetCheckedRadioButton(IDC_MODE_DAY, IDC_MODE_AWAY));
        EXPECT_STREQ("Bath", ItemText(*settings, IDC_ROOM));

        settings->SetDlgItemText(IDC_NAME, "Cabin");
        settings->SetDlgItemText(IDC_TARGET, "25");
        EXPECT_EQ(50, settings->m_wndGauge.GetPos()) << "the dialog follows what is typed";
        settings->PostMessage(WM_COMMAND, IDOK);
    }});
    Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(0u, user.StepsLeft());
    EXPECT_EQ(25, Frame().m_nTarget);
    EXPECT_STREQ("Cabin", Frame().m_strName);
    EXPECT_TRUE(Frame().IsWindowEnabled());
}

TEST_F(Client, ControlOfItsOwnPaintsAndAnswers) {
    ModalDriver user(
        {[](HWND, CDialog* dialog) {
             auto* const settings = dynamic_cast<CSettingsDlg*>(dialog);
             ASSERT_NE(nullptr, settings);
             CGaugeCtrl& gauge = settings->m_wndGauge;
             ASSERT_EQ(::GetDlgItem(*settings, IDC_GAUGE), gauge.m_hWnd);
             EXPECT_EQ(&gauge, settings->GetDlgItem(IDC_GAUGE));
             EXPECT_GT(gauge.m_nPaints, 0);

             CRect rect;
             gauge.GetClientRect(rect);
             gauge.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.Width() / 2, 3));
             EXPECT_NEAR(50, gauge.GetPos(), 1);
             EXPECT_EQ(gauge.m_hWnd, ::GetFocus());
             EXPECT_EQ(static_cast<UINT>(gauge.GetPos() / 2), settings->GetDlgItemInt(IDC_TARGET))
                 << "its notification came to the dialog's handler";
             gauge.UpdateWindow();
             CClientDC dc(&gauge);
             EXPECT_EQ(RGB(192, 0, 0), dc.GetPixel(3, 3));
             EXPECT_EQ(RGB(255, 255, 255), dc.GetPixel(rect.Width() - 4, 3));
             EXPECT_EQ(RGB(0, 0, 128), dc.GetPixel(3, rect.bottom - 1));

             ::PostMessage(gauge, WM_KEYDOWN, VK_RIGHT, 1); // an arrow key it asked for
         },
         [](HWND, CDialog* dialog) {
             auto* const settings = dynamic_cast<CSettingsDlg*>(dialog);
             ASSERT_NE(nullptr, settings);
             EXPECT_NEAR(60, settings->m_wndGauge.GetPos(), 1);
             EXPECT_EQ(settings->m_wndGauge.m_hWnd, ::GetFocus());
             ::PostMessage(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
         }});
    Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(0u, user.StepsLeft());
    EXPECT_EQ(18, Frame().m_nTarget) << "cancelled";
}

TEST_F(Client, WrongInputKeepsTheDialogOpen) {
    CString prompt;
    ModalDriver user({[](HWND, CDialog* dialog) {
                          dialog->SetDlgItemText(IDC_TARGET, "31");
                          dialog->PostMessage(WM_COMMAND, IDOK);
                      },
                      [&](HWND window, CDialog* dialog) {
                          EXPECT_EQ(nullptr, dialog) << "the message box";
                          prompt = ItemText(*CWnd::FromHandle(window), 0xFFFF);
                          ::PostMessage(window, WM_COMMAND, IDOK, 0);
                      },
                      [](HWND, CDialog* dialog) {
                          ASSERT_NE(nullptr, dialog);
                          EXPECT_EQ(::GetDlgItem(*dialog, IDC_TARGET), ::GetFocus());
                          dialog->SendMessage(WM_COMMAND, IDC_DEFAULTS);
                          EXPECT_EQ(20u, dialog->GetDlgItemInt(IDC_TARGET));
                          dialog->PostMessage(WM_COMMAND, IDOK);
                      }});
    Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(0u, user.StepsLeft());
    EXPECT_STREQ("Enter an integer between 5 and 30.", prompt);
    EXPECT_EQ(20, Frame().m_nTarget);
}

TEST_F(Client, ExitCommandEndsTheMessageLoop) {
    const int before = theApp.m_nExits;
    Frame().PostMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(0, theApp.Run());
    EXPECT_EQ(before + 1, theApp.m_nExits);
    EXPECT_EQ(nullptr, theApp.m_pMainWnd);
}

TEST(ClientLifetime, EverythingIsFreed) {
    const auto session = [] {
        ASSERT_TRUE(theApp.InitInstance());
        PumpAll();
        ModalDriver user({[](HWND, CDialog* dialog) { dialog->PostMessage(WM_COMMAND, IDOK); }});
        Choose(ID_VIEW_SETTINGS);
        Choose(ID_HEATING_ON);
        ItemState(kHeatingMenu, ID_HEATING_ON);
        Frame().PostMessage(WM_CLOSE);
        EXPECT_FALSE(PumpAll());
        EXPECT_EQ(0, CMainFrame::m_nAlive);
        AfxDeleteTempGdiMaps();
        CWnd::DeleteTempMap();
    };
    session();
    const testkit::ObjectCounts before = testkit::CountObjects();
    for (int i = 0; i < 3; ++i)
        session();
    EXPECT_EQ(before, testkit::CountObjects());
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

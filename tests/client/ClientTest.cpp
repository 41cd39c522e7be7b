// SPDX-License-Identifier: MIT
// The thermostat program as its user meets it: menu, accelerators, dialog, start and end.
#include "stdafx.h"

#include "Thermostat.h"
#include "User.h"

#include "tests/support/GdiCounter.h"

#include <gtest/gtest.h>

namespace {

CMainFrame& Frame() {
    return *static_cast<CMainFrame*>(AfxGetMainWnd());
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
    return User::Open(0).GetMenuState(command, MF_BYCOMMAND);
}

/// The settings dialog; NULL for a message box.
CSettingsDlg* SettingsOf(HWND popup) {
    return dynamic_cast<CSettingsDlg*>(CWnd::FromHandlePermanent(popup));
}

using Client = RunningClient;

TEST_F(Client, CommandsComeFromTheMenuAndFromKeys) {
    CString title;
    CRect rect;
    Frame().GetWindowText(title);
    Frame().GetWindowRect(rect);
    EXPECT_STREQ(_T("Thermostat"), title);
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
    User::Choose(ID_HEATING_ON);
    Type('W', true);
    EXPECT_EQ(19, Frame().m_nTarget) << "greyed commands have no accelerator either";
}

TEST_F(Client, DialogExchangesItsDataAndKeepsWrongInput) {
    User user({[](HWND popup) {
                   CSettingsDlg* const dialog = SettingsOf(popup);
                   ASSERT_NE(nullptr, dialog);
                   EXPECT_FALSE(Frame().IsWindowEnabled());
                   EXPECT_EQ(18u, dialog->GetDlgItemInt(IDC_TARGET));
                   dialog->SetDlgItemText(IDC_NAME, _T("Cabin"));
                   dialog->SetDlgItemText(IDC_TARGET, _T("31"));
                   dialog->PostMessage(WM_COMMAND, IDOK);
               },
               [](HWND box) {
                   EXPECT_EQ(nullptr, SettingsOf(box));
                   EXPECT_NE(nullptr,
                             ::FindWindowEx(box, nullptr, nullptr, _T("Enter an integer between 5 and 30.")));
                   ::PostMessage(box, WM_COMMAND, IDOK, 0);
               },
               [](HWND popup) {
                   CSettingsDlg* const dialog = SettingsOf(popup);
                   EXPECT_EQ(::GetDlgItem(*dialog, IDC_TARGET), ::GetFocus());
                   dialog->SendMessage(WM_COMMAND, IDC_DEFAULTS);
                   EXPECT_EQ(20u, dialog->GetDlgItemInt(IDC_TARGET));
                   EXPECT_TRUE(dialog->IsDlgButtonChecked(IDC_ALARM));
                   dialog->PostMessage(WM_COMMAND, IDOK);
               }});
    User::Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(20, Frame().m_nTarget);
    EXPECT_STREQ(_T("Cabin"), Frame().m_strName);
    EXPECT_TRUE(Frame().IsWindowEnabled());
}

TEST_F(Client, SessionsFreeEverything) {
    const auto session = [this] {
        User user({[](HWND popup) { ::PostMessage(popup, WM_COMMAND, IDCANCEL, 0); }});
        User::Choose(ID_VIEW_SETTINGS);
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

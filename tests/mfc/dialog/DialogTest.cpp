// SPDX-License-Identifier: MIT
// CDialog: modal and modeless life, owners, keys, places, lists from resources, and a template in memory.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

#include "tests/mfc/dialog/DialogIds.h"
#include "tests/support/RecordingParent.h"

namespace {

constexpr UINT kRoutedCommand = 0x8123; // in the range that dialogs pass on
constexpr UINT kControlCommand = 1099;  // not in it

/// A dialog that runs functions of the test, and counts its messages.
class CTestDialog : public CDialog {
public:
    explicit CTestDialog(UINT id, CWnd* parent = nullptr) : CDialog(id, parent) {}
    CTestDialog() = default;

    std::function<void(CTestDialog&)> onInit;
    std::function<void(CTestDialog&)> onShown; ///< when the dialog is there and its messages are delivered
    CString text;
    int cancels = 0;
    int ncDestroys = 0;
    bool keepOnCancel = false;

    BOOL OnInitDialog() override {
        const BOOL setFocus = CDialog::OnInitDialog();
        if (onInit)
            onInit(*this);
        if (onShown)
            PostMessage(WM_COMMAND, kControlCommand);
        return setFocus;
    }
    void Press(int id) { PostMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_TEXT, text);
    }
    void OnCancel() override {
        ++cancels;
        if (!keepOnCancel)
            CDialog::OnCancel();
    }
    void PostNcDestroy() override { ++ncDestroys; }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (LOWORD(wParam) == kControlCommand && onShown) {
            onShown(*this);
            return TRUE;
        }
        return CDialog::OnCommand(wParam, lParam);
    }
};

/// An owner of dialogs, which counts its commands.
class COwner : public CWnd {
public:
    COwner() {
        CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 300, 200, 400, 300,
                 nullptr, nullptr);
    }
    ~COwner() override { DestroyWindow(); }
    int commands = 0;

protected:
    afx_msg void OnRouted() { ++commands; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(COwner, CWnd)
    ON_COMMAND(kRoutedCommand, &COwner::OnRouted)
    ON_COMMAND(kControlCommand, &COwner::OnRouted)
END_MESSAGE_MAP()

TEST(Dialog, OkTakesTheDataAndCancelLeavesIt) {
    CTestDialog ok(IDD_DATA);
    ok.text = "before";
    ok.onInit = [](CTestDialog& dialog) {
        CString shown;
        dialog.GetDlgItemText(IDC_TEXT, shown);
        EXPECT_STREQ(_T("before"), shown) << "members are shown before the dialog is";
        EXPECT_FALSE(dialog.IsWindowVisible());
        dialog.SetDlgItemText(IDC_TEXT, _T("after"));
        dialog.Press(IDOK);
    };
    EXPECT_EQ(IDOK, ok.DoModal());
    EXPECT_STREQ(_T("after"), ok.text);

    CTestDialog cancel(IDD_DATA);
    cancel.text = "before";
    cancel.onInit = [](CTestDialog& dialog) {
        dialog.SetDlgItemText(IDC_TEXT, _T("after"));
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, cancel.DoModal());
    EXPECT_STREQ(_T("before"), cancel.text);
}

TEST(Dialog, EndingItInOnInitDialogShowsNothing) {
    CTestDialog dialog(IDD_DATA);
    dialog.onInit = [](CTestDialog& self) { self.EndDialog(4711); };
    EXPECT_EQ(4711, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_EQ(1, dialog.ncDestroys);

    COwner owner;
    CTestDialog aborted(IDD_DATA, &owner);
    aborted.onInit = [](CTestDialog&) { AfxThrowUserException(); }; // CUserException shows no message
    EXPECT_EQ(IDABORT, aborted.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(-1, CTestDialog(9999).DoModal()) << "no such template";
}

TEST(Dialog, OwnersAreBlockedAndGivenBack) {
    COwner owner;
    CTestDialog palette;
    ASSERT_TRUE(palette.Create(IDD_SMALL, &owner));
    palette.ShowWindow(SW_SHOW);
    CTestDialog dialog(IDD_DATA, &palette);
    dialog.onShown = [&](CTestDialog& self) {
        EXPECT_FALSE(palette.IsWindowEnabled());
        EXPECT_FALSE(owner.IsWindowEnabled()) << "the window behind the owner";
        EXPECT_EQ(palette.m_hWnd, ::GetWindow(self, GW_OWNER));
        self.EndDialog(IDOK);
    };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(palette.IsWindowEnabled());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(palette.m_hWnd, ::GetActiveWindow()) << "the owner is active again";
    palette.DestroyWindow();
}

TEST(Dialog, KeysReachTheDialogManager) {
    const auto press = [](WPARAM key) {
        CTestDialog dialog(IDD_DATA);
        dialog.onInit = [key](CTestDialog& self) {
            ::PostMessage(::GetDlgItem(self, IDC_TEXT), WM_KEYDOWN, key, 1);
        };
        return dialog.DoModal();
    };
    EXPECT_EQ(IDCANCEL, press(VK_ESCAPE));
    EXPECT_EQ(IDOK, press(VK_RETURN)) << "the default button";

    CTestDialog tab(IDD_DATA);
    tab.onInit = [](CTestDialog& self) {
        ::PostMessage(::GetDlgItem(self, IDC_TEXT), WM_KEYDOWN, VK_TAB, 1);
    };
    tab.onShown = [](CTestDialog& self) {
        EXPECT_EQ(::GetDlgItem(self, IDC_CHECK), ::GetFocus());
        self.EndDialog(1);
    };
    EXPECT_EQ(1, tab.DoModal());
}

TEST(Dialog, EndsWhenItsWindowIsDestroyed) {
    COwner owner;
    CTestDialog dialog(IDD_DATA, &owner);
    dialog.onShown = [](CTestDialog& self) { self.DestroyWindow(); };
    dialog.DoModal();
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_EQ(1, dialog.ncDestroys);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(Dialog, ModelessLivesUntilItsClassDestroysIt) {
    COwner owner;
    CTestDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_DATA, &owner));
    EXPECT_TRUE(owner.IsWindowEnabled());
    dialog.ShowWindow(SW_SHOW);
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_TRUE(::IsWindow(dialog)) << "the base class only hides";
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(1, dialog.ncDestroys);
    EXPECT_EQ(nullptr, dialog.m_hWnd);

    ASSERT_TRUE(dialog.Create(IDD_DATA, &owner));
    dialog.keepOnCancel = true;
    dialog.SendMessage(WM_CLOSE);
    testkit::Pump();
    EXPECT_EQ(1, dialog.cancels) << "the close box cancels";
    owner.DestroyWindow();
    EXPECT_EQ(nullptr, dialog.m_hWnd) << "owned windows go with their owner";
}

TEST(Dialog, PositionsAndUnits) {
    COwner owner;
    CTestDialog centred;
    ASSERT_TRUE(centred.Create(IDD_SMALL, &owner));
    CRect dialog, behind;
    centred.GetWindowRect(dialog);
    owner.GetWindowRect(behind);
    const CSize distance = behind.CenterPoint() - dialog.CenterPoint();
    EXPECT_LE(std::max(std::abs(distance.cx), std::abs(distance.cy)), 1) << "at (0, 0) no place is asked for";
    centred.DestroyWindow();

    CTestDialog placed;
    ASSERT_TRUE(placed.Create(IDD_DATA, &owner));
    CPoint corner(0, 0);
    placed.ClientToScreen(&corner);
    CRect asked(20, 30, 0, 0); // dialog units of the template, from the owner's client area
    placed.MapDialogRect(asked);
    owner.ClientToScreen(asked);
    EXPECT_EQ(asked.TopLeft(), corner);
    placed.DestroyWindow();
}

TEST(Dialog, ListsAreFilledFromTheResource) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_LISTS));
    EXPECT_EQ(1, dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT));
    EXPECT_EQ(2, dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT));
    TCHAR text[20] = {};
    dialog.SendDlgItemMessage(IDC_COMBO, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(_T("Beta"), text);
    dialog.DestroyWindow();
}

TEST(Dialog, ATemplateInMemory) {
    struct {
        DLGTEMPLATE head;
        WORD menu, windowClass, title;
    } block = {{WS_POPUP | WS_CAPTION, 0, 0, 10, 10, 60, 40}, 0, 0, 0};
    class CBare : public CDialog {
    public:
        BOOL OnInitDialog() override {
            CDialog::OnInitDialog();
            EndDialog(77);
            return TRUE;
        }
    } bare;
    ASSERT_TRUE(bare.InitModalIndirect(&block.head));
    EXPECT_EQ(77, bare.DoModal());
}

TEST(Dialog, CommandsGoOnToTheParentControlsDoNot) {
    COwner owner;
    CTestDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_DATA, &owner));
    EXPECT_TRUE(dialog.OnCmdMsg(kRoutedCommand, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(1, owner.commands);
    EXPECT_FALSE(dialog.OnCmdMsg(kControlCommand, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(1, owner.commands);
    dialog.DestroyWindow();
}

} // namespace

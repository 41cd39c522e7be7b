// SPDX-License-Identifier: MIT
// CFrameWnd: menus brought up to date, command routing, the pane.

#include <gtest/gtest.h>

#include <set>

#include "tests/mfc/window/WindowKit.h"
#include "tests/mfc/window/window_ids.h"

using windowkit::Log;

namespace {
class FrameApp : public windowkit::ScopedApp {
public:
    Log log;

protected:
    void OnOfApp() { log.push_back("app"); }
    void OnPassedOn() { log.push_back("app passed on"); }
    void OnUpdatePassedOn(CCmdUI* ui) { ui->SetText(_T("answered by the application")); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(FrameApp, CWinApp)
    ON_COMMAND(ID_OF_APP, &FrameApp::OnOfApp)
    ON_COMMAND(ID_PASSED_ON, &FrameApp::OnPassedOn)
    ON_UPDATE_COMMAND_UI(ID_PASSED_ON, &FrameApp::OnUpdatePassedOn)
END_MESSAGE_MAP()

class TestFrame : public CFrameWnd {
public:
    explicit TestFrame(Log& log) : m_log(log) {}
    CWnd pane;
    bool withPane = false;
    BOOL radioOn = TRUE;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override {
        return !withPane || pane.Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this,
                                        AFX_IDW_PANE_FIRST);
    }
    void OnKnown() { m_log.push_back("known"); }
    void OnBarred() { m_log.push_back("barred"); }
    void OnUpdateBarred(CCmdUI* ui) { ui->Enable(FALSE); }
    void OnTicked() {}
    void OnUpdateTicked(CCmdUI* ui) { ui->SetCheck(1); }
    void OnUpdateRadio(CCmdUI* ui) {
        ui->SetRadio(radioOn);
        ui->Enable();
    }
    void OnUpdateRenamed(CCmdUI* ui) { ui->SetText(_T("renamed")); }
    void OnUpdatePassedOn(CCmdUI* ui) { ui->ContinueRouting(); }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
    ON_COMMAND(ID_KNOWN, &TestFrame::OnKnown)
    ON_COMMAND(ID_BARRED, &TestFrame::OnBarred)
    ON_UPDATE_COMMAND_UI(ID_BARRED, &TestFrame::OnUpdateBarred)
    ON_COMMAND(ID_TICKED, &TestFrame::OnTicked)
    ON_UPDATE_COMMAND_UI(ID_TICKED, &TestFrame::OnUpdateTicked)
    ON_UPDATE_COMMAND_UI_RANGE(ID_RADIO, ID_RADIO, &TestFrame::OnUpdateRadio)
    ON_UPDATE_COMMAND_UI(ID_RENAMED, &TestFrame::OnUpdateRenamed)
    ON_UPDATE_COMMAND_UI(ID_PASSED_ON, &TestFrame::OnUpdatePassedOn)
END_MESSAGE_MAP()

class FrameTest : public testing::Test {
protected:
    void SetUp() override {
        frame = new TestFrame(app.log);
        ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
        app.m_pMainWnd = frame;
        popup = ::GetSubMenu(::GetMenu(frame->m_hWnd), 0);
        ASSERT_NE(popup, nullptr);
    }
    void TearDown() override {
        if (app.m_pMainWnd != nullptr)
            app.m_pMainWnd->DestroyWindow();
        windowkit::TakeQuit();
    }
    void OpenMenu() {
        frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), MAKELPARAM(0, FALSE));
    }
    /// The IDs of the items in the state `flag`, without the separator.
    std::set<UINT> Items(UINT flag) const {
        std::set<UINT> ids;
        for (int i = 0; i < ::GetMenuItemCount(popup); ++i)
            if ((::GetMenuState(popup, static_cast<UINT>(i), MF_BYPOSITION) & flag) != 0)
                ids.insert(::GetMenuItemID(popup, i));
        ids.erase(0);
        return ids;
    }
    CString Text(UINT id) const {
        CString text;
        CMenu::FromHandle(popup)->GetMenuString(id, text, MF_BYCOMMAND);
        return text;
    }
    FrameApp app;
    TestFrame* frame = nullptr;
    HMENU popup = nullptr;
};

} // namespace

TEST_F(FrameTest, OpeningAMenuBringsItUpToDate) {
    OpenMenu();
    // Not the popup, and not the item that its update handler enables.
    EXPECT_EQ(Items(MF_GRAYED), (std::set<UINT>{ID_NOBODYS, ID_BARRED, ID_RENAMED}));
    EXPECT_EQ(Items(MF_CHECKED), (std::set<UINT>{ID_TICKED, ID_RADIO}));
    EXPECT_EQ(Text(ID_RENAMED), "renamed");
    EXPECT_EQ(Text(ID_PASSED_ON), "answered by the application");

    frame->m_bAutoMenuEnable = FALSE;
    frame->radioOn = FALSE;
    for (const UINT id : Items(MF_GRAYED))
        ::EnableMenuItem(popup, id, MF_BYCOMMAND | MF_ENABLED);
    OpenMenu();
    EXPECT_EQ(Items(MF_GRAYED), std::set<UINT>{ID_BARRED}) << "only handlers decide";
    EXPECT_EQ(Items(MF_CHECKED), std::set<UINT>{ID_TICKED});
}

TEST_F(FrameTest, CommandsGoToTheFrameAndThenToTheApplication) {
    for (const UINT id : {ID_KNOWN, ID_OF_APP, ID_PASSED_ON, ID_NOBODYS, ID_BARRED}) // the last is disabled
        frame->SendMessage(WM_COMMAND, id);
    EXPECT_EQ(app.log, (Log{"known", "app", "app passed on"}));
}

TEST_F(FrameTest, MessagesAreOfferedFromTheInnermostWindowOutwards) {
    class Listener : public CWnd {
    public:
        Listener(Log& log, const char* name, bool eats) : m_log(log), m_name(name), m_eats(eats) {}
        BOOL PreTranslateMessage(MSG*) override {
            m_log.push_back(m_name);
            return m_eats;
        }

    private:
        Log& m_log;
        const char* m_name;
        bool m_eats;
    };
    Listener outer(app.log, "outer", true);
    Listener inner(app.log, "inner", false);
    ASSERT_TRUE(windowkit::CreateChild(outer, *frame, 1));
    ASSERT_TRUE(windowkit::CreateChild(inner, outer, 1));
    MSG message{};
    message.hwnd = inner.m_hWnd;
    message.message = WM_LBUTTONDOWN;
    EXPECT_TRUE(app.PreTranslateMessage(&message));
    EXPECT_EQ(app.log, (Log{"inner", "outer"}));
}

TEST_F(FrameTest, TheExitCommandEndsTheProgram) {
    frame->SendMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    EXPECT_TRUE(windowkit::TakeQuit());
}

TEST_F(FrameTest, ThePaneFillsTheClientArea) {
    auto* const framed = new TestFrame(app.log);
    framed->withPane = true;
    ASSERT_TRUE(framed->Create(nullptr, _T("with a pane"), WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)));
    const auto fills = [&] {
        CRect client;
        CRect pane;
        framed->GetClientRect(&client);
        framed->pane.GetWindowRect(&pane);
        framed->ScreenToClient(&pane);
        return pane == client && !client.IsRectEmpty();
    };
    EXPECT_TRUE(fills());
    framed->MoveWindow(0, 0, 400, 250);
    EXPECT_TRUE(fills());
    framed->DestroyWindow();
}

TEST_F(FrameTest, ButtonsFollowTheirCommandsToo) {
    const HWND nobodys = windowkit::CreateForeign(_T("BUTTON"), frame, ID_NOBODYS, BS_PUSHBUTTON);
    const HWND ticked = windowkit::CreateForeign(_T("BUTTON"), frame, ID_TICKED, BS_CHECKBOX);
    const HWND unknownBox = windowkit::CreateForeign(_T("BUTTON"), frame, ID_NOBODYS + 100, BS_CHECKBOX);
    frame->UpdateDialogControls(frame, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(nobodys));
    EXPECT_EQ(::SendMessage(ticked, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_TRUE(::IsWindowEnabled(unknownBox)) << "a check box is a value, not a command";
}

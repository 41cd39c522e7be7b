// What CWnd adds to the Win32 functions of its members' names.

#include <gtest/gtest.h>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateChild, windowkit::CreateTop;

namespace {

class ApiWnd : public CWnd {
public:
    CScrollBar* bar = nullptr; ///< stands in the place of the window's own horizontal bar
    int changes = 0;
    CScrollBar* GetScrollBarCtrl(int which) const override { return which == SB_HORZ ? bar : nullptr; }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CString text = "set by the exchange";
        DDX_Text(pDX, 4, text);
    }
    void OnChange() { ++changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ApiWnd, CWnd)
    ON_EN_CHANGE(4, &ApiWnd::OnChange)
END_MESSAGE_MAP()

class WindowApiTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateTop(window)); }
    static CRect RectOf(const CWnd& of) {
        CRect rect;
        of.GetWindowRect(&rect);
        return rect;
    }
    ApiWnd window;
};

} // namespace

TEST_F(WindowApiTest, CenteringKeepsTheWindowInsideItsArea) {
    CWnd child;
    ASSERT_TRUE(CreateChild(child, window, 1));
    const auto centred = [&] {
        child.CenterWindow();
        CRect rect = RectOf(child);
        window.ScreenToClient(&rect);
        return rect;
    };
    EXPECT_EQ(centred(), CRect(CPoint(75, 40), CSize(50, 20))) << "50 x 20 in 200 x 100";
    child.SetWindowPos(nullptr, 0, 0, 300, 20, SWP_NOZORDER);
    EXPECT_EQ(centred().left, 0) << "too wide: the left edge stays in sight";
}

TEST_F(WindowApiTest, AScrollBarControlStandsInForTheWindowsBar) {
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 100, 16), &window, 3));
    window.bar = &bar;
    window.SetScrollRange(SB_HORZ, 10, 90, FALSE);
    window.SetScrollPos(SB_HORZ, 40, FALSE);
    EXPECT_EQ(::GetScrollPos(bar.m_hWnd, SB_CTL), 40);
    EXPECT_EQ(window.GetScrollPos(SB_HORZ), 40);
    SCROLLINFO info{};
    info.fMask = SIF_PAGE;
    info.nPage = 21;
    EXPECT_TRUE(window.SetScrollInfo(SB_HORZ, &info, FALSE));
    EXPECT_EQ(window.GetScrollLimit(SB_HORZ), 70);
}

TEST_F(WindowApiTest, AnExchangeIsNotTakenForTheUsersInput) {
    ASSERT_NE(windowkit::CreateForeign("EDIT", &window, 4), nullptr);
    ASSERT_TRUE(window.UpdateData(FALSE));
    CString text;
    window.GetDlgItemText(4, text);
    EXPECT_STREQ(text, "set by the exchange");
    EXPECT_EQ(window.changes, 0);
    window.SetDlgItemText(4, "set by hand");
    EXPECT_EQ(window.changes, 1);
}

TEST_F(WindowApiTest, OwnerDrawnMenusDrawThemselves) {
    class DrawnMenu : public CMenu {
    public:
        std::string log;
        void MeasureItem(LPMEASUREITEMSTRUCT item) override {
            log += "measure " + std::to_string(item->itemID);
        }
        void DrawItem(LPDRAWITEMSTRUCT item) override { log += " draw " + std::to_string(item->itemID); }
    } menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_OWNERDRAW, 61, "x");
    window.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu));
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_MENU;
    measure.itemID = 61;
    window.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_MENU;
    draw.itemID = 61;
    draw.hwndItem = reinterpret_cast<HWND>(menu.m_hMenu);
    window.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(menu.log, "measure 61 draw 61");
}

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

constexpr UINT kOpen = 100;
constexpr UINT kSave = 101;
constexpr UINT kClose = 102;

TEST(Menu, OwnsItsHandleUntilDetached) {
    HMENU destroyed = nullptr;
    HMENU kept = nullptr;
    {
        CMenu menu;
        CMenu popup;
        ASSERT_TRUE(menu.CreateMenu() && popup.CreatePopupMenu());
        destroyed = menu.m_hMenu;
        EXPECT_EQ(&menu, CMenu::FromHandle(destroyed));
        kept = popup.Detach();
        EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(kept));
    }
    EXPECT_FALSE(::IsMenu(destroyed));
    ASSERT_TRUE(::IsMenu(kept));
    EXPECT_EQ(kept, CMenu::FromHandle(kept)->GetSafeHmenu());
    AfxDeleteTempGdiMaps();
    EXPECT_TRUE(::IsMenu(kept)) << "the end of a wrapper destroyed its menu";
    ::DestroyMenu(kept);
    CMenu none;
    EXPECT_FALSE(none.DestroyMenu());
    EXPECT_FALSE(none.LoadMenu(54321u));
    EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
}

class MenuItems : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_menu.CreatePopupMenu());
        m_menu.AppendMenu(MF_STRING, kOpen, "&Open");
        m_menu.AppendMenu(MF_SEPARATOR);
        m_menu.AppendMenu(MF_STRING | MF_GRAYED, kClose, "&Close");
        m_menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, kSave, CString("&Save"));
    }
    CString Text(UINT item, UINT flags = MF_BYCOMMAND) {
        CString text("unchanged");
        m_menu.GetMenuString(item, text, flags);
        return text;
    }
    CMenu m_menu;
};

TEST_F(MenuItems, AreFoundByCommandAndByPosition) {
    EXPECT_EQ(4u, m_menu.GetMenuItemCount());
    EXPECT_EQ(kSave, m_menu.GetMenuItemID(1));
    EXPECT_EQ(0u, m_menu.GetMenuItemID(2)) << "a separator";
    EXPECT_EQ(0xFFFFFFFFu, m_menu.GetMenuItemID(9));
    EXPECT_STREQ("&Save", Text(1, MF_BYPOSITION));
    EXPECT_STREQ("", Text(9999)) << "no such item";
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), m_menu.GetMenuState(kClose, MF_BYCOMMAND) & MF_GRAYED);

    const CString longText('x', 3000);
    EXPECT_TRUE(m_menu.ModifyMenu(kSave, MF_BYCOMMAND | MF_STRING, kSave, longText));
    EXPECT_EQ(longText, Text(kSave));
    char cut[5];
    EXPECT_EQ(4, m_menu.GetMenuString(kSave, cut, sizeof(cut), MF_BYCOMMAND));
    EXPECT_STREQ("xxxx", cut);
}

TEST_F(MenuItems, StatesAreSetAndTold) {
    EXPECT_EQ(static_cast<UINT>(MF_UNCHECKED), m_menu.CheckMenuItem(kOpen, MF_BYCOMMAND | MF_CHECKED));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), m_menu.CheckMenuItem(kOpen, MF_BYCOMMAND | MF_UNCHECKED));
    EXPECT_EQ(0xFFFFFFFFu, m_menu.CheckMenuItem(9999, MF_BYCOMMAND | MF_CHECKED));
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), m_menu.EnableMenuItem(kClose, MF_BYCOMMAND | MF_ENABLED));
    EXPECT_TRUE(m_menu.CheckMenuRadioItem(kOpen, kClose, kSave, MF_BYCOMMAND));
    EXPECT_NE(0u, m_menu.GetMenuState(kSave, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_EQ(0u, m_menu.GetMenuState(kOpen, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(m_menu.SetDefaultItem(kOpen));
    EXPECT_EQ(kOpen, m_menu.GetDefaultItem(0));
}

TEST_F(MenuItems, RemovedSubmenusSurviveDeletedOnesDoNot) {
    HMENU const removed = ::CreatePopupMenu();
    HMENU const deleted = ::CreatePopupMenu();
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(removed), "First");
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(deleted), "Second");
    EXPECT_EQ(removed, m_menu.GetSubMenu(4)->m_hMenu);
    EXPECT_EQ(nullptr, m_menu.GetSubMenu(0));
    EXPECT_TRUE(m_menu.RemoveMenu(4, MF_BYPOSITION));
    EXPECT_TRUE(m_menu.DeleteMenu(4, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(removed));
    EXPECT_FALSE(::IsMenu(deleted));
    ::DestroyMenu(removed);
}

} // namespace

// SPDX-License-Identifier: MIT
// CMenu: ownership of handles, texts of any length, and popups that are removed or deleted.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "tests/support/Utf8.h"

namespace {

constexpr UINT kOpen = 100;
constexpr UINT kSave = 101;
constexpr UINT kScripts = 102;

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
    }
    EXPECT_FALSE(::IsMenu(destroyed));
    ASSERT_TRUE(::IsMenu(kept));
    EXPECT_EQ(kept, CMenu::FromHandle(kept)->GetSafeHmenu());
    AfxDeleteTempGdiMaps();
    EXPECT_TRUE(::IsMenu(kept)) << "the end of a wrapper destroyed its menu";
    ::DestroyMenu(kept);
}

TEST(Menu, TextsOfAnyLengthAreReadAndRemovedPopupsLive) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, kOpen, _T("&Open"));
    menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, kSave, CString("&Save"));
    CString text("unchanged");
    EXPECT_EQ(5, menu.GetMenuString(0, text, MF_BYPOSITION));
    EXPECT_STREQ(_T("&Save"), text);
    menu.AppendMenu(MF_STRING, kScripts, testkit::kScripts);
    menu.GetMenuString(kScripts, text, MF_BYCOMMAND);
    EXPECT_STREQ(testkit::kScripts, text);
    menu.DeleteMenu(kScripts, MF_BYCOMMAND);
    const CString longText('x', 3000);
    EXPECT_TRUE(menu.ModifyMenu(kSave, MF_BYCOMMAND | MF_STRING, kSave, longText));
    menu.GetMenuString(kSave, text, MF_BYCOMMAND);
    EXPECT_EQ(longText, text);

    HMENU const removed = ::CreatePopupMenu();
    HMENU const deleted = ::CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(removed), _T("First"));
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(deleted), _T("Second"));
    EXPECT_TRUE(menu.RemoveMenu(2, MF_BYPOSITION));
    EXPECT_TRUE(menu.DeleteMenu(2, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(removed));
    EXPECT_FALSE(::IsMenu(deleted));
    ::DestroyMenu(removed);
}

} // namespace

// SPDX-License-Identifier: MIT
// The control classes: what they do beyond sending the message of a member's name.

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <tuple>

#include "tests/support/Utf8.h"

namespace {

using std::tuple;

/// Each test makes its controls as children of a window that is never shown.
class Controls : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 300, 200, nullptr, nullptr));
    }
    void TearDown() override { m_parent.DestroyWindow(); }
    CWnd m_parent;
    CRect m_rect{0, 0, 200, 100};
    static constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE;
};

TEST_F(Controls, EditTextSelectionAndLines) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(kStyle | ES_MULTILINE, m_rect, &m_parent, 5));
    edit.SetWindowText(_T("first\r\nsecond line\r\n\r\nlast"));
    TCHAR line[32];
    EXPECT_EQ(11, edit.GetLine(1, line, _countof(line)));
    EXPECT_EQ("second line", CString(line, 11));
    edit.SetSel(7, 13);
    int start = 0, end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(tuple(7, 13), tuple(start, end));
}

TEST_F(Controls, ListBoxItems) {
    CListBox list;
    ASSERT_TRUE(list.Create(kStyle | LBS_MULTIPLESEL, m_rect, &m_parent, 7));
    for (LPCTSTR item : {_T("apple"), _T("pear"), _T("applause"), _T("plum")})
        list.AddString(item);
    CString text("unchanged");
    list.GetText(1, text);
    EXPECT_STREQ(_T("pear"), text);
    list.GetText(list.AddString(testkit::kScripts), text);
    EXPECT_STREQ(testkit::kScripts, text);
    EXPECT_EQ(4, list.FindStringExact(-1, testkit::kScripts));
    list.GetText(9, text);
    EXPECT_STREQ(_T(""), text);
    list.SetSel(3);
    list.SelItemRange(TRUE, 0, 1);
    int chosen[4] = {-1, -1, -1, -1};
    EXPECT_EQ(3, list.GetSelItems(4, chosen));
    EXPECT_EQ(tuple(3, -1), tuple(chosen[2], chosen[3]));
}

TEST_F(Controls, ScrollLimitLiesInTheRange) {
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(kStyle | SBS_HORZ, m_rect, &m_parent, 8));
    for (const auto& [page, limit] : {std::pair(0u, 20), std::pair(4u, 17), std::pair(400u, 5)}) {
        SCROLLINFO info{sizeof(info), SIF_RANGE | SIF_PAGE, 5, 20, page, 0, 0};
        bar.SetScrollInfo(&info);
        EXPECT_EQ(limit, bar.GetScrollLimit());
    }
}

TEST_F(Controls, ComboBoxItemsAndEditField) {
    CComboBox combo;
    ASSERT_TRUE(combo.Create(kStyle | CBS_DROPDOWN | CBS_AUTOHSCROLL, m_rect, &m_parent, 9));
    const CString longText('z', 500);
    combo.AddString(_T("one"));
    combo.AddString(longText);
    EXPECT_EQ(1, combo.InsertString(1, _T("two")));
    CString text;
    combo.GetLBText(2, text);
    EXPECT_EQ(longText, text);
    combo.GetLBText(combo.AddString(testkit::kScripts), text);
    EXPECT_STREQ(testkit::kScripts, text);
    combo.GetLBText(7, text);
    EXPECT_STREQ(_T(""), text);
    EXPECT_EQ(1, combo.SelectString(-1, _T("tw")));
    EXPECT_TRUE(combo.SetEditSel(1, 3));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(1, 3)), combo.GetEditSel());
}

TEST_F(Controls, OwnerDrawReachesTheControl) {
    class CDrawn : public CListBox {
    public:
        int drawn = 0, compared = 0, deleted = 0;
        void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
        void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 33; }
        int CompareItem(LPCOMPAREITEMSTRUCT items) override {
            ++compared;
            return items->itemData1 < items->itemData2 ? -1 : items->itemData1 > items->itemData2;
        }
        void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
    };
    CDrawn list;
    m_parent.ShowWindow(SW_SHOW);
    ASSERT_TRUE(list.Create(kStyle | LBS_OWNERDRAWVARIABLE | LBS_SORT, m_rect, &m_parent, 11));
    for (UINT_PTR value : {30, 10, 20})
        list.AddString(reinterpret_cast<LPCTSTR>(value));
    EXPECT_EQ(tuple(10u, 30u), tuple(list.GetItemData(0), list.GetItemData(2)));
    EXPECT_GT(list.compared, 0);
    EXPECT_EQ(33, list.GetItemHeight(1));
    list.UpdateWindow();
    EXPECT_GE(list.drawn, 3);
    list.DeleteString(0);
    EXPECT_EQ(1, list.deleted);
}

TEST_F(Controls, CommonControls) {
    int low = 0, high = 0;

    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(kStyle | TBS_ENABLESELRANGE, m_rect, &m_parent, 21));
    slider.SetRange(-70000, 70000);
    slider.SetSelection(-5, 5);
    slider.GetSelection(low, high);
    EXPECT_EQ(tuple(-5, 5), tuple(low, high));

    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent));
    EXPECT_TRUE(tips.AddTool(&slider, _T("drag me")));
    EXPECT_TRUE(tips.AddTool(&m_parent, testkit::kScripts, CRect(0, 0, 10, 10), 77));
    EXPECT_EQ(2, tips.GetToolCount());
    CString text;
    tips.GetText(text, &m_parent, 77);
    EXPECT_STREQ(testkit::kScripts, text);
}

} // namespace

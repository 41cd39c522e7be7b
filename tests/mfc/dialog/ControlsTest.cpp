// The control classes: what they do beyond sending the message of a member's name.

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <tuple>

namespace {

using std::tuple;

CString TextOf(const CWnd& window) {
    CString text;
    window.GetWindowText(text);
    return text;
}

/// Each test makes its controls as children of a window that is never shown.
class Controls : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr));
    }
    void TearDown() override { m_parent.DestroyWindow(); }
    CWnd m_parent;
    CRect m_rect{0, 0, 200, 100};
    static constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE;
};

TEST_F(Controls, EditTextSelectionAndLines) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(kStyle | ES_MULTILINE, m_rect, &m_parent, 5));
    edit.SetWindowText("first\r\nsecond line\r\n\r\nlast");
    char line[32];
    EXPECT_EQ(11, edit.GetLine(1, line, sizeof(line)));
    EXPECT_EQ("second line", std::string(line, 11));
    char one[2] = {'-', '-'};
    EXPECT_EQ(1, edit.GetLine(1, one, 1)) << "less room than the message needs for its size";
    EXPECT_EQ("s-", std::string(one, 2));
    EXPECT_EQ(0, edit.GetLine(9, line, sizeof(line)));

    edit.SetSel(7, 13);
    int start = 0, end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(tuple(7, 13), tuple(start, end));
    edit.ReplaceSel("2nd", TRUE);
    EXPECT_STREQ("first\r\n2nd line\r\n\r\nlast", TextOf(edit));
    EXPECT_TRUE(edit.Undo());
    edit.SetSel(static_cast<DWORD>(MAKELONG(0, -1)));
    edit.GetSel(start, end);
    EXPECT_EQ(tuple(0, TextOf(edit).GetLength()), tuple(start, end));
    edit.SetMargins(3, 4);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(3, 4)), edit.GetMargins());
    EXPECT_EQ(8, LOWORD(edit.CharFromPos(edit.PosFromChar(8))));
}

TEST_F(Controls, ButtonsAndStatics) {
    CButton button;
    ASSERT_TRUE(button.Create("&Three", kStyle | BS_AUTO3STATE, m_rect, &m_parent, 6));
    EXPECT_EQ(static_cast<UINT>(BS_AUTO3STATE), button.GetButtonStyle() & 0xF);
    button.SetCheck(2);
    EXPECT_EQ(2, button.GetCheck());
    CStatic label;
    ASSERT_TRUE(label.Create("", kStyle | SS_ICON, m_rect, &m_parent));
    HICON const icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    EXPECT_EQ(nullptr, label.SetIcon(icon));
    EXPECT_EQ(icon, label.GetIcon());
}

TEST_F(Controls, ListBoxItems) {
    CListBox list;
    ASSERT_TRUE(list.Create(kStyle | LBS_MULTIPLESEL, m_rect, &m_parent, 7));
    for (LPCTSTR item : {"apple", "pear", "applause", "plum"})
        list.AddString(item);
    CString text("unchanged");
    list.GetText(1, text);
    EXPECT_STREQ("pear", text);
    list.GetText(9, text);
    EXPECT_STREQ("", text);
    EXPECT_EQ(2, list.FindString(0, "app"));
    EXPECT_EQ(0, list.FindStringExact(-1, "APPLE"));
    EXPECT_EQ(LB_ERR, list.FindStringExact(-1, "app"));
    CRect second;
    list.GetItemRect(1, second);
    BOOL outside = TRUE;
    EXPECT_EQ(1u, list.ItemFromPoint(second.CenterPoint(), outside));
    EXPECT_FALSE(outside);
    list.SetSel(3);
    list.SelItemRange(TRUE, 0, 1);
    int chosen[4] = {-1, -1, -1, -1};
    EXPECT_EQ(3, list.GetSelItems(4, chosen));
    EXPECT_EQ(tuple(3, -1), tuple(chosen[2], chosen[3]));
    list.SetItemDataPtr(2, &list);
    EXPECT_EQ(3, list.DeleteString(0));
    EXPECT_EQ(&list, list.GetItemDataPtr(1));
}

TEST_F(Controls, ComboBoxItemsAndEditField) {
    CComboBox combo;
    ASSERT_TRUE(combo.Create(kStyle | CBS_DROPDOWN | CBS_AUTOHSCROLL, m_rect, &m_parent, 9));
    const CString longText('z', 500);
    combo.AddString("one");
    combo.AddString(longText);
    EXPECT_EQ(1, combo.InsertString(1, "two"));
    CString text;
    combo.GetLBText(2, text);
    EXPECT_EQ(longText, text);
    combo.GetLBText(7, text);
    EXPECT_STREQ("", text);
    EXPECT_EQ(1, combo.SelectString(-1, "tw"));
    EXPECT_STREQ("two", TextOf(combo));
    EXPECT_TRUE(combo.SetEditSel(1, 3));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(1, 3)), combo.GetEditSel());
}

TEST_F(Controls, ScrollBarsAndTheirLimit) {
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(kStyle | SBS_HORZ, m_rect, &m_parent, 10));
    bar.SetScrollRange(-10, 90);
    SCROLLINFO info{};
    info.fMask = SIF_PAGE;
    info.nPage = 21;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(70, bar.GetScrollLimit());
    SCROLLINFO read{};
    ASSERT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(tuple(-10, 21u), tuple(read.nMin, read.nPage));
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

    class CDrawnButton : public CButton {
    public:
        UINT itemId = 0;
        void DrawItem(LPDRAWITEMSTRUCT item) override { itemId = item->CtlID; }
    } button;
    ASSERT_TRUE(button.Create("", kStyle | BS_OWNERDRAW, CRect(0, 120, 50, 150), &m_parent, 12));
    button.UpdateWindow();
    EXPECT_EQ(12u, button.itemId);
}

TEST_F(Controls, CommonControls) {
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(kStyle, m_rect, &m_parent, 20));
    progress.SetRange32(0, 100000);
    progress.SetPos(70000);
    int low = 0, high = 0;
    progress.GetRange(low, high);
    EXPECT_EQ(tuple(70000, 100000), tuple(progress.GetPos(), high));

    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(kStyle | TBS_ENABLESELRANGE, m_rect, &m_parent, 21));
    slider.SetRange(-70000, 70000);
    slider.GetRange(low, high);
    EXPECT_EQ(tuple(-70000, 70000), tuple(low, high));
    slider.SetSelection(-5, 5);
    slider.GetSelection(low, high);
    EXPECT_EQ(tuple(-5, 5), tuple(low, high));

    CEdit buddy;
    ASSERT_TRUE(buddy.Create(kStyle, m_rect, &m_parent, 22));
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(kStyle | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, m_rect, &m_parent, 23));
    EXPECT_EQ(nullptr, spin.SetBuddy(&buddy));
    EXPECT_EQ(&buddy, spin.GetBuddy());
    spin.SetRange(-50, 50);
    spin.GetRange(low, high);
    EXPECT_EQ(tuple(-50, 50), tuple(low, high));
    spin.SetPos(-12);
    EXPECT_EQ(-12, spin.SetPos(3)) << "the former position, with its sign";

    CStatusBarCtrl status;
    ASSERT_TRUE(status.Create(kStyle, m_rect, &m_parent, 24));
    int edges[] = {100, -1};
    EXPECT_TRUE(status.SetParts(2, edges));
    EXPECT_TRUE(status.SetText("ready", 1, SBT_NOBORDERS));
    int type = 0;
    EXPECT_STREQ("ready", status.GetText(1, &type));
    EXPECT_EQ(SBT_NOBORDERS, type);
    int read[3] = {};
    EXPECT_EQ(2, status.GetParts(3, read));
    EXPECT_EQ(100, read[0]);

    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent));
    EXPECT_TRUE(tips.AddTool(&slider, "drag me"));
    EXPECT_TRUE(tips.AddTool(&m_parent, "corner", CRect(0, 0, 10, 10), 77));
    EXPECT_EQ(2, tips.GetToolCount());
    CString text;
    tips.GetText(text, &m_parent, 77);
    EXPECT_STREQ("corner", text);
    tips.UpdateTipText("other", &slider);
    tips.GetText(text, &slider);
    EXPECT_STREQ("other", text);
}

} // namespace

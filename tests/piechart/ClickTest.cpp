// SPDX-License-Identifier: MIT
// Clicks at the edges of pieces, the search, and parents that act during the notification.
#include "tests/piechart/PieTest.h"

#include <cmath>
#include <functional>

class PieClickTest : public PieTest {
protected:
    Strings Log() {
        Strings log = parent.Log();
        parent.Forget();
        return log;
    }
};

TEST_F(PieClickTest, EdgesBelongToThePieceBefore) {
    Add({25, 50});
    const Strings first = {"notify -2 id 77 flags 1 piece 0"};
    const struct {
        CPoint point;
        Strings log;
        int selected;
    } cases[] = {{CPoint(180, 100), first, 0},
                 {CPoint(135, 60), {}, 0},    // angle 0
                 {CPoint(214, 95), first, 0}, // the outline
                 {CPoint(110, 70), {}, -1}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.point.x);
        Click(CPoint(160, 80));
        Settle();
        parent.Forget();
        pie.defaulted.clear();
        Click(each.point);
        EXPECT_EQ(Log(), each.log);
        EXPECT_EQ(pie.Selected(), each.selected);
        EXPECT_EQ(pie.defaulted, Strings{"button"});
        EXPECT_LE(UpdateRect().Width(), 162);
    }
    Settle();
    Click(CPoint(110, 70));
    EXPECT_LT(UpdateRect().Width(), 100) << "without a selection a click into the gap repaints labels only";
    Click(CPoint(160, 80), MK_LBUTTON | MK_SHIFT | MK_CONTROL);
    EXPECT_EQ(*reinterpret_cast<const HWND*>(parent.Entries()[0].record), pie.m_hWnd);
    EXPECT_EQ(Log(), Strings{"notify -2 id 77 flags 13 piece 0"});
    pie.m_rcPie.SetRectEmpty(); // its value before the first paint
    Click(CPoint(0, 0));
    EXPECT_TRUE(Log().empty());
}

TEST_F(PieClickTest, SearchClearsEverySelection) {
    Add({25, 25, 25});
    pie.m_nStartAngle = 180; // the search counts from 0 degrees all the same
    for (const auto& [angle, index] :
         {std::pair{0.0, 0}, {90.0, 0}, {90.0001, 1}, {270.0001, -1}, {NAN, -1}}) {
        SCOPED_TRACE(angle);
        for (int i = 0; i < 3; ++i)
            pie.At(i).m_bSelected = TRUE;
        Settle();
        CRect labels(0, 0, 0, 0);
        for (int i = 0; i < 3; ++i)
            labels.UnionRect(labels, pie.At(i).m_rcItem);
        EXPECT_EQ(pie.GetPieceIndex(angle), index);
        EXPECT_EQ(pie.Selected(), -1);
        EXPECT_EQ(UpdateRect(), labels) << "all labels and nothing else";
    }
    pie.Reset();
    EXPECT_EQ(pie.GetPieceIndex(1), -1);
}

TEST_F(PieClickTest, ParentMayDoAnythingInTheNotification) {
    static bool isDeleted = false;
    class Watched : public OpenPie {
    public:
        ~Watched() override { isDeleted = true; }
    };
    const std::function<void(Watched*)> actions[] = {
        [](Watched* other) { other->Reset(), other->UpdateWindow(); },
        [](Watched* other) { other->DestroyWindow(); }, [](Watched* other) { delete other; }};
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        isDeleted = false;
        auto* other = new Watched;
        ASSERT_TRUE(other->Create("PIE_CHART_CTRL", nullptr, WS_CHILD | WS_VISIBLE, CRect(300, 0, 600, 200),
                                  &parent, 78));
        other->AddPiece(0, 0, 1, 1, "");
        other->UpdateWindow();
        parent.onNoted = [&](const auto&) { actions[i](other); };
        other->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(160, 80));
        parent.onNoted = nullptr;
        EXPECT_EQ(isDeleted, i == 2);
        if (isDeleted)
            continue;
        EXPECT_EQ(other->defaulted.size(), i == 0 ? 1u : 0u) << "nothing is done after the window is gone";
        other->DestroyWindow();
        delete other;
    }
}

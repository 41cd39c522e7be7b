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

TEST_F(PieClickTest, GeometryFollowsTheWindow) {
    EXPECT_EQ(pie.GetAngleFromPoint(CPoint(136, 100)), 90.0);
    CPoint rim, inner;
    pie.CountPoint(90, rim, FALSE);
    pie.CountPoint(90, inner, 7);
    EXPECT_EQ(std::pair(rim.x, inner.x), std::pair(LONG(215), LONG(183)));
    Resize(200, 400);
    EXPECT_EQ(pie.m_rcPie, CRect(5, 120, 165, 280));
}

TEST_F(PieClickTest, ClicksFindThePiecesTold) {
    Add({25, 50});
    const Strings first = {"notify -2 id 77 flags 1 piece 0"};
    const Strings second = {"notify -2 id 77 flags 1 piece 1"};
    const struct {
        const char* name;
        CPoint point;
        Strings log;
        int selected;
    } cases[] = {
        {"first piece", CPoint(160, 80), first, 0},
        {"the edge belongs to the piece before", CPoint(180, 100), first, 0},
        {"just past it", CPoint(180, 101), second, 1},
        {"below", CPoint(135, 150), second, 1},
        {"left on the line", CPoint(100, 100), second, 1},
        {"gap", CPoint(110, 70), {}, -1},
        {"twelve o'clock, where the angle is 0", CPoint(135, 60), {}, 0},
        {"the centre", CPoint(135, 100), {}, 0},
        {"outside", CPoint(60, 25), {}, 0},
        {"on the outline", CPoint(214, 95), first, 0},
        {"far outside", CPoint(250, 100), {}, 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Click(CPoint(160, 80));
        Settle();
        parent.Forget();
        pie.defaulted.clear();
        Click(each.point);
        EXPECT_EQ(Log(), each.log);
        EXPECT_EQ(pie.Selected(), each.selected);
        EXPECT_EQ(pie.defaulted, Strings{"button"});
    }
    Click(CPoint(160, 80), MK_LBUTTON | MK_SHIFT | MK_CONTROL);
    EXPECT_EQ(*reinterpret_cast<const HWND*>(parent.Entries()[0].record), pie.m_hWnd);
    EXPECT_EQ(Log(), Strings{"notify -2 id 77 flags 13 piece 0"});
}

TEST_F(PieClickTest, SearchClearsEverySelection) {
    Add({25, 25, 25});
    pie.m_nStartAngle = 180; // the search knows none
    const struct {
        double angle;
        int index;
    } cases[] = {{0, 0},         {1e-9, 0}, {90, 0},        {90.0001, 1}, {270, 2},
                 {270.0001, -1}, {-5, 0},   {INFINITY, -1}, {NAN, -1},    {-INFINITY, 0}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.angle);
        for (int i = 0; i < 3; ++i)
            pie.At(i).m_bSelected = TRUE;
        Settle();
        CRect labels(0, 0, 0, 0);
        for (int i = 0; i < 3; ++i)
            labels.UnionRect(labels, pie.At(i).m_rcItem);
        EXPECT_EQ(pie.GetPieceIndex(each.angle), each.index);
        EXPECT_EQ(pie.Selected(), -1);
        EXPECT_EQ(UpdateRect(), labels) << "all labels and nothing else";
    }
    pie.Reset();
    EXPECT_EQ(pie.GetPieceIndex(1), -1);
}

TEST_F(PieClickTest, ClickRepaintsTheWholePicture) {
    Add({25, 50});
    for (const CPoint click : {CPoint(160, 80), CPoint(135, 150), CPoint(110, 70)}) { // the last clears
        Click(click);
        CRect pieAndEdge = pie.m_rcPie;
        pieAndEdge.InflateRect(1, 1);
        const CRect update = UpdateRect();
        EXPECT_FALSE(update.IsRectEmpty());
        EXPECT_LE(update.Width(), pieAndEdge.Width()) << "not the window";
        pie.UpdateWindow();
        testkit::DibSurface shown(300, 200);
        shown.Grab(pie.m_hWnd);
        EXPECT_EQ(testkit::Difference(shown, *Paint()), "");
    }
    Click(CPoint(110, 70));
    EXPECT_TRUE(UpdateRect().Width() < 100) << "with no selection to clear the gap repaints labels only";
}

TEST_F(PieClickTest, NothingToHitBeforeAPaintOrWithoutRoom) {
    Add({100});
    pie.m_rcPie.SetRectEmpty();
    Click(CPoint(0, 0));
    Resize(30, 30);
    for (int x = 0; x < 30; ++x)
        for (int y = 0; y < 30; ++y)
            Click(CPoint(x, y));
    EXPECT_TRUE(Log().empty());
    EXPECT_EQ(pie.Selected(), -1);
}

TEST_F(PieClickTest, WithoutParentNothingIsSent) {
    OpenPie popup;
    ASSERT_TRUE(popup.Create(WS_POPUP | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr, 0));
    popup.AddPiece(0, 0, 1, 1, "");
    popup.UpdateWindow();
    popup.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(160, 80));
    EXPECT_EQ(popup.Selected(), 0);
    EXPECT_EQ(popup.defaulted, Strings{"button"});
    popup.DestroyWindow();
}

TEST_F(PieClickTest, ParentMayDoAnythingInTheNotification) {
    bool deleted = false;
    class Counted : public OpenPie {
    public:
        explicit Counted(bool& gone) : m_gone(gone) {}
        ~Counted() override { m_gone = true; }
        bool& m_gone;
    };
    auto* other = new Counted(deleted);
    ASSERT_TRUE(other->Create("PIE_CHART_CTRL", nullptr, WS_CHILD | WS_VISIBLE, CRect(300, 0, 600, 200),
                              &parent, 78));
    const HWND window = other->m_hWnd;
    other->AddPiece(0, 0, 1, 1, "");
    other->UpdateWindow();
    const auto click = [&] {
        const HWND target = ::IsWindow(window) ? window : nullptr;
        ::SendMessage(target, WM_LBUTTONDOWN, 0, MAKELPARAM(160, 80));
    };
    parent.onNoted = [&](const auto&) {
        other->Reset();
        other->UpdateWindow();
    };
    click();
    EXPECT_EQ(other->defaulted.size(), 1u);
    other->AddPiece(0, 0, 1, 1, "");
    other->UpdateWindow();
    parent.onNoted = [&](const auto&) { other->DestroyWindow(); };
    click();
    EXPECT_EQ(other->m_hWnd, nullptr);
    EXPECT_EQ(other->defaulted.size(), 1u) << "nothing is done after the window is gone";
    ASSERT_TRUE(other->Create("PIE_CHART_CTRL", nullptr, WS_CHILD | WS_VISIBLE, CRect(300, 0, 600, 200),
                              &parent, 78));
    other->UpdateWindow();
    parent.onNoted = [&](const auto&) { delete other; };
    ::SendMessage(other->m_hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(160, 80));
    EXPECT_TRUE(deleted);
    parent.onNoted = nullptr;
}

// CPoint, CSize and CRect: their own arithmetic, and which system function stands behind which operator.

#include <afx.h>

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(Point, AddsPointsSizesAndRectangles) {
    EXPECT_TRUE(CPoint(MAKELPARAM(-3, 7)) == CPoint(-3, 7)) << "as messages pack coordinates";
    EXPECT_TRUE(CSize(MAKELPARAM(5, -1)) == CSize(5, -1));
    CPoint point(10, 20);
    EXPECT_TRUE(point + CSize(1, 2) == CPoint(11, 22) && point + CPoint(1, 2) == CPoint(11, 22));
    EXPECT_TRUE(point - CSize(1, 2) == CPoint(9, 18) && point - CPoint(1, 2) == CSize(9, 18));
    EXPECT_TRUE(-point == CPoint(-10, -20) && -CSize(1, 2) == CSize(-1, -2));
    EXPECT_TRUE(CSize(1, 1) + CPoint(2, 3) == CPoint(3, 4) && CSize(1, 1) - CPoint(2, 3) == CPoint(-1, -2));
    point.Offset(5, -5);
    point += CSize(1, 1);
    point -= CPoint(6, 6);
    EXPECT_TRUE(point == CPoint(10, 10));
    const CRect rect(0, 0, 2, 3);
    EXPECT_TRUE(point + &rect == CRect(10, 10, 12, 13));
    EXPECT_TRUE(CSize(1, 2) - &rect == CRect(-1, -2, 1, 1)) << "the rectangle moved the other way";
}

TEST(Rect, TellsWhereItIs) {
    CRect rect(1, 2, 30, 40);
    rect.TopLeft().x = 5;
    rect.BottomRight().Offset(1, 1);
    EXPECT_TRUE(rect == CRect(5, 2, 31, 41)) << "its corners are its own fields";
    rect.left = 6;
    EXPECT_EQ(6, rect.TopLeft().x);
    EXPECT_TRUE(rect.Size() == CSize(25, 39) && CSize(rect.Width(), rect.Height()) == CSize(25, 39));
    EXPECT_TRUE(CRect(-5, -7, 0, 0).CenterPoint() == CPoint(-2, -3));
    EXPECT_TRUE(CRect(INT_MAX - 2, INT_MIN, INT_MAX, INT_MIN + 2).CenterPoint() ==
                CPoint(INT_MAX - 1, INT_MIN + 1));
    EXPECT_TRUE(CRect(CPoint(1, 2), CSize(3, 4)) == CRect(1, 2, 4, 6));
    for (int i = 0; i < 5; ++i) // the left and the top side belong to it, the others do not
        EXPECT_EQ(i == 1 || i == 2, CRect(11, 11, 13, 13).PtInRect(CPoint(10 + i, 11)) != FALSE &&
                                        CRect(11, 11, 13, 13).PtInRect(CPoint(11, 10 + i)) != FALSE);
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty() && CRect(9, 5, 5, 9).IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectNull() && !CRect(5, 5, 5, 9).IsRectNull());
}

TEST(Rect, SidesMoveInAndOut) {
    CRect rect(10, 20, 30, 40);
    rect.InflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(9, 18, 31, 42));
    rect.DeflateRect(1, 2, 3, 4);
    rect.InflateRect(CSize(1, 1));
    rect.DeflateRect(CRect(1, 1, 1, 1));
    EXPECT_TRUE(rect == CRect(10, 20, 28, 38));
    const CRect sides(1, 2, 3, 4);
    EXPECT_TRUE(rect + static_cast<LPCRECT>(sides) == CRect(9, 18, 31, 42));
    EXPECT_TRUE(rect - static_cast<LPCRECT>(sides) == CRect(11, 22, 25, 34));
    EXPECT_TRUE(rect + CPoint(1, 2) == CRect(11, 22, 29, 40) && rect - CSize(1, 2) == CRect(9, 18, 27, 36));
    for (int twice = 0; twice < 2; ++twice, rect.SetRect(30, 40, 10, 20)) {
        rect.NormalizeRect();
        EXPECT_TRUE(rect == (twice ? CRect(10, 20, 30, 40) : CRect(10, 20, 28, 38)));
    }
    EXPECT_TRUE(CRect(10, 20, 30, 40).MulDiv(1, 3) == CRect(3, 7, 10, 13));

    rect.SetRect(INT_MIN, 0, INT_MAX, 10);
    EXPECT_EQ(-1, rect.Width()) << "coordinates that leave their range wrap";
    rect.InflateRect(1, 0);
    EXPECT_EQ(INT_MAX, rect.left);
    rect -= CPoint(INT_MIN, INT_MIN);
    EXPECT_TRUE(-CSize(INT_MIN, 1) == CSize(INT_MIN, -1));
}

TEST(Rect, IntersectsJoinsAndSubtracts) {
    const CRect a(0, 0, 10, 10);
    const CRect b(5, -5, 20, 5);
    EXPECT_TRUE((a & b) == CRect(5, 0, 10, 5) && (a | b) == CRect(0, -5, 20, 10));
    CRect result = a;
    EXPECT_FALSE(result.IntersectRect(result, CRect(10, 0, 20, 10))) << "touching is not overlapping";
    EXPECT_TRUE(result.SubtractRect(a, CRect(-1, -1, 4, 11)));
    EXPECT_TRUE(result == CRect(4, 0, 10, 10));
    result &= b;
    result |= CRect(0, 0, 1, 1);
    EXPECT_TRUE(result == CRect(0, 0, 10, 5));
}

} // namespace

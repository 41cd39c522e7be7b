// SPDX-License-Identifier: MIT
// CPoint, CSize and CRect: the arithmetic of their members and operators.

#include <afx.h>

#include <gtest/gtest.h>

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
    EXPECT_TRUE(rect.Size() == CSize(26, 39) && CSize(rect.Width(), rect.Height()) == CSize(26, 39));
    EXPECT_TRUE(CRect(-5, -7, 0, 0).CenterPoint() == CPoint(-2, -3));
    EXPECT_TRUE(CRect(CPoint(1, 2), CSize(3, 4)) == CRect(1, 2, 4, 6));
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
    rect.SetRect(30, 40, 10, 20);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(10, 20, 30, 40));
    EXPECT_TRUE(CRect(10, 20, 30, 40).MulDiv(1, 3) == CRect(3, 7, 10, 13));
}

TEST(Rect, IntersectsJoinsAndSubtracts) {
    const CRect a(0, 0, 10, 10);
    const CRect b(5, -5, 20, 5);
    EXPECT_TRUE((a & b) == CRect(5, 0, 10, 5) && (a | b) == CRect(0, -5, 20, 10));
    CRect result = a;
    EXPECT_FALSE(result.IntersectRect(result, CRect(10, 0, 20, 10))) << "touching is not overlapping";
}

} // namespace

#include "tests/piechart/PieTest.h"
#include "tests/support/ImportHook.h"

#include <cmath>
#include <random>

class PieRobustnessTest : public PieTest {};

namespace {

HBITMAP WINAPI NoBitmap(HDC, int, int) {
    return nullptr;
}

HRGN WINAPI NoRegion(const RECT*) {
    return nullptr;
}

} // namespace

TEST_F(PieRobustnessTest, OddNumbersTextsAndSizes) {
    const double odd[] = {NAN, INFINITY, -INFINITY, 1e308, -1e308, 5e-324, 0, -1, 1, 50};
    const CString texts[] = {"", " ", "a b", CString('w', 20000), "\xC3\xA9\xFF&& %s %n", CString(' ', 300)};
    const CSize sizes[] = {{1, 1},   {0, 50},   {2, 300}, {300, 2},  {40, 40},
                           {41, 41}, {43, 600}, {90, 60}, {650, 480}};
    std::mt19937 random(17);
    for (const CSize& size : sizes) {
        Resize(size.cx, size.cy);
        for (int run = 0; run < 6; ++run) {
            pie.Reset();
            pie.m_nStartAngle = run == 5 ? INT_MIN : static_cast<int>(random() % 1000) - 500;
            for (unsigned n = random() % 12; n > 0; --n)
                pie.AddPiece(random() & 0xFFFFFF, random() & 0xFFFFFF, odd[random() % std::size(odd)],
                             odd[random() % std::size(odd)], texts[random() % std::size(texts)]);
            if (run % 3 == 0)
                pie.Wait(texts[random() % std::size(texts)], 1);
            pie.Refresh();
            pie.UpdateWindow();
            for (int i = 0; i < 20; ++i)
                Click(CPoint(static_cast<int>(random() % 650), static_cast<int>(random() % 480)));
            for (int i = 0; i < pie.m_arrPieces.GetSize(); ++i) {
                const CRect item = pie.At(i).m_rcItem;
                CRect joined;
                joined.UnionRect(item, Client());
                EXPECT_TRUE(item.IsRectEmpty() || joined == Client());
            }
        }
    }
    CPoint point;
    for (const double angle : {double(NAN), double(INFINITY), 1e308})
        pie.CountPoint(angle, point, 0);
}

TEST_F(PieRobustnessTest, TenThousandPieces) {
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(pie.AddPiece(Colour(i % 7), 0, 10000, 1, "piece"), 1);
    const auto picture = Paint();
    EXPECT_LT(picture->Count(RGB(0, 0, 0), pie.m_rcPie), 160 * 12) << "boundaries do not blacken the pie";
    Click(At(180, 0.5));
    EXPECT_NEAR(pie.Selected(), 5000, 150);
    DWORD colour = 0;
    pie.GetItemColor(9999, colour);
    EXPECT_EQ(colour, Colour(9999 % 7));
}

TEST_F(PieRobustnessTest, PaintsWithoutBitmapAndWithoutRegions) {
    Add({60, 40});
    const auto whole = Paint();
    {
        const testkit::ImportHook hook("Kavlix.dll", "CreateCompatibleBitmap",
                                       reinterpret_cast<void*>(&NoBitmap));
        const testkit::ImportHook other("KavlixMfc.dll", "CreateCompatibleBitmap",
                                        reinterpret_cast<void*>(&NoBitmap));
        ASSERT_TRUE(hook.Installed() || other.Installed());
        pie.Refresh();
        pie.UpdateWindow();
        testkit::DibSurface shown(300, 200);
        shown.Grab(pie.m_hWnd);
        EXPECT_EQ(testkit::Difference(*whole, shown), "");
    }
    const testkit::ImportHook hook("Kavlix.dll", "CreateEllipticRgnIndirect",
                                   reinterpret_cast<void*>(&NoRegion));
    const testkit::ImportHook other("KavlixMfc.dll", "CreateEllipticRgnIndirect",
                                    reinterpret_cast<void*>(&NoRegion));
    ASSERT_TRUE(hook.Installed() || other.Installed());
    Settle();
    Click(CPoint(160, 80));
    EXPECT_TRUE(parent.Entries().empty());
}

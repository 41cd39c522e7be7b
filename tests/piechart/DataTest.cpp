// SPDX-License-Identifier: MIT
// Creation and data of the control, and every operation when memory runs out.
#include "tests/piechart/PieTest.h"
#include "tests/support/MemoryRule.h"
#include "tests/support/Utf8.h"

class PieDataTest : public PieTest {};

TEST_F(PieDataTest, CreateMakesASunkenChild) {
    OpenPie made;
    ASSERT_TRUE(made.Create(WS_CHILD | WS_VISIBLE, CRect(10, 20, 110, 80), &parent, 5));
    CRect place;
    made.GetWindowRect(&place);
    parent.ScreenToClient(&place);
    EXPECT_EQ(place, CRect(10, 20, 110, 80));
    EXPECT_EQ(made.GetDlgCtrlID(), 5);
    EXPECT_NE(made.GetExStyle() & WS_EX_CLIENTEDGE, 0u);
    ::SetCursor(nullptr);
    EXPECT_TRUE(made.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(made.m_hWnd),
                                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_ARROW)) << "the class has none";
    made.DestroyWindow();
}

TEST_F(PieDataTest, PiecesAndTheirColours) {
    DWORD colour = 99;
    pie.GetItemColor(0, colour);
    EXPECT_EQ(colour, 0u) << "no pieces";
    EXPECT_EQ(pie.AddPiece(0x010203, 0x040506, 8, 2, "label"), 1);
    EXPECT_EQ(UpdateRect(), Client());
    pie.AddPiece(0x0A0B0C, 0, 8, 3, "second");
    const struct {
        int index;
        DWORD colour;
    } cases[] = {{0, 0x010203}, {1, 0x0A0B0C}, {2, 0x0A0B0C}, {-1, 0}};
    for (const auto& each : cases) {
        pie.GetItemColor(each.index, colour = 99);
        EXPECT_EQ(colour, each.colour) << each.index;
    }
    pie.m_nWaitMode = 3;
    Settle();
    pie.Reset();
    EXPECT_EQ(pie.m_arrPieces.GetSize(), 0);
    EXPECT_EQ(pie.m_nWaitMode, 0);
    EXPECT_TRUE(UpdateRect().IsRectEmpty()) << "Reset does not repaint";
    pie.Wait(_T("busy"), 2);
    EXPECT_STREQ(pie.m_strWait, _T("busy"));
    EXPECT_EQ(pie.m_nWaitMode, 2);
    EXPECT_EQ(UpdateRect(), Client());
}

TEST_F(PieDataTest, WorksWithoutAWindow) {
    // InvalidateRect with a null handle would invalidate all windows, also this one.
    Settle();
    OpenPie loose;
    loose.AddPiece(1, 2, 4, 1, "x");
    loose.Refresh();
    loose.Wait(nullptr, 1);
    EXPECT_EQ(loose.GetPieceIndex(45), 0);
    EXPECT_EQ(loose.GetPieceIndex(91), -1);
    loose.RecalcRect();
    testkit::DibSurface surface(10, 10, RGB(1, 2, 3));
    loose.DrawPie(*CDC::FromHandle(surface.Dc()));
    EXPECT_EQ(surface.Count(RGB(1, 2, 3)), 100);
    EXPECT_TRUE(UpdateRect().IsRectEmpty());
}

namespace {

CWnd* g_parent = nullptr;
const CString kLong("a label of more than fifteen characters");

struct FedPie {
    FedPie() {
        pie.CPieChartCtrl::Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), g_parent, 1);
        for (int i = 0; i < 2; ++i)
            pie.AddPiece(RGB(40 * i, 90, 90), 0, 3, i + 1, "a bit longer");
        pie.At(1).m_bSelected = TRUE;
        pie.UpdateWindow();
    }
    std::string State() {
        std::string text = testkit::Utf8(pie.m_strWait) + std::to_string(pie.m_nWaitMode);
        for (int i = 0; i < pie.m_arrPieces.GetSize(); ++i)
            text += testkit::Utf8(pie.At(i).m_strLabel) + (pie.At(i).m_bSelected ? "*" : " ");
        return text;
    }
    bool Saves(LPCTSTR shortName) { // a short name needs no allocation when it becomes a CString
        const bool saved = pie.SaveImage(shortName);
        ::DeleteFile(shortName);
        return saved;
    }
    OpenPie pie, other;
};

} // namespace

TEST_F(PieDataTest, MemoryRunsOut) {
    g_parent = &parent;
    using testkit::OnFailure;
    const int failures = testkit::ExpectMemoryRule<FedPie>({
        {"append", OnFailure::False, [](FedPie& s) { return s.pie.AddPiece(1, 2, 4, 1, kLong) != 0; }},
        {"wait", OnFailure::Throws, [](FedPie& s) { return s.pie.Wait(kLong, 1), true; }},
        {"construct", OnFailure::Never, [](FedPie&) { return OpenPie().m_nStartAngle == 0; }},
        {"create", OnFailure::False,
         [](FedPie& s) { return !!s.other.CPieChartCtrl::Create(WS_CHILD, CRect(0, 0, 9, 9), g_parent, 2); }},
        {"reset", OnFailure::Never, [](FedPie& s) { return s.pie.Reset(), true; }},
        {"search", OnFailure::Never, [](FedPie& s) { return s.pie.GetPieceIndex(200) >= 0; }},
        {"refresh", OnFailure::Never, [](FedPie& s) { return s.pie.Refresh(), s.pie.RecalcRect(), true; }},
        {"save pixels", OnFailure::False, [](FedPie& s) { return s.Saves(_T("~k.bmp")); }},
        {"save strokes", OnFailure::False, [](FedPie& s) { return s.Saves(_T("~k.emf")); }},
        {"paint", OnFailure::Message, [](FedPie& s) { return s.pie.Refresh(), s.pie.UpdateWindow(), true; }},
        {"click", OnFailure::Message,
         [](FedPie& s) { return s.pie.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(160, 80)), true; }},
    });
    EXPECT_GT(failures, 100);
}

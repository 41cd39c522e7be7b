// SPDX-License-Identifier: MIT
// The fixture of the pie's tests.
#include "tests/piechart/PieTest.h"

#include <cmath>
#include <cstring>

#include "plot/Numeric.h"

int OpenPie::Selected() const {
    int selected = -1;
    for (int i = 0; i < m_arrPieces.GetSize(); ++i)
        if (static_cast<const CPieChartPiece*>(m_arrPieces.GetAt(i))->m_bSelected)
            selected = selected == -1 ? i : -2;
    return selected;
}

LRESULT OpenPie::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN)
        defaulted.push_back("button");
    return CPieChartCtrl::DefWindowProc(message, wParam, lParam);
}

void PieTest::SetUp() {
    ASSERT_TRUE(parent.CreateVisible(700, 500));
    parent.SetRecordSize(sizeof(NMPIECHART));
    parent.SetDescription([](const testkit::RecordingParent::Entry& entry) {
        NMPIECHART record;
        std::memcpy(&record, entry.record, sizeof record);
        return " flags " + std::to_string(record.nFlags) + " piece " + std::to_string(record.nIndex);
    });
    const CRect place(0, 0, 300, 200);
    ASSERT_TRUE(pie.Create(_T("PIE_CHART_CTRL"), nullptr, WS_CHILD | WS_VISIBLE, place, &parent, kControlId));
    Settle();
}

void PieTest::TearDown() {
    if (pie.m_hWnd != nullptr)
        pie.DestroyWindow();
    if (parent.m_hWnd != nullptr)
        parent.DestroyWindow();
    testkit::Pump();
}

void PieTest::Resize(int width, int height) {
    pie.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
    Settle();
}

COLORREF PieceColour(int index) {
    return RGB(40 + index * 5 % 200, 100 + index / 40 * 3, 60 + index * 37 % 190);
}

void PieTest::Add(std::initializer_list<double> values) {
    for (const double value : values) {
        const int index = static_cast<int>(pie.m_arrPieces.GetSize());
        EXPECT_EQ(pie.AddPiece(PieceColour(index), RGB(0, 0, 0), 100, value, ""), 1);
    }
    Settle();
}

std::unique_ptr<testkit::DibSurface> PieTest::Paint() {
    const CRect client = Client();
    auto surface = std::make_unique<testkit::DibSurface>(client.right, client.bottom, RGB(1, 2, 3));
    pie.DrawPie(*CDC::FromHandle(surface->Dc()));
    return surface;
}

std::unique_ptr<testkit::MetafileRecorder> PieTest::Record() {
    auto recorder = std::make_unique<testkit::MetafileRecorder>();
    pie.DrawPie(*CDC::FromHandle(recorder->Dc()));
    recorder->Close();
    return recorder;
}

void PieTest::Settle() {
    pie.Invalidate();
    pie.UpdateWindow();
    testkit::Pump();
    pie.ValidateRect(nullptr);
}

CRect PieTest::UpdateRect() {
    CRect rect;
    pie.GetUpdateRect(&rect);
    return rect;
}

void PieTest::Click(CPoint point, WPARAM flags) {
    pie.SendMessage(WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
}

CRect PieTest::Client() {
    CRect client;
    pie.GetClientRect(&client);
    return client;
}

CPoint PieTest::At(double angle, double part) {
    const double radians = angle * kavlix::kPi / 180;
    const double radius = pie.m_rcPie.Height() / 2.0 * part;
    return CPoint(static_cast<int>(
                      std::lround((pie.m_rcPie.left + pie.m_rcPie.right) / 2 + std::sin(radians) * radius)),
                  static_cast<int>(
                      std::lround((pie.m_rcPie.top + pie.m_rcPie.bottom) / 2 - std::cos(radians) * radius)));
}

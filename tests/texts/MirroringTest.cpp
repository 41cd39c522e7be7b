// SPDX-License-Identifier: MIT
// Charts in mirrored windows: the picture and the mouse positions are those of an unmirrored window.
#include <kavlix/Kavlix.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "tests/support/DibSurface.h"
#include "tests/support/RecordingParent.h"

using testkit::DibSurface;
using testkit::RecordingParent;

namespace {

const CRect kPlace(0, 0, 320, 240);
constexpr int kMargin = 20;
constexpr UINT kId = 7;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE;

template <class Graph> std::unique_ptr<CWnd> FilledGraph() {
    auto graph = std::make_unique<Graph>();
    for (int i = 0; i < 50; ++i) {
        if constexpr (std::is_same_v<Graph, CScrollGraphCtrl>) {
            graph->AddXTickLabel(1'700'000'000 + i);
            graph->AddData(0, i * i % 31, nullptr);
        } else {
            graph->AddXTickLabel(_T("label"), _T(""));
            graph->AddData(0, i * i % 31, nullptr);
        }
    }
    graph->SetLegend(0, _T("rises"));
    graph->ShowLegend(TRUE);
    return graph;
}

std::unique_ptr<CWnd> FilledPie() {
    auto pie = std::make_unique<CPieChartCtrl>();
    pie->AddPiece(RGB(0, 0, 0), RGB(200, 0, 0), 60, 100, _T("large"));
    pie->AddPiece(RGB(0, 0, 0), RGB(0, 0, 200), 25, 100, _T("small"));
    return pie;
}

std::unique_ptr<CWnd> FilledChart() {
    auto chart = std::make_unique<CChartDraw>();
    const double values[] = {1, 4, 9, 16, 25};
    chart->SetData(chart->AddDataset(), nullptr, values, 5);
    chart->SetTitle(_T("squares"));
    return chart;
}

/// Makes the control's window, or binds the control to a window of another class.
BOOL Show(CWnd& control, CWnd& parent, bool isBound) {
    if (isBound)
        return control.SubclassWindow(
            ::CreateWindow(_T("STATIC"), _T(""), kStyle, 0, 0, kPlace.right, kPlace.bottom, parent.m_hWnd,
                           reinterpret_cast<HMENU>(UINT_PTR{kId}), AfxGetInstanceHandle(), nullptr));
    const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW);
    return control.Create(name, _T(""), kStyle, kPlace, &parent, kId);
}

struct Seen {
    std::shared_ptr<DibSurface> picture = std::make_shared<DibSurface>(kPlace.right, kPlace.bottom);
    std::shared_ptr<DibSurface> printed =
        std::make_shared<DibSurface>(kPlace.right + 2 * kMargin, kPlace.bottom + 2 * kMargin);
    std::vector<std::string> messages; ///< of clicks at three places of the screen
};

/// What a user sees and what the parent hears of clicks, in a parent with the extended style `exStyle`.
Seen Watch(CWnd& control, bool isBound, DWORD exStyle) {
    Seen seen;
    RecordingParent parent;
    EXPECT_TRUE(parent.CreateVisible(kPlace.right, kPlace.bottom)) << "no display";
    parent.ModifyStyleEx(0, exStyle);
    EXPECT_TRUE(Show(control, parent, isBound));
    control.ModifyStyleEx(0, exStyle);
    control.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    testkit::Pump();
    CRect place;
    ::GetWindowRect(control.m_hWnd, &place);
    const HDC screen = ::GetDC(nullptr);
    ::BitBlt(seen.picture->Dc(), 0, 0, kPlace.right, kPlace.bottom, screen, place.left, place.top, SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    ::GdiFlush();
    for (const int x : {90, 160, 250}) {
        POINT at = {place.left + x, place.top + 110};
        ::MapWindowPoints(nullptr, control.m_hWnd, &at, 1);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP})
            control.SendMessage(message, 0, MAKELPARAM(at.x, at.y));
    }
    testkit::Pump();
    seen.messages = parent.Log();
    ::SetLayout(seen.printed->Dc(), exStyle != 0 ? LAYOUT_RTL : 0);
    ::SetViewportOrgEx(seen.printed->Dc(), kMargin, kMargin, nullptr);
    control.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(seen.printed->Dc()), PRF_CLIENT);
    control.DestroyWindow();
    return seen;
}

} // namespace

TEST(Mirroring, ParentsDoNotMirrorTheirCharts) {
    const struct {
        const char* name;
        std::unique_ptr<CWnd> (*make)();
    } kinds[] = {{"graph", FilledGraph<CGraphCtrl>},
                 {"scrolling graph", FilledGraph<CScrollGraphCtrl>},
                 {"pie", FilledPie},
                 {"chart", FilledChart}};
    for (const auto& kind : kinds) {
        for (const bool isBound : {false, true}) {
            SCOPED_TRACE(std::string(kind.name) + (isBound ? ", bound" : ""));
            const Seen plain = Watch(*kind.make(), isBound, 0);
            const Seen mirrored = Watch(*kind.make(), isBound, WS_EX_LAYOUTRTL);
            EXPECT_EQ(Difference(*plain.picture, *mirrored.picture), "");
            EXPECT_EQ(Difference(*plain.printed, *mirrored.printed), "");
            EXPECT_EQ(plain.messages, mirrored.messages);
        }
    }
}

TEST(Mirroring, AGraphOnAMirroredDcIsNotMirrored) {
    RecordingParent parent;
    ASSERT_TRUE(parent.CreateVisible(kPlace.right, kPlace.bottom)) << "no display";
    CGraph graph(GraphTypeBar);
    graph.parentWindow = &parent;
    DibSurface plain(kPlace.right, kPlace.bottom);
    DibSurface mirrored(kPlace.right, kPlace.bottom);
    ::SetLayout(mirrored.Dc(), LAYOUT_RTL);
    graph.DrawGraph(CDC::FromHandle(plain.Dc()));
    graph.DrawGraph(CDC::FromHandle(mirrored.Dc()));
    EXPECT_EQ(Difference(plain, mirrored), "");
    EXPECT_EQ(::GetLayout(mirrored.Dc()), static_cast<DWORD>(LAYOUT_RTL));
}

// SPDX-License-Identifier: MIT
// The scroll bar: where it lies and what it is told.

#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/ImportHook.h"

namespace {

UINT g_fields = 0;
int g_calls = 0;
decltype(&::SetScrollInfo) g_setScrollInfo = nullptr;

int WINAPI NotingSetScrollInfo(HWND window, int bar, const SCROLLINFO* info, BOOL redraw) {
    g_fields = info->fMask;
    ++g_calls;
    return g_setScrollInfo(window, bar, info, redraw);
}

} // namespace

class ScrollBarTest : public ScrollTest {
protected:
    CRect BarRect() {
        CRect rect;
        graph.m_wndScrollBar.GetWindowRect(&rect);
        graph.ScreenToClient(&rect);
        return rect;
    }
};

TEST_F(ScrollBarTest, ItLiesAlongTheBottomEdge) {
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | SBS_TOPALIGN;
    EXPECT_EQ(graph.m_wndScrollBar.GetStyle() & (style | SBS_VERT | SBS_BOTTOMALIGN | WS_DISABLED), style);
    EXPECT_EQ(graph.m_wndScrollBar.GetDlgCtrlID(), 100);
    EXPECT_EQ(graph.m_wndScrollBar.GetParent(), &graph);
    EXPECT_EQ(testkit::Text(BarRect()), "30,185,220,199");

    // It comes to the front with every new size.
    CWnd other;
    ASSERT_TRUE(other.Create("STATIC", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &graph, 5));
    other.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    ASSERT_EQ(graph.GetTopWindow(), &other);
    const struct {
        int width, height;
        const char* bar;
    } sizes[] = {
        {1000, 50, "30,35,920,49"}, {0, 300, "30,35,920,49"},
        {700, 0, "30,35,920,49"},   {640, 480, "30,465,560,479"},
        {110, 40, "30,25,30,39"},   {20, 10, "30,-5,30,9"}, // too narrow for any bar
    };
    for (const auto& size : sizes) {
        Resize(size.width, size.height);
        EXPECT_EQ(testkit::Text(BarRect()), size.bar) << size.width << " x " << size.height;
    }
    EXPECT_EQ(graph.GetTopWindow(), &graph.m_wndScrollBar);
}

TEST_F(ScrollBarTest, EveryFieldIsToldWhenOneDiffers) {
    const testkit::ImportHook hook("KavlixMfc.dll", "SetScrollInfo",
                                   reinterpret_cast<void*>(&NotingSetScrollInfo));
    ASSERT_TRUE(hook.Installed());
    g_setScrollInfo = reinterpret_cast<decltype(&::SetScrollInfo)>(hook.Original());
    graph.m_dScrollMax = 4800;
    graph.m_dScrollPos = 3600;
    graph.UpdateScrollInfo();
    EXPECT_EQ(g_fields, static_cast<UINT>(SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL));

    // The bar is redrawn at every call: none is made for what it holds already.
    Load(2000);
    const struct {
        const char* name;
        int calls;
        std::function<void(OpenScrollGraph&)> act;
    } acts[] = {
        {"another width", 1, [](OpenScrollGraph& g) { g.SetHorzRange(0.5); }},
        {"a view beyond the bar's end", 1,
         [](OpenScrollGraph& g) {
             g.m_dScrollPos = 1e9;
             g.UpdateScrollInfo();
             g.UpdateScrollInfo();
         }},
        {"an instant", 0,
         [](OpenScrollGraph& g) {
             g.AddXTickLabel(kSomeTime + 2000);
             for (int i = 0; i < CGraphCtrl::DatasetCount; ++i)
                 g.AddData(i, 1, nullptr);
         }},
        {"half of the samples", 1, [](OpenScrollGraph& g) { g.RemoveHeadData(1000); }},
    };
    for (const auto& each : acts) {
        g_calls = 0;
        each.act(graph);
        EXPECT_EQ(g_calls, each.calls) << each.name;
    }
}

TEST_F(ScrollBarTest, PaintingLeavesItInFront) {
    CWnd other;
    ASSERT_TRUE(other.Create("STATIC", "", WS_CHILD, CRect(0, 0, 5, 5), &graph, 5));
    other.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    const CRect before = BarRect();
    graph.InvalidateRect(CRect(100, 20, 120, 40), FALSE);
    ::ValidateRect(graph.m_wndScrollBar.m_hWnd, nullptr);
    graph.SendMessage(WM_PAINT);
    EXPECT_EQ(testkit::Text(BarUpdateRect()), "0,0,190,14");
    EXPECT_EQ(graph.GetTopWindow(), &graph.m_wndScrollBar);
    EXPECT_EQ(testkit::Text(BarRect()), testkit::Text(before));
    testkit::Pump();
    EXPECT_EQ(testkit::Text(UpdateRect()) + " " + testkit::Text(BarUpdateRect()), "0,0,0,0 0,0,0,0");
}

TEST_F(ScrollBarTest, AWindowThatWasBoundHasNoBar) {
    const HWND item =
        ::CreateWindowEx(0, "MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, parent.m_hWnd,
                         reinterpret_cast<HMENU>(5), ::GetModuleHandle(nullptr), nullptr);
    ASSERT_NE(item, nullptr);
    {
        OpenScrollGraph bound;
        ASSERT_TRUE(bound.SubclassWindow(item));
        EXPECT_EQ(bound.m_wndScrollBar.m_hWnd, nullptr);
        for (int i = 0; i < 100; ++i) {
            bound.AddXTickLabel(kSomeTime + i);
            bound.AddData(0, i, nullptr);
        }
        EXPECT_EQ(bound.m_dScrollPos, 900);
        bound.SetHorzRange(0.5);
        bound.SetWindowPos(nullptr, 0, 0, 320, 220, SWP_NOZORDER);
        bound.UpdateWindow();
        EXPECT_EQ(bound.m_nDrawLast, 99);
        bound.SendMessage(WM_HSCROLL, SB_LINELEFT, 0);
        bound.ProcessMouseWheel(120);
        bound.RemoveHeadData(50);
        testkit::Pump();
        EXPECT_EQ(bound.m_dScrollPos, 49 * 20 - 540);
    }
    EXPECT_FALSE(::IsWindow(item));
}

// SPDX-License-Identifier: MIT
// How pictures reach the screen: off-screen, in parts, without a bitmap.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/ImportHook.h"
#include "tests/support/SeenUnderWine.h"

namespace {

int g_copies = 0;
void* g_bitBlt = nullptr;

BOOL WINAPI CountedBitBlt(HDC to, int x, int y, int width, int height, HDC from, int from_x, int from_y,
                          DWORD rop) {
    ++g_copies;
    return reinterpret_cast<decltype(&::BitBlt)>(g_bitBlt)(to, x, y, width, height, from, from_x, from_y,
                                                           rop);
}

HBITMAP WINAPI NoBitmap(HDC, int, int) {
    return nullptr;
}
HBITMAP WINAPI NoSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD) {
    return nullptr;
}

class GraphPaintFrameTest : public GraphTest {
protected:
    /// A picture with something of everything.
    void Fill() {
        FixX(0, 19);
        for (int i = 0; i < 20; ++i) {
            Add(0, {5.0 * i});
            Add(1, {100.0 - 3 * i});
            graph.AddXTickLabel(("label " + std::to_string(i)).c_str(), i % 2 ? "down" : "");
        }
        graph.SetLegend(0, "zero");
        graph.SetLegend(1, "one");
        graph.SetMarkerType(0, CDataset::MarkerSquare);
        graph.SetMarkerType(1, CDataset::MarkerDiamond);
        graph.SetLineSize(1, 60);
        graph.SetGrid(TRUE, TRUE);
        graph.SetSelectionMarkPos(7);
        graph.SetYUnit("unit", 0, 1);
    }
};

} // namespace

TEST_F(GraphPaintFrameTest, RedrawRepaintsTheClientWithoutErasing) {
    graph.Redraw();
    EXPECT_EQ(Text(UpdateRect()), "0,0,300,200");
    graph.erased = 0;
    graph.UpdateWindow();
    EXPECT_EQ(graph.erased, 0);
}

TEST_F(GraphPaintFrameTest, ThePictureIsComposedElsewhereAndCopiedOnce) {
    Fill();
    const testkit::ImportHook hook("KavlixMfc.dll", "BitBlt", reinterpret_cast<void*>(&CountedBitBlt));
    ASSERT_TRUE(hook.Installed());
    g_bitBlt = hook.Original();
    for (int i = 1; i <= 3; ++i) {
        graph.Redraw();
        graph.UpdateWindow();
        EXPECT_EQ(g_copies, i);
    }
}

TEST_F(GraphPaintFrameTest, APaintWithoutABitmapLeavesTheSamePixels) {
    constexpr COLORREF kOldInk = RGB(255, 0, 255);
    HideTexts();
    Fill();
    for (const bool beyond : {false, true}) {
        // Plot and legend that reach beyond the control.
        graph.SetLegendWidth(beyond ? -5000 : 3000);
        graph.SetXTickLabelHeight(beyond ? -5000 : 1500);
        graph.ShowLegend(TRUE);
        std::unique_ptr<testkit::DibSurface> shown[2];
        for (const bool direct : {false, true}) {
            const testkit::ImportHook bitmap("Kavlix.dll", direct ? "CreateCompatibleBitmap" : "nothing",
                                             reinterpret_cast<void*>(&NoBitmap));
            const testkit::ImportHook section("Kavlix.dll", direct ? "CreateDIBSection" : "nothing",
                                              reinterpret_cast<void*>(&NoSection));
            Resize(301, 200);
            graph.Redraw();
            graph.UpdateWindow();
            Resize(300, 200); // so that a bitmap is asked for
            const HDC dc = ::GetDC(graph.m_hWnd);
            const HBRUSH ink = ::CreateSolidBrush(kOldInk);
            const RECT all = {0, 0, 300, 200};
            ::FillRect(dc, &all, ink);
            ::DeleteObject(ink);
            ::ReleaseDC(graph.m_hWnd, dc);
            graph.Redraw();
            graph.UpdateWindow();
            shown[direct] = std::make_unique<testkit::DibSurface>(300, 200);
            shown[direct]->Grab(graph.m_hWnd);
            EXPECT_EQ(shown[direct]->Count(kOldInk), 300 + 199);
        }
        ONLY_SEEN_UNDER_WINE(EXPECT_EQ(testkit::Difference(*shown[0], *shown[1]), "")); // GDI's strokes
    }
}

TEST_F(GraphPaintFrameTest, PartialRepaintChangesOnlyWhatIsInvalid) {
    HideTexts();
    Fill();
    graph.Redraw();
    graph.UpdateWindow();
    Add(0, {100, 7});
    graph.SetYVisibleMax(90);
    graph.RedrawData();
    graph.UpdateWindow();
    testkit::DibSurface before(300, 200), after(300, 200);
    before.Grab(graph.m_hWnd);
    EXPECT_EQ(testkit::Difference(*Paint(), before, CRect(0, 0, 299, 199)), "");
    graph.SetColor(0, RGB(0, 0, 1));
    const CRect stripe(100, 40, 120, 120);
    graph.InvalidateRect(stripe, FALSE);
    graph.UpdateWindow();
    after.Grab(graph.m_hWnd);
    EXPECT_EQ(testkit::Difference(*Paint(), after, stripe), "");
    EXPECT_EQ(testkit::Difference(before, after, CRect(0, 0, 100, 199)), "");
    EXPECT_EQ(testkit::Difference(before, after, CRect(120, 0, 299, 199)), "");
}

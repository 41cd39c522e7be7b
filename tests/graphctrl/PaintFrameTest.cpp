#include "tests/graphctrl/GraphTest.h"
#include "tests/support/ImportHook.h"

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

    /// What the window shows, without the last column and row, which the copy to the screen leaves out.
    std::string DifferenceToWindow(const testkit::DibSurface& picture) {
        testkit::DibSurface shown(picture.Width(), picture.Height());
        shown.Grab(graph.m_hWnd);
        return testkit::Difference(picture, shown, {0, 0, picture.Width() - 1, picture.Height() - 1});
    }
};

TEST_F(GraphPaintFrameTest, BackgroundAndBorder) {
    graph.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(Record()->Lines(testkit::kRectangle)[0], "rect 0,0,9000,6000 pen null brush 010203");
    graph.ShowBorder(TRUE);
    EXPECT_EQ(Record()->Lines(testkit::kRectangle)[0], "rect 0,0,8970,5970 pen solid 0 000000 brush 010203");
    const auto picture = Paint();
    for (const POINT corner : {POINT{0, 0}, POINT{298, 0}, POINT{0, 198}, POINT{298, 198}})
        EXPECT_EQ(picture->At(corner.x, corner.y), RGB(0, 0, 0)) << corner.x << "," << corner.y;
    EXPECT_EQ(picture->At(1, 1), RGB(1, 2, 3));
}

TEST_F(GraphPaintFrameTest, EveryObjectIsDeletedAndTheDcIsLeftAsItWas) {
    Fill();
    for (int style = 0; style < 4; ++style) {
        for (const bool caption : {false, true}) {
            SCOPED_TRACE(std::to_string(style) + (caption ? " caption" : " text"));
            graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
            graph.SetTitleStyle(caption ? CGraphCtrl::TitleStyleCaption : CGraphCtrl::TitleStyleText);
            graph.ShowIconMaximize(caption, style == 1);
            graph.ShowLegend(TRUE);
            const auto picture = Record();
            EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
            const testkit::MetafileState start;
            EXPECT_EQ(picture->FinalState().pen, start.pen);
            EXPECT_EQ(picture->FinalState().brush, start.brush);
            EXPECT_EQ(picture->FinalState().font, start.font);
            EXPECT_EQ(picture->LinesFrom("other"), Strings());

            testkit::DibSurface surface(300, 200);
            const HPEN pen = ::CreatePen(PS_SOLID, 5, RGB(7, 7, 7));
            const HGDIOBJ old_pen = ::SelectObject(surface.Dc(), pen);
            const HGDIOBJ font = ::GetCurrentObject(surface.Dc(), OBJ_FONT);
            const HGDIOBJ brush = ::GetCurrentObject(surface.Dc(), OBJ_BRUSH);
            PaintInto(surface.Dc());
            EXPECT_EQ(::GetCurrentObject(surface.Dc(), OBJ_PEN), pen);
            EXPECT_EQ(::GetCurrentObject(surface.Dc(), OBJ_BRUSH), brush);
            EXPECT_EQ(::GetCurrentObject(surface.Dc(), OBJ_FONT), font);
            const HRGN clip = ::CreateRectRgn(0, 0, 0, 0);
            EXPECT_EQ(::GetClipRgn(surface.Dc(), clip), 0) << "no clip region remains";
            ::DeleteObject(clip);
            ::SelectObject(surface.Dc(), old_pen);
            EXPECT_TRUE(::DeleteObject(pen));
        }
    }
}

TEST_F(GraphPaintFrameTest, AnAttributeDcAnswersWhatTheOutputDraws) {
    Fill();
    graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    graph.ShowIconMaximize(TRUE, FALSE);
    const Strings expected = Record()->ClippedLines(testkit::kDrawing);
    for (const bool paired : {true, false}) {
        SCOPED_TRACE(paired ? "another DC answers" : "no DC is named");
        testkit::MetafileRecorder output;
        testkit::DibSurface answers(1, 1);
        const HGDIOBJ font = ::GetCurrentObject(answers.Dc(), OBJ_FONT);
        CDC dc;
        dc.Attach(output.Dc());
        dc.SetAttribDC(paired ? answers.Dc() : nullptr);
        graph.SetMapModeAnisotropic(dc);
        graph.DrawGraph(dc);
        EXPECT_EQ(dc.m_hAttribDC, paired ? answers.Dc() : nullptr);
        dc.Detach();
        output.Close();
        EXPECT_EQ(output.ClippedLines(testkit::kDrawing), expected);
        EXPECT_EQ(output.ObjectFaults(kControlFonts), "");
        EXPECT_EQ(::GetCurrentObject(answers.Dc(), OBJ_FONT), font);
    }
}

TEST_F(GraphPaintFrameTest, RedrawInvalidatesTheClientAndRedrawDataTheDataRegion) {
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");
    graph.Redraw();
    EXPECT_EQ(Text(UpdateRect()), "0,0,300,200");
    Settle();
    graph.RedrawData();
    // (600, 500)-(6500, 5400) in units; (20, 17)-(217, 180) in pixels, one more at right and bottom.
    EXPECT_EQ(Text(UpdateRect()), "20,17,218,181");
    Settle();
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    graph.RedrawData();
    EXPECT_EQ(Text(UpdateRect()), "20,17,218,181") << "the region of the last paint";
    Record();
    Settle();
    graph.RedrawData();
    EXPECT_EQ(Text(UpdateRect()), "20,17,258,181");
    graph.erased = 0;
    graph.UpdateWindow();
    graph.Redraw();
    graph.UpdateWindow();
    EXPECT_EQ(graph.erased, 0) << "the control never asks to be erased";
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0") << "painting validates";
    testkit::Pump();
    EXPECT_EQ(parent.Log(), Strings());
}

TEST_F(GraphPaintFrameTest, WithoutAWindowNothingFails) {
    OpenGraph windowless;
    EXPECT_TRUE(windowless.AddData(0, 1, nullptr));
    windowless.Redraw();
    windowless.RedrawData();
    windowless.RemoveHeadData(1);
    EXPECT_EQ(windowless.GetDatasetSize(0), 0);
}

TEST_F(GraphPaintFrameTest, WindowShowsWhatDrawGraphDraws) {
    HideTexts();
    Fill();
    for (int style = 0; style < 3; ++style) {
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
        graph.Redraw();
        graph.UpdateWindow();
        const auto drawn = Paint();
        EXPECT_EQ(DifferenceToWindow(*drawn), "") << "style " << style;
        EXPECT_GT(drawn->Count(graph.m_Datasets[0].m_Color), 50);
    }
}

namespace {

int g_copies = 0;
void* g_bitBlt = nullptr;

BOOL WINAPI CountedBitBlt(HDC to, int x, int y, int width, int height, HDC from, int from_x, int from_y,
                          DWORD rop) {
    ++g_copies;
    return reinterpret_cast<decltype(&::BitBlt)>(g_bitBlt)(to, x, y, width, height, from, from_x, from_y,
                                                           rop);
}

/// Paints itself once more in the middle of a paint.
class RepaintingGraph : public CGraphCtrl {
    void DrawGraphData(CDC& dc) override {
        if (!m_isInside) {
            m_isInside = true;
            Invalidate(FALSE);
            UpdateWindow();
            m_isInside = false;
        }
        CGraphCtrl::DrawGraphData(dc);
    }
    bool m_isInside = false;
};

} // namespace

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
    RepaintingGraph twice;
    ASSERT_TRUE(twice.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 150), &parent, 9));
    g_copies = 0;
    twice.Redraw();
    twice.UpdateWindow();
    EXPECT_EQ(g_copies, 2);
    twice.DestroyWindow();
}

namespace {

HBITMAP WINAPI NoBitmap(HDC, int, int) {
    return nullptr;
}
HBITMAP WINAPI NoSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD) {
    return nullptr;
}

} // namespace

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
            EXPECT_EQ(shown[direct]->Count(kOldInk), 300 + 199) << "the last row and column are not painted";
        }
        EXPECT_EQ(testkit::Difference(*shown[0], *shown[1]), "");
    }
}

TEST_F(GraphPaintFrameTest, PartialRepaintEqualsWholeRepaint) {
    HideTexts();
    Fill();
    graph.Redraw();
    graph.UpdateWindow();
    for (int round = 0; round < 10; ++round) {
        Add(0, {100.0 - 7 * round});
        graph.SetYVisibleMax(100 - round);
        graph.SetSelectionMarkPos(round);
        graph.RedrawData();
        graph.UpdateWindow();
        EXPECT_EQ(DifferenceToWindow(*Paint()), "") << "round " << round;
    }
    // A stripe only: what lies outside keeps its pixels, what lies inside is new.
    graph.SetColor(0, RGB(0, 0, 1));
    const CRect stripe(100, 40, 120, 120);
    testkit::DibSurface before(300, 200);
    before.Grab(graph.m_hWnd);
    graph.InvalidateRect(stripe, FALSE);
    graph.UpdateWindow();
    testkit::DibSurface after(300, 200);
    after.Grab(graph.m_hWnd);
    EXPECT_EQ(testkit::Difference(*Paint(), after, stripe), "");
    EXPECT_EQ(testkit::Difference(before, after, CRect(0, 0, 100, 199)), "");
    EXPECT_EQ(testkit::Difference(before, after, CRect(120, 0, 299, 199)), "");
}

TEST_F(GraphPaintFrameTest, ThePictureFollowsTheWindowsSize) {
    HideTexts();
    Fill();
    for (const SIZE& size : {SIZE{500, 320}, SIZE{500, 321}, SIZE{200, 321}, SIZE{300, 200}}) {
        Resize(size.cx, size.cy);
        graph.Redraw();
        graph.UpdateWindow();
        EXPECT_EQ(DifferenceToWindow(*Paint()), "") << size.cx << " x " << size.cy;
    }
}

TEST_F(GraphPaintFrameTest, PrintClientPaintsTheSamePictureIntoAnyDc) {
    HideTexts();
    Fill();
    graph.Redraw();
    graph.UpdateWindow();
    testkit::DibSurface printed(300, 200);
    graph.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.Dc()), PRF_CLIENT);
    EXPECT_EQ(DifferenceToWindow(printed), "");
    EXPECT_EQ(::GetMapMode(printed.Dc()), MM_TEXT) << "the caller's DC keeps its mapping";

    // A DC whose origin was moved, as a parent prints its children.
    testkit::DibSurface moved(340, 230);
    ::SetViewportOrgEx(moved.Dc(), 40, 30, nullptr);
    graph.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(moved.Dc()), PRF_CLIENT);
    ::SetViewportOrgEx(moved.Dc(), 0, 0, nullptr);
    testkit::DibSurface back(300, 200);
    ::BitBlt(back.Dc(), 0, 0, 300, 200, moved.Dc(), 40, 30, SRCCOPY);
    EXPECT_EQ(testkit::Difference(printed, back, CRect(0, 0, 299, 199)), "");
}

TEST_F(GraphPaintFrameTest, MetafileReplaysToTheSamePicture) {
    HideTexts();
    Fill();
    // A frame of half the screen is a whole number of hundredths of a millimetre, so nothing is scaled.
    const HDC screen = ::GetDC(nullptr);
    const int width = ::GetDeviceCaps(screen, HORZRES) / 2, height = ::GetDeviceCaps(screen, VERTRES) / 2;
    const RECT frame = {0, 0, ::GetDeviceCaps(screen, HORZSIZE) * 50, ::GetDeviceCaps(screen, VERTSIZE) * 50};
    ::ReleaseDC(nullptr, screen);
    Resize(width, height);
    testkit::MetafileRecorder recorder(&frame);
    PaintInto(recorder.Dc());
    recorder.Close();
    testkit::DibSurface replayed(width, height);
    const RECT area = {0, 0, width, height};
    ASSERT_TRUE(::PlayEnhMetaFile(replayed.Dc(), recorder.Handle(), &area));
    // The replay computes positions in another arithmetic: what lies half-way between two pixels may go
    // either way.
    EXPECT_EQ(testkit::Displaced(*Paint(), replayed, CRect(0, 0, width - 1, height - 1), 1), 0);
    EXPECT_GT(replayed.Count(graph.m_Datasets[0].m_Color), 100);
}

#include "tests/graphctrl/GraphTest.h"

#include <algorithm>
#include <functional>

namespace {

struct Layout {
    const char* name;
    std::function<void(OpenGraph&)> set;
    const char *title, *yTicks, *yAxis, *y2Ticks, *y2Axis, *xTicks, *xAxis, *plot, *legend;
    int xTickCount;
};

void TwoAxes(OpenGraph& g) {
    g.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
}

// A control of 300 x 200 pixels: client 9000 x 6000 units, label unit 400.
const Layout kLayouts[] = {
    {"defaults", [](OpenGraph&) {}, "200,200,8800,1100", "600,1100,2100,3800", "2100,1100,2200,3800",
     "8800,1100,8800,3800", "8800,1100,8800,3800", "2200,3900,5600,5400", "2200,3800,5600,3900",
     "2230,1100,5600,3800", "5800,1100,8800,5400", 4},
    {"bars", [](OpenGraph& g) { g.SetGraphStyle(CGraphCtrl::GraphStyleBar); }, "200,200,8800,1100",
     "600,1100,2100,3800", "2100,1100,2200,3800", "8800,1100,8800,3800", "8800,1100,8800,3800",
     "2200,3900,5600,5400", "2200,3800,5600,3900", "2230,1100,5600,3800", "5800,1100,8800,5400", 3},
    {"another style counts its ticks as bars",
     [](OpenGraph& g) { g.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(7)); }, "200,200,8800,1100",
     "600,1100,2100,3800", "2100,1100,2200,3800", "8800,1100,8800,3800", "8800,1100,8800,3800",
     "2200,3900,5600,5400", "2200,3800,5600,3900", "2230,1100,5600,3800", "5800,1100,8800,5400", 3},
    {"no X label", [](OpenGraph& g) { g.ShowXLabel(FALSE); }, "200,200,8800,1100", "600,1100,2100,4200",
     "2100,1100,2200,4200", "8800,1100,8800,4200", "8800,1100,8800,4200", "2200,4300,5600,5800",
     "2200,4200,5600,4300", "2230,1100,5600,4200", "5800,1100,8800,5800", 4},
    {"no Y label", [](OpenGraph& g) { g.ShowYLabel(FALSE); }, "200,200,8800,1100", "200,1100,1700,3800",
     "1700,1100,1800,3800", "8800,1100,8800,3800", "8800,1100,8800,3800", "1800,3900,5600,5400",
     "1800,3800,5600,3900", "1830,1100,5600,3800", "5800,1100,8800,5400", 4},
    {"no legend", [](OpenGraph& g) { g.ShowLegend(FALSE); }, "200,200,8800,1100", "600,1100,2100,3800",
     "2100,1100,2200,3800", "8800,1100,8800,3800", "8800,1100,8800,3800", "2200,3900,8800,5400",
     "2200,3800,8800,3900", "2230,1100,8800,3800", "5800,1100,8800,5400", 8},
    {"no legend board", [](OpenGraph& g) { g.ShowLegendBoard(FALSE); }, "200,200,8800,1100",
     "600,1100,2100,3800", "2100,1100,2200,3800", "8800,1100,8800,3800", "8800,1100,8800,3800",
     "2200,3900,5600,5400", "2200,3800,5600,3900", "2230,1100,5600,3800", "5800,1100,8800,5400", 4},
    {"narrow legend", [](OpenGraph& g) { g.SetLegendWidth(1000); }, "200,200,8800,1100", "600,1100,2100,3800",
     "2100,1100,2200,3800", "8800,1100,8800,3800", "8800,1100,8800,3800", "2200,3900,7600,5400",
     "2200,3800,7600,3900", "2230,1100,7600,3800", "7800,1100,8800,5400", 6},
    {"low X labels", [](OpenGraph& g) { g.SetXTickLabelHeight(600); }, "200,200,8800,1100",
     "600,1100,2100,4700", "2100,1100,2200,4700", "8800,1100,8800,4700", "8800,1100,8800,4700",
     "2200,4800,5600,5400", "2200,4700,5600,4800", "2230,1100,5600,4700", "5800,1100,8800,5400", 4},
    {"narrow Y labels", [](OpenGraph& g) { g.SetYTickLabelWidth(900); }, "200,200,8800,1100",
     "600,1100,1500,3800", "1500,1100,1600,3800", "8800,1100,8800,3800", "8800,1100,8800,3800",
     "1600,3900,5600,5400", "1600,3800,5600,3900", "1630,1100,5600,3800", "5800,1100,8800,5400", 4},
    {"Y2 switches mean nothing in the line style",
     [](OpenGraph& g) {
         g.ShowY2Label(FALSE);
         g.SetY2TickLabelWidth(900);
     },
     "200,200,8800,1100", "600,1100,2100,3800", "2100,1100,2200,3800", "8800,1100,8800,3800",
     "8800,1100,8800,3800", "2200,3900,5600,5400", "2200,3800,5600,3900", "2230,1100,5600,3800",
     "5800,1100,8800,5400", 4},
    {"two axes", TwoAxes, "200,200,8800,1100", "600,1100,2100,3800", "2100,1100,2200,3800",
     "6900,1100,8400,3800", "6800,1100,6900,3800", "2200,3900,6800,5400", "2200,3800,6800,3900",
     "2230,1100,6800,3800", "5800,1100,8800,5400", 5},
    {"two axes without Y2 label",
     [](OpenGraph& g) {
         TwoAxes(g);
         g.ShowY2Label(FALSE);
     },
     "200,200,8800,1100", "600,1100,2100,3800", "2100,1100,2200,3800", "7300,1100,8800,3800",
     "7200,1100,7300,3800", "2200,3900,7200,5400", "2200,3800,7200,3900", "2230,1100,7200,3800",
     "5800,1100,8800,5400", 6},
    {"two axes, narrow Y2 labels",
     [](OpenGraph& g) {
         TwoAxes(g);
         g.SetY2TickLabelWidth(900);
     },
     "200,200,8800,1100", "600,1100,2100,3800", "2100,1100,2200,3800", "7500,1100,8400,3800",
     "7400,1100,7500,3800", "2200,3900,7400,5400", "2200,3800,7400,3900", "2230,1100,7400,3800",
     "5800,1100,8800,5400", 6},
    {"border", [](OpenGraph& g) { g.ShowBorder(TRUE); }, "200,200,8800,1100", "600,1100,2100,3800",
     "2100,1100,2200,3800", "8800,1100,8800,3800", "8800,1100,8800,3800", "2200,3900,5600,5400",
     "2200,3800,5600,3900", "2230,1100,5600,3800", "5800,1100,8800,5400", 4},
};

/// Full height in logical units of the caption's font, as the platform measures it.
int CaptionTextHeight(int logical_font_height, const char* face) {
    testkit::DibSurface surface(1, 1);
    ::SetMapMode(surface.Dc(), MM_ANISOTROPIC);
    ::SetWindowExtEx(surface.Dc(), 15000, 15000, nullptr);
    ::SetViewportExtEx(surface.Dc(), 500, 500, nullptr);
    LOGFONT description = {};
    description.lfHeight = logical_font_height;
    description.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(description.lfFaceName, face, LF_FACESIZE);
    const HFONT font = ::CreateFontIndirect(&description);
    const HGDIOBJ old = ::SelectObject(surface.Dc(), font);
    SIZE size = {};
    ::GetTextExtentPoint32(surface.Dc(), "Gg", 2, &size);
    ::SelectObject(surface.Dc(), old);
    ::DeleteObject(font);
    return size.cy;
}

/// Pixels of a font of that many points on this screen.
int PointsToPixels(int tenths_of_a_point) {
    const HDC screen = ::GetDC(nullptr);
    const int height = ::MulDiv(tenths_of_a_point, ::GetDeviceCaps(screen, LOGPIXELSY), 720);
    ::ReleaseDC(nullptr, screen);
    return height;
}

} // namespace

class GraphLayoutTest : public GraphTest {};

TEST_F(GraphLayoutTest, RectanglesToTheUnit) {
    for (const Layout& each : kLayouts) {
        SCOPED_TRACE(each.name);
        OpenGraph g;
        ASSERT_TRUE(g.Create("MFCGraphCtrl", "", WS_CHILD, CRect(0, 0, 300, 200), &parent, 5));
        each.set(g);
        testkit::MetafileRecorder recorder;
        CDC dc;
        dc.Attach(recorder.Dc());
        g.SetMapModeAnisotropic(dc);
        g.DrawGraph(dc);
        dc.Detach();
        EXPECT_EQ(Text(g.m_rectTitle), each.title);
        EXPECT_EQ(Text(g.m_rectYTickLabel), each.yTicks);
        EXPECT_EQ(Text(g.m_rectYAxis), each.yAxis);
        EXPECT_EQ(Text(g.m_rectY2TickLabel), each.y2Ticks);
        EXPECT_EQ(Text(g.m_rectY2Axis), each.y2Axis);
        EXPECT_EQ(Text(g.m_rectXTickLabel), each.xTicks);
        EXPECT_EQ(Text(g.m_rectXAxis), each.xAxis);
        EXPECT_EQ(Text(g.m_rectPlot), each.plot);
        EXPECT_EQ(Text(g.m_rectLegend), each.legend);
        EXPECT_EQ(Text(g.m_rectClient), "0,0,300,200");
        EXPECT_EQ(Text(g.m_rectClientInner), "0,0,299,199");
        EXPECT_EQ(g.calls, (Strings{"xaxis " + std::to_string(each.xTickCount), "data"}));
        EXPECT_EQ(g.GetTitleTextHeight(), 400);
    }
}

TEST_F(GraphLayoutTest, LabelUnitFollowsTheHeight) {
    const struct {
        int pixels, unit;
    } heights[] = {{300, 600}, {299, 598}, {1, 2}, {7, 14}, {0, 0}, {1000, 2000}};
    for (const auto& each : heights) {
        Resize(120, each.pixels);
        EXPECT_EQ(graph.GetTitleTextHeight(), each.unit) << each.pixels;
        Record();
        EXPECT_EQ(graph.m_rectTitle.Height(), each.unit + 500) << each.pixels;
    }
}

TEST_F(GraphLayoutTest, CaptionBand) {
    graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    graph.SetTitle("not shown");
    const int points = PointsToPixels(2400);
    const int height = CaptionTextHeight(-points, "Tahoma");
    const std::string font = "Tahoma -" + std::to_string(points);
    for (const bool border : {false, true}) {
        graph.ShowBorder(border);
        const auto picture = Record();
        const int right = border ? 8970 : 9000;
        EXPECT_EQ(Text(graph.m_rectCaption), Text(CRect(0, 0, right, height + 120)));
        EXPECT_EQ(Text(graph.m_rectTitle), Text(CRect(200, 200, 8800, height + 120 + 400)));
        EXPECT_EQ(graph.m_rectPlot.top, height + 520);
        const std::string pen = border ? "solid 0 000000" : "null";
        EXPECT_EQ(picture->LinesFrom("rect " + Text(graph.m_rectCaption)),
                  Strings{"rect " + Text(graph.m_rectCaption) + " pen " + pen + " brush 808096"});
        const std::string title =
            "text " + std::to_string(right / 2) + ",0 center|top FFFFFF " + font + " \"window text\"";
        EXPECT_EQ(picture->LinesFrom("text " + std::to_string(right / 2) + ",0 "), Strings{title});
        EXPECT_EQ(picture->Texts().front(), "window text") << "and no other title";
    }
}

TEST_F(GraphLayoutTest, CaptionFontAndMaximizeIcon) {
    graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    graph.SetCaptionFont(200, "Arial");
    graph.SetCaptionColor(RGB(1, 2, 3));
    graph.ShowIconMaximize(TRUE, FALSE);
    auto picture = Record();
    const int points = PointsToPixels(6000);
    EXPECT_NE(picture->Lines(testkit::kText)[0].find(" Arial -" + std::to_string(points) + " "),
              std::string::npos)
        << picture->Lines(testkit::kText)[0];
    const int bottom = CaptionTextHeight(-points, "Arial") + 120;
    EXPECT_EQ(graph.m_rectCaption.bottom, bottom);
    const CRect icon(8950 - (bottom - 70 - 50) - 50, 50, 8950, bottom - 70);
    ASSERT_EQ(Text(graph.m_rectIconMaximize), Text(icon));

    const int l = icon.left, t = icon.top, r = icon.right, b = icon.bottom;
    const auto glyph = [&](const std::vector<std::pair<CRect, std::string>>& boxes) {
        Strings lines{"rect " + Text(icon) + " pen null brush FFFFFF"};
        for (const auto& box : boxes)
            lines.push_back("rect " + Text(box.first) + " pen solid 0 010203 brush " + box.second);
        return lines;
    };
    const auto drawn = [&] {
        const auto records = Record();
        Strings all = records->LinesFrom("rect ");
        const auto begin = std::find(all.begin(), all.end(), glyph({})[0]);
        EXPECT_NE(begin, all.end()) << "the icon's white box is missing";
        const auto end = std::find_if(begin, all.end(), [](const std::string& line) {
            return line.find("brush D7E8F1") != std::string::npos ||
                   line.find("brush C0C0C0") != std::string::npos;
        });
        return Strings(begin, end);
    };
    EXPECT_EQ(drawn(), glyph({{CRect(l + 30, t + 30, r - 60, t + 60), "010203"},
                              {CRect(l + 30, t + 60, r - 60, b - 60), "FFFFFF"}}));
    graph.m_IconMaximizePressed = TRUE;
    EXPECT_EQ(drawn(), glyph({{CRect(l + 60, t + 60, r - 30, t + 90), "010203"},
                              {CRect(l + 60, t + 90, r - 30, b - 30), "FFFFFF"}}))
        << "pressed, everything moves by a pixel";
    graph.m_IconMaximizePressed = FALSE;
    graph.ShowIconMaximize(TRUE, TRUE);
    EXPECT_EQ(drawn(), glyph({{CRect(l + 90, t + 30, r - 60, t + 60), "010203"},
                              {CRect(l + 90, t + 60, r - 60, b - 150), "FFFFFF"},
                              {CRect(l + 30, t + 120, r - 120, t + 150), "010203"},
                              {CRect(l + 30, t + 150, r - 120, b - 60), "FFFFFF"}}));
    // A repaint of an icon that is not shown any more, as a move of the mouse asks for.
    graph.ShowIconMaximize(FALSE, TRUE);
    Record();
    testkit::MetafileRecorder none;
    CDC dc;
    dc.Attach(none.Dc());
    graph.DrawIconMaximize(dc);
    dc.Detach();
    none.Close();
    EXPECT_EQ(none.Lines(testkit::kDrawing), Strings());
}

TEST_F(GraphLayoutTest, SmallestPlotAndLegend) {
    // The default plot is 4200 - (height of the X labels) high and 6370 - (width of the legend) wide.
    const struct {
        int label_height, legend_width;
        bool axes, data;
    } plots[] = {{4149, 3000, true, true},   {4150, 3000, false, false}, {1500, 6319, true, true},
                 {1500, 6320, false, false}, {9000, 3000, false, false}, {1500, 20000, false, false}};
    for (const auto& each : plots) {
        graph.SetXTickLabelHeight(each.label_height);
        graph.SetLegendWidth(each.legend_width);
        graph.calls.clear();
        const auto picture = Record();
        Strings expected;
        if (each.axes)
            expected.push_back("xaxis " + std::to_string(graph.m_rectPlot.Width() / 800));
        if (each.data)
            expected.push_back("data");
        EXPECT_EQ(graph.calls, expected) << each.label_height << " " << each.legend_width;
        EXPECT_EQ(picture->Strokes("solid 0 B9DDC1").empty(), !each.axes);
    }
    graph.SetXTickLabelHeight(1500);
    graph.SetLegend(0, "row");
    for (const int width : {51, 50, 0, -500}) {
        graph.SetLegendWidth(width);
        const auto texts = Record()->Texts();
        EXPECT_EQ(std::count(texts.begin(), texts.end(), "row"), width >= 51 ? 1 : 0) << width;
    }
}

TEST_F(GraphLayoutTest, TinyAndHugeWindows) {
    const SIZE sizes[] = {{0, 0}, {1, 1},   {2, 2},     {1, 200},  {300, 1},
                          {5, 5}, {60, 60}, {8000, 30}, {30, 8000}};
    for (const bool caption : {false, true}) {
        graph.SetTitleStyle(caption ? CGraphCtrl::TitleStyleCaption : CGraphCtrl::TitleStyleText);
        graph.ShowIconMaximize(caption, caption);
        graph.ShowBorder(caption);
        for (int style = 0; style < 3; ++style) {
            graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
            graph.ResetData(0);
            Add(0, {1, 2, 3});
            for (const SIZE& size : sizes) {
                SCOPED_TRACE(std::to_string(size.cx) + " x " + std::to_string(size.cy));
                Resize(size.cx, size.cy);
                graph.Redraw();
                graph.UpdateWindow();
                const auto picture = Record();
                EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
                EXPECT_EQ(Text(graph.m_rectClient), Text(CRect(0, 0, size.cx, size.cy)));
            }
        }
    }
}

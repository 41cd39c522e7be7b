// SPDX-License-Identifier: MIT
// Pictures, layout and hits of random controls, compared with the literal painter's.

#include "tests/graphctrl/InputTest.h"
#include "tests/graphctrl/PlainGraph.h"
#include "tests/support/Numbers.h"
#include "tests/support/SeenUnderWine.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

class GraphPictureTest : public GraphInputTest {
protected:
    int Length(int usual, int most) {
        return numbers.OneIn(8) ? numbers.Below(4 * most) - most : usual / 2 + numbers.Below(usual);
    }
    double End() {
        const double odd[] = {NAN, INFINITY, -INFINITY, 1e308, -1e308, 5e-324};
        return numbers.OneIn(60) ? odd[numbers.Below(6)]
                                 : (numbers.Below(4000) - 1500) / (numbers.OneIn(2) ? 10.0 : 8.0);
    }
    COLORREF Colour() { return numbers.Next() & 0xFFFFFF; }
    BOOL Flag() { return numbers.OneIn(2); }
    CString Word(int most) {
        CString word;
        for (int i = numbers.Below(most + 1); i > 0; --i)
            word += "abcXYZ 0.5 "[numbers.Below(11)];
        return word;
    }
    /// Mostly in or near the visible range.
    double Value() {
        const double odd[] = {NAN, INFINITY, -INFINITY, 1e300, -3e9};
        if (numbers.OneIn(20))
            return odd[isWide ? 0 : numbers.Below(5)]; // GDI takes long for wide lines from far away
        const double low = graph.m_YVisibleMin, high = graph.m_YVisibleMax;
        return low + (high - low) * (numbers.Below(1400) - 200) / 1000.0;
    }

    void ChooseData() {
        isWide = numbers.OneIn(8);
        for (int d = 0; d < CGraphCtrl::DatasetCount; ++d) {
            for (int i = numbers.OneIn(3) ? numbers.Below(numbers.OneIn(20) ? 1500 : 60) : 0; i > 0; --i)
                graph.AddData(d, Value(), nullptr);
            graph.SetColor(d, Colour());
            graph.SetLegend(d, numbers.OneIn(3) ? Word(8) : CString());
            graph.ShowDataset(d, !numbers.OneIn(4));
            graph.SetLineSize(d, isWide ? numbers.Below(150) : numbers.Below(3) * 15);
            graph.SetMarkerType(d, static_cast<CDataset::MarkerType>(numbers.Below(8)));
        }
        for (int i = numbers.Below(200); i > 0; --i)
            graph.AddXTickLabel(Word(16), numbers.OneIn(2) ? Word(6) : CString());
        graph.m_SelectionMarkPos = numbers.OneIn(2) ? -1 : numbers.Below(40);
        graph.SetAutoXVisible(FALSE);
        graph.SetXVisibleMin(numbers.OneIn(3) ? 0 : End());
        graph.SetXVisibleMax(graph.m_XVisibleMin +
                             (numbers.OneIn(9) ? End() : 1 + numbers.Below(2000) / 4.0));
        if (numbers.OneIn(2)) { // the samples fill the plot
            graph.SetXVisibleMin(numbers.Below(8) - 2.5);
            graph.SetXVisibleMax(numbers.Below(60) + 1.25);
        }
    }

    void ChooseAll() {
        size = CSize(120 + numbers.Below(680), 60 + numbers.Below(500));
        if (numbers.OneIn(12))
            size = CSize(1 + numbers.Below(60), 1 + numbers.Below(60));
        Resize(size.cx, size.cy);
        graph.ResetAll();
        graph.SetTitle(Word(12));
        graph.SetXLabel(Word(12));
        graph.SetYLabel(Word(12));
        graph.SetY2Label(Word(12));
        graph.SetWindowText(Word(12));
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(numbers.Below(numbers.OneIn(8) ? 4 : 3)));
        graph.SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(numbers.Below(3)));
        graph.ShowIconMaximize(Flag(), Flag());
        graph.SetCaptionFont(40 + numbers.Below(120), numbers.OneIn(2) ? _T("Arial") : _T("Tahoma"));
        graph.ShowBorder(Flag());
        graph.ShowXLabel(Flag());
        graph.ShowYLabel(Flag());
        graph.ShowY2Label(Flag());
        graph.ShowLegend(Flag());
        graph.ShowLegendBoard(Flag());
        graph.SetGrid(Flag(), Flag());
        graph.SetYVisibleMin(End());
        graph.SetYVisibleMax(numbers.OneIn(12) ? graph.m_YVisibleMin : End());
        graph.SetY2VisibleMin(End());
        graph.SetY2VisibleMax(End());
        graph.SetYUnit(Word(4), numbers.Below(7) - 3, numbers.Below(20) - 2);
        graph.SetY2Unit(Word(4), numbers.Below(7) - 3, numbers.Below(5) - 2);
        graph.SetXTickLabelHeight(Length(1500, 6000));
        graph.SetYTickLabelWidth(Length(1500, 6000));
        graph.SetY2TickLabelWidth(Length(1500, 6000));
        graph.SetLegendWidth(Length(2000, 6000));
        graph.SetXTickLabelUpStringMaxLength(numbers.Below(20) - 3);
        graph.m_LegendMargin = numbers.Below(200);
        graph.m_LegendItemHeight = numbers.Below(500);
        for (auto set : kColorSetters)
            (graph.*set)(Colour());
        ChooseData();
        EXPECT_EQ(Text(UpdateRect()), "0,0,0,0") << "a property or a sample repaints";
    }

    /// What is drawn inside the control, in order. Without the lines of datasets: the control draws fewer
    /// strokes for the same pixels.
    Strings Lines(const testkit::MetafileRecorder& picture, const PlainGraph& plain) {
        const bool hasLines = graph.m_GraphStyle == 0 || graph.m_GraphStyle == 2;
        const CRect plot = ToDevice(plain.plot) & CRect(0, 0, size.cx - 2, size.cy - 2);
        Strings lines;
        for (const testkit::MetafileRecord& record : picture.Records()) {
            const CRect clip(record.state.clip);
            const bool isSeries = record.state.clipped && plain.HasPlot() && hasLines &&
                                  clip == CRect(plot.left, plot.top, plot.right + 1, plot.bottom + 1);
            const bool isEmpty =
                record.kind == testkit::kClip || (record.kind == testkit::kText && record.text.empty());
            const auto beyond = [&](auto isOut) {
                return !record.points.empty() &&
                       std::all_of(record.points.begin(), record.points.end(), isOut);
            };
            if (!isSeries && !isEmpty && !beyond([](const POINT& p) { return p.x < 0; }) &&
                !beyond([](const POINT& p) { return p.y < 0; }) &&
                !beyond([&](const POINT& p) { return p.x > 30 * size.cx; }) &&
                !beyond([&](const POINT& p) { return p.y > 30 * size.cy; }))
                lines.push_back(record.Line() + " in " + record.ClipText());
        }
        return lines;
    }

    void CompareRecords(PlainGraph& plain) {
        const auto picture = Record();
        testkit::MetafileRecorder expected;
        plain.Paint(expected.Dc());
        expected.Close();
        const Strings drawn = Lines(*picture, plain), wanted = Lines(expected, plain);
        const auto differing = std::mismatch(drawn.begin(), drawn.end(), wanted.begin(), wanted.end());
        ASSERT_TRUE(drawn == wanted) << "record " << differing.first - drawn.begin() << " of " << drawn.size()
                                     << ": " << (differing.first == drawn.end() ? "none" : *differing.first)
                                     << "\ninstead of "
                                     << (differing.second == wanted.end() ? "none" : *differing.second);
        compared += drawn.size();
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        EXPECT_FALSE(picture->FinalState().clipped);
    }

    void CompareLayout(const PlainGraph& plain) {
        const struct {
            const CRect &is, &plain;
        } places[] = {{graph.m_rectTitle, plain.title},
                      {graph.m_rectCaption, plain.caption},
                      {graph.m_rectIconMaximize, plain.icon},
                      {graph.m_rectYTickLabel, plain.yTick},
                      {graph.m_rectYAxis, plain.yAxis},
                      {graph.m_rectY2TickLabel, plain.y2Tick},
                      {graph.m_rectY2Axis, plain.y2Axis},
                      {graph.m_rectXTickLabel, plain.xTick},
                      {graph.m_rectXAxis, plain.xAxis},
                      {graph.m_rectPlot, plain.plot},
                      {graph.m_rectLegend, plain.legend},
                      {graph.m_rectClient, CRect({0, 0}, size)},
                      {graph.m_rectClientInner, CRect({0, 0}, size - CSize(1, 1))}};
        for (const auto& place : places)
            ASSERT_EQ(Text(place.is), Text(place.plain)) << &place - places;
        EXPECT_EQ(graph.GetTitleTextHeight(), plain.labelUnit);
        int bar = -1, datasets = -1, visible = -1;
        ASSERT_EQ(graph.CalcBarSize(bar, datasets, visible), plain.slots.visible > 0);
        if (plain.slots.visible > 0) {
            EXPECT_EQ(bar, plain.slots.bar);
            EXPECT_EQ(datasets, plain.slots.datasets);
            EXPECT_EQ(visible, plain.slots.visible);
        }
        graph.RedrawData();
        CRect data(plain.yTick.left, plain.yTick.top - 600, plain.xTick.right + 900, plain.xTick.bottom);
        data = ToDevice(data);
        data.BottomRight() += CSize(1, 1);
        data.NormalizeRect();
        EXPECT_EQ(Text(UpdateRect()), Text(data & CRect({0, 0}, size)));
    }

    /// Paints into a bitmap (way 0), into the window (1) or as a parent prints its children (2).
    void ComparePixels(PlainGraph& plain, int way) {
        const CPoint origin = way == 2 ? CPoint(numbers.Below(90), numbers.Below(60)) : CPoint(0, 0);
        testkit::DibSurface drawn(size.cx + origin.x, size.cy + origin.y);
        testkit::DibSurface expected(drawn.Width(), drawn.Height());
        plain.Paint(expected.Dc(), origin);
        CRect area(CPoint(0, 0), CSize(drawn.Width(), drawn.Height()));
        if (way == 0) {
            const HPEN pen = ::CreatePen(PS_SOLID, 5, RGB(7, 7, 7));
            const HGDIOBJ before = ::SelectObject(drawn.Dc(), pen);
            PaintInto(drawn.Dc());
            EXPECT_EQ(::SelectObject(drawn.Dc(), before), pen);
            EXPECT_TRUE(::DeleteObject(pen));
            EXPECT_EQ(::GetCurrentObject(drawn.Dc(), OBJ_BRUSH), ::GetStockObject(WHITE_BRUSH));
            EXPECT_EQ(::GetCurrentObject(drawn.Dc(), OBJ_FONT), ::GetStockObject(SYSTEM_FONT));
            const HRGN clip = ::CreateRectRgn(0, 0, 0, 0);
            EXPECT_EQ(::GetClipRgn(drawn.Dc(), clip), 0) << "no clip region remains";
            ::DeleteObject(clip);
        } else if (way == 1) {
            graph.Redraw();
            graph.UpdateWindow();
            EXPECT_EQ(Text(UpdateRect()), "0,0,0,0") << "painting validates";
            drawn.Grab(graph.m_hWnd);
            area.BottomRight() -= CSize(1, 1); // the last column and row stay as they are
        } else {
            ::SetViewportOrgEx(drawn.Dc(), origin.x, origin.y, nullptr);
            graph.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(drawn.Dc()), PRF_CLIENT);
            EXPECT_EQ(::GetMapMode(drawn.Dc()), MM_TEXT) << "the caller's mapping returns";
        }
        // On Windows GDI may choose other pixels for a stroke.
        ONLY_SEEN_UNDER_WINE(ASSERT_EQ(testkit::Difference(drawn, expected, area), "")
                             << "painted in way " << way);
    }

    /// A pixel somewhere in the control, often at an edge of one of its parts.
    CPoint Place(const PlainGraph& plain) {
        if (numbers.OneIn(3))
            return CPoint(numbers.Below(size.cx + 20) - 10, numbers.Below(size.cy + 20) - 10);
        const CRect* const parts[] = {&plain.plot, &plain.plot, &plain.legend, &plain.icon, &plain.caption};
        CRect part = *parts[numbers.Below(5)];
        part.NormalizeRect();
        const auto within = [this](int from, int to) {
            const int place = numbers.OneIn(4)   ? from
                              : numbers.OneIn(3) ? to
                                                 : from + numbers.Below(to - from + 1);
            return place / 30 + numbers.Below(3) - 1;
        };
        const CPoint point(within(part.left, part.right), within(part.top, part.bottom));
        return CPoint(std::clamp<int>(point.x, -999, 9999), std::clamp<int>(point.y, -999, 9999));
    }

    void CompareHits(const PlainGraph& plain) {
        const int mark = graph.m_SelectionMarkPos;
        const int index = numbers.Below(60);
        EXPECT_EQ(CPoint(graph.GetPtFromIndex(index)), plain.PlaceOf(index)) << "sample " << index;
        for (int i = 0; i < 4; ++i) {
            const CPoint pixel = Place(plain), point(30 * pixel.x, 30 * pixel.y);
            const LPARAM at = MAKELPARAM(pixel.x, pixel.y);
            SCOPED_TRACE(std::to_string(pixel.x) + "," + std::to_string(pixel.y));
            const UINT area = plain.caption.PtInRect(point)  ? GCN_DBLCLK_CAPTION
                              : plain.legend.PtInRect(point) ? GCN_DBLCLK_LEGEND
                                                             : GCN_DBLCLK;
            const int row = area == GCN_DBLCLK_LEGEND ? plain.LegendRowAt(point) : -1;
            const UINT flags = numbers.Below(256) & 0xFF;
            EXPECT_EQ(Send(WM_LBUTTONDBLCLK, flags, at), Strings{ToldMouse(area, flags, pixel, row)});

            Strings expected = {"focus"};
            int now = mark;
            if (plain.plot.PtInRect(point)) {
                now = plain.IndexAt(point);
                expected = {Told(GCN_SELCHANGE, now), "focus", PostedMark(now)};
                if (now != mark)
                    expected.insert(expected.begin(), Event(now));
                hits += now > 0;
            }
            parent.SetFocus();
            EXPECT_EQ(Send(WM_LBUTTONDOWN, MK_LBUTTON, at), expected);
            EXPECT_EQ(graph.m_SelectionMarkPos, now);
            EXPECT_EQ(graph.m_IconMaximizeTracking != FALSE,
                      !plain.plot.PtInRect(point) && plain.icon.PtInRect(point));
            EXPECT_EQ(graph.m_IconMaximizePressed, graph.m_IconMaximizeTracking);
            parent.SetCapture(); // ends a press
            ::ReleaseCapture();
            graph.m_SelectionMarkPos = mark;
        }
    }

    testkit::Numbers numbers{20251122};
    CSize size{300, 200};
    bool isWide = false; ///< lines are
    std::size_t compared = 0;
    int hits = 0;
};

} // namespace

TEST_F(GraphPictureTest, EqualsThePlainPainters) {
    for (int round = 0; round < 250; ++round) {
        SCOPED_TRACE(round);
        ASSERT_NO_FATAL_FAILURE(ChooseAll());
        graph.m_IconMaximizePressed = Flag();
        PlainGraph plain(graph, size);
        graph.calls.clear();
        ASSERT_NO_FATAL_FAILURE(CompareRecords(plain));
        EXPECT_EQ(graph.calls,
                  plain.HasPlot() ? Strings({"xaxis " + std::to_string(plain.xTicks), "data"}) : Strings());
        ASSERT_NO_FATAL_FAILURE(CompareLayout(plain));
        ASSERT_NO_FATAL_FAILURE(ComparePixels(plain, round % 3));
        graph.m_IconMaximizePressed = FALSE;
        ASSERT_NO_FATAL_FAILURE(CompareHits(plain));
        ASSERT_FALSE(HasFailure());
        Settle();
    }
    EXPECT_GT(compared, 10000u);
    EXPECT_GT(hits, 50);
}

TEST_F(GraphPictureTest, NoPropertyDrawsMoreThanThePictureShows) {
    const int lengths[] = {INT_MIN, INT_MIN + 1, -(1 << 27), -1000000, -1, 0, 1, 1000000, 1 << 27, INT_MAX};
    const double ends[] = {NAN, INFINITY, -INFINITY, 0, 1, -5e4, 999, 1e9, -1e300, 1e308, 5e-324};
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        ASSERT_NO_FATAL_FAILURE(ChooseAll());
        Resize(300, 200);
        for (int d = 0; d < CGraphCtrl::DatasetCount; ++d) {
            graph.ShowDataset(d, FALSE);
            for (int i = graph.GetDatasetSize(d); i < 1000; ++i)
                graph.AddData(d, 1, nullptr);
        }
        for (int* length : {&graph.m_XTickLabelHeight, &graph.m_LegendWidth, &graph.m_YTickLabelWidth,
                            &graph.m_Y2TickLabelWidth, &graph.m_XTickLabelUpStringMaxLength,
                            &graph.m_YUnitExponent, &graph.m_YTickLabelScale, &graph.m_Y2TickLabelScale,
                            &graph.m_CaptionFontSize, &graph.m_LegendItemHeight, &graph.m_LegendMargin})
            if (numbers.OneIn(3))
                *length = lengths[numbers.Below(10)];
        for (double* end :
             {&graph.m_XVisibleMin, &graph.m_XVisibleMax, &graph.m_YVisibleMin, &graph.m_YVisibleMax})
            if (numbers.OneIn(3))
                *end = ends[numbers.Below(11)];
        const auto picture = Record();
        EXPECT_LE(picture->Texts().size(), 2u * (300 + 200) + CGraphCtrl::DatasetCount + 6);
        EXPECT_LE(picture->Lines(testkit::kLine).size(), 3u * (300 + 200));
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        for (const std::string& text : picture->Texts())
            EXPECT_LE(text.size(), 8192u);
    }
}

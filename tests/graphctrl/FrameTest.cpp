// The picture without its data: a slow and literal painter tells every record, the control's are compared.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

/// Pixels of a font of that many points on this screen.
int PointsToPixels(int tenthsOfAPoint) {
    const HDC screen = ::GetDC(nullptr);
    const int height = ::MulDiv(tenthsOfAPoint, ::GetDeviceCaps(screen, LOGPIXELSY), 720);
    ::ReleaseDC(nullptr, screen);
    return height;
}

/// Full height in logical units of the caption's font, as the platform measures it.
int TextHeight(int fontHeight, const char* face) {
    testkit::DibSurface surface(1, 1);
    ::SetMapMode(surface.Dc(), MM_ANISOTROPIC);
    ::SetWindowExtEx(surface.Dc(), 15000, 15000, nullptr);
    ::SetViewportExtEx(surface.Dc(), 500, 500, nullptr);
    LOGFONT description = {};
    description.lfHeight = fontHeight;
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

/// The pixel of a position, as the platform rounds in the control's mapping.
int Pixel(int units) {
    return static_cast<int>(std::floor(units * static_cast<double>(static_cast<float>(500.0 / 15000)) + 0.5));
}

class PlainFrame {
public:
    PlainFrame(OpenGraph& graph, CSize pixels)
        : g(graph), size(pixels), R(30 * pixels.cx), B(30 * pixels.cy) {}

    Strings Draw() {
        const bool two = g.m_GraphStyle == 2;
        const int u = B / 15;
        const std::string label = "Arial " + std::to_string(u - 50);
        pen = g.m_ShowBorder ? "solid 0 000000" : "null";
        const int less = g.m_ShowBorder ? 30 : 0;
        Box({0, 0, R - less, B - less}, g.m_BkColor);
        clip = CRect(0, 0, size.cx - 1, size.cy - 1);
        title = CRect(200, 200, R - 200, 200 + u + 500);
        if (g.m_TitleStyle == 1) {
            Caption(R - less);
            title.bottom = caption.bottom + 400;
        } else {
            Say((title.left + title.right) / 2, title.top, "center|top", g.m_TitleColor,
                "Arial " + std::to_string(u) + " bold", g.m_Title);
        }
        const int Tb = title.bottom;
        const int xu = g.m_ShowXLabel ? u : 0;
        const int yb = B - g.m_XTickLabelHeight - xu - 300;
        int x = title.left;
        if (g.m_ShowYLabel) {
            Say(x, (yb + Tb) / 2, "center|top", g.m_YLabelColor, label + " @900", g.m_YLabel);
            x += u;
        }
        yTick = CRect(x, Tb, x + g.m_YTickLabelWidth, yb);
        yAxis = CRect(yTick.right, Tb, yTick.right + 100, yb);
        int xr = title.right;
        if (two && g.m_ShowY2Label) {
            Say(xr, (yb + Tb) / 2, "center|top", g.m_Y2LabelColor, label + " @-900", g.m_Y2Label);
            xr -= u;
        }
        y2Tick = CRect(xr - (two ? g.m_Y2TickLabelWidth : 0), Tb, xr, yb);
        y2Axis = CRect(y2Tick.left - (two ? 100 : 0), Tb, y2Tick.left, yb);
        const int yx = B - xu - 200;
        const int xe = g.m_ShowLegend ? R - g.m_LegendWidth - 400 : static_cast<int>(y2Axis.left);
        if (g.m_ShowXLabel)
            Say((xe + yAxis.right) / 2, yx, "center|top", g.m_XLabelColor, label, g.m_XLabel);
        xTick = CRect(yAxis.right, yx - g.m_XTickLabelHeight, xe, yx);
        xAxis = CRect(xTick.left, xTick.top - 100, xTick.right, xTick.top);
        plot = CRect(xAxis.left + 30, Tb, xAxis.right, yb);
        xCount = plot.Width() / (g.m_GraphStyle == 0 || two ? 800 : 1000);
        if (plot.Width() >= 51 && plot.Height() >= 51) {
            YAxis(yTick, yAxis, 0);
            if (two)
                YAxis(y2Tick, y2Axis, 1);
            XAxis();
        }
        legend = CRect(R - g.m_LegendWidth - 200, Tb, R - 200, xTick.bottom);
        if (g.m_ShowLegend && legend.Width() >= 51 && legend.Height() >= 51)
            Legend();
        return lines;
    }

    CRect title, caption, icon, yTick, yAxis, y2Tick, y2Axis, xTick, xAxis, plot, legend;
    int xCount = 0;

private:
    /// Adds a record unless it lies beyond one edge of the control.
    void Add(const std::string& line, const std::vector<POINT>& points) {
        if (!IsBeyond(points, R, B))
            lines.push_back(line + " in " + (clip.IsRectNull() ? "none" : testkit::BoxText(clip)));
    }
    void Box(CRect box, COLORREF fill) {
        box.NormalizeRect(); // as GDI records it, which leaves empty ones out
        if (!box.IsRectEmpty())
            Add("rect " + testkit::BoxText(box) + " pen " + pen + " brush " + testkit::ColourText(fill), {});
    }
    void Stroke(int x1, int y1, int x2, int y2, const std::string& with) {
        const auto at = [](int x, int y) { return std::to_string(x) + "," + std::to_string(y); };
        Add("line " + at(x1, y1) + " " + at(x2, y2) + " pen " + with, {{x1, y1}, {x2, y2}});
    }
    void Say(int x, int y, const char* align, COLORREF colour, const std::string& font, const char* text) {
        if (*text != '\0')
            Add("text " + std::to_string(x) + "," + std::to_string(y) + " " + align + " " +
                    testkit::ColourText(colour) + " " + font + " \"" + text + "\"",
                {{x, y}});
    }

    void Caption(int right) {
        const int points = PointsToPixels(30 * g.m_CaptionFontSize);
        caption = CRect(0, 0, right, TextHeight(-points, g.m_CaptionFontFace) + 120);
        Box(caption, g.m_CaptionColor);
        CString text;
        g.GetWindowText(text);
        Say(caption.CenterPoint().x, 0, "center|top", g.m_CaptionTextColor,
            std::string(g.m_CaptionFontFace) + " -" + std::to_string(points), text);
        if (!g.m_ShowIconMaximize)
            return;
        icon = CRect(0, caption.top + 50, caption.right - 50, caption.bottom - 70);
        icon.left = icon.right - icon.Height() - 50;
        const std::string before = pen;
        pen = "null";
        Box(icon, RGB(255, 255, 255));
        pen = "solid 0 " + testkit::ColourText(g.m_CaptionColor);
        const CRect at = icon + CPoint(g.m_IconMaximizePressed ? 30 : 0, g.m_IconMaximizePressed ? 30 : 0);
        // In pixels from the edges: left, top, right, bottom; a bar is one pixel high.
        const auto part = [&](int l, int t, int r, int b) {
            const bool bar = b == 0;
            Box({at.left + 30 * l, at.top + 30 * t, at.right - 30 * r,
                 bar ? at.top + 30 * (t + 1) : at.bottom - 30 * b},
                bar ? g.m_CaptionColor : RGB(255, 255, 255));
        };
        if (g.m_IconMaximized == 1) {
            part(3, 1, 2, 0);
            part(3, 2, 2, 5);
            part(1, 4, 4, 0);
            part(1, 5, 4, 2);
        } else {
            part(1, 1, 2, 0);
            part(1, 2, 2, 2);
        }
        pen = before;
    }

    void YAxis(const CRect& label, const CRect& axis, int which) {
        const bool y2 = which == 1;
        const std::string with =
            "solid 0 " +
            testkit::ColourText(g.m_GraphStyle == 2 ? g.m_Datasets[which].GetColor() : g.m_AxisColor);
        const int line = y2 ? y2Axis.left : yAxis.right;
        Stroke(line, axis.top, line, axis.bottom, with);
        const int n = plot.Height() / 500;
        if (n < 2)
            return;
        const int step = label.Height() / (n - 1);
        for (int i = 0, y = axis.bottom; i < n; ++i, y -= step)
            Stroke(axis.left, y, axis.right, y, with);
        for (int k = 1; k < n && g.m_GridY && which == 0; ++k)
            Stroke(plot.left, axis.bottom - k * step, plot.right, axis.bottom - k * step, GridPen());
        double v = y2 ? g.m_Y2VisibleMin : g.m_YVisibleMin;
        double dv = ((y2 ? g.m_Y2VisibleMax : g.m_YVisibleMax) - v) / (n - 1);
        const double p = std::pow(10, y2 ? g.m_Y2UnitExponent : g.m_YUnitExponent);
        dv /= p;
        v /= p;
        const COLORREF colour = y2 ? g.m_Y2TickLabelColor : g.m_YTickLabelColor;
        for (int i = 0; i < n; ++i, v += dv) {
            char text[400];
            std::snprintf(text, sizeof text, "%.*f",
                          std::max(y2 ? g.m_Y2TickLabelScale : g.m_YTickLabelScale, 0), v);
            Say(axis.right + (y2 ? 100 : -100), axis.bottom - 150 - i * step, y2 ? "left|top" : "right|top",
                colour, "Arial 350", text);
        }
        Say(axis.right + (y2 ? 50 : -50), axis.top, y2 ? "right|bottom" : "left|bottom", colour, "Arial 450",
            y2 ? g.m_Y2Unit : g.m_YUnit);
    }

    void XAxis() {
        axisPen = "solid 0 " + testkit::ColourText(g.m_AxisColor);
        Stroke(xAxis.left, xAxis.top, xAxis.right, xAxis.top, axisPen);
        if (xCount < 2)
            return;
        minGap = xTick.Width() / (xCount - 1);
        nextX = plot.left;
        if (g.m_GraphStyle == 1) {
            BarTicks();
        } else if (g.m_GraphStyle == 0 || g.m_GraphStyle == 2) {
            for (int i = 0; i < g.GetDatasetSize(0); ++i) {
                if (i < g.m_XVisibleMin || i > g.m_XVisibleMax)
                    continue;
                const double x =
                    (i - g.m_XVisibleMin) * plot.Width() / (g.m_XVisibleMax - g.m_XVisibleMin) + plot.left;
                Point(i, static_cast<int>(x), g.m_GridX);
            }
        }
    }

    void BarTicks() {
        int m = 0, v = 0;
        double maxX = -1;
        for (const CDataset& dataset : g.m_Datasets) {
            m += dataset.GetSize() > 0;
            for (int i = 0; i < dataset.GetSize() && (v == 0 || &dataset == counted); ++i) {
                if (g.m_XVisibleMin <= i && i <= g.m_XVisibleMax) {
                    counted = &dataset;
                    ++v;
                    maxX = std::max<double>(maxX, i);
                }
            }
        }
        if (v < 1 || m < 1)
            return;
        const double range = g.m_XVisibleMax - g.m_XVisibleMin;
        const int span = range <= 0 ? 0 : static_cast<int>((maxX - g.m_XVisibleMin) * plot.Width() / range);
        const int b = span / v / (m + 1);
        int j = 0;
        for (const CDataset& dataset : g.m_Datasets) {
            for (int i = 0; i < dataset.GetSize() && j < v; ++i) {
                if (i >= g.m_XVisibleMin) {
                    Point(i, plot.left + (b + b * m) * j + b * m / 2, false);
                    ++j;
                }
            }
        }
    }

    /// A point that may get a tick: every k-th does once the first two are found.
    void Point(int i, int x, BOOL grid) {
        if (first == -1)
            first = i;
        if (x < nextX)
            return;
        if (c != -1)
            ++c;
        if (k != -1 && c % k != 0)
            return;
        if (k == -1 && nextX != plot.left) {
            k = i - first;
            c = 0;
        }
        if (last == INT_MIN || Pixel(x) != Pixel(last)) {
            Stroke(x, xAxis.bottom, x, xAxis.top, axisPen);
            if (grid)
                Stroke(x, xAxis.top, x, plot.top, GridPen());
            Label(i, x);
            last = x;
        }
        if (k == -1)
            nextX += minGap;
    }

    void Label(int i, int x) {
        const auto at = [i](const auto& labels) {
            return i < labels.GetSize() ? labels.GetAt(i) : CString();
        };
        CString up = at(g.m_XTickLabelUp), down = at(g.m_XTickLabelDown);
        const int most = std::max(g.m_XTickLabelUpStringMaxLength, 0);
        const bool one = down.IsEmpty() && up.GetLength() <= most;
        if (down.IsEmpty() && !one) {
            down = up.Mid(most);
            up = up.Left(most);
            down.TrimLeft();
            up.TrimRight();
        }
        const auto say = [&](int shift, const char* align, const CString& text) {
            Say(x + shift, xTick.top + 100, align, g.m_XTickLabelColor, "Arial 300 @900", text);
        };
        say(one ? 100 : 70, one ? "right|baseline" : "right|bottom", up);
        if (!one)
            say(0, "right|top", down);
    }

    void Legend() {
        pen = "null";
        if (g.m_ShowLegendBoard) {
            Box(legend + CPoint(100, 100), RGB(192, 192, 192));
            Box(legend, g.m_LegendColor);
        }
        const int right = g.m_ShowLegendBoard ? static_cast<int>(legend.right) : R;
        CRect inside(Pixel(legend.left), Pixel(legend.top), Pixel(right) - 3, Pixel(legend.bottom));
        clip.IntersectRect(CRect(clip), inside);
        const int s = g.m_LegendItemHeight, margin = g.m_LegendMargin, x0 = legend.left + margin;
        int y = legend.top + margin;
        for (const CDataset& dataset : g.m_Datasets) {
            if (dataset.m_Legend.IsEmpty())
                continue;
            Box({x0, y, x0 + s, y + s}, dataset.m_Visible ? dataset.GetColor() : RGB(255, 255, 255));
            Say(x0 + margin + s, y - s / 6, "left|top", g.m_LegendTextColor, "Arial 350", dataset.m_Legend);
            y += margin + s;
        }
    }

    std::string GridPen() const { return "dot 0 " + testkit::ColourText(g.m_GridColor); }

public:
    static bool IsBeyond(const std::vector<POINT>& points, int right, int bottom) {
        const auto all = [&](auto isOut) {
            return !points.empty() && std::all_of(points.begin(), points.end(), isOut);
        };
        return all([](const POINT& p) { return p.x < 0; }) || all([](const POINT& p) { return p.y < 0; }) ||
               all([&](const POINT& p) { return p.x > right; }) ||
               all([&](const POINT& p) { return p.y > bottom; });
    }

private:
    OpenGraph& g;
    CSize size;
    int R, B;
    CRect clip{0, 0, 0, 0};
    Strings lines;
    std::string pen, axisPen;
    const CDataset* counted = nullptr;
    int minGap = 0, nextX = 0, first = -1, k = -1, c = -1, last = INT_MIN;
};

} // namespace

class GraphFrameTest : public GraphTest {
protected:
    int Length(int usual, int most) {
        return numbers.OneIn(8) ? numbers.Below(4 * most) - most : usual / 2 + numbers.Below(usual);
    }
    double End() { return (numbers.Below(4000) - 1500) / (numbers.OneIn(2) ? 10.0 : 8.0); }
    COLORREF Colour() { return numbers.Next() & 0xFFFFFF; }
    CString Word(int most) {
        CString word;
        for (int i = numbers.Below(most + 1); i > 0; --i)
            word += "abcXYZ 0.5 "[numbers.Below(11)];
        return word;
    }
    BOOL Flag() { return numbers.OneIn(2); }

    void ChooseAll() {
        size = CSize(120 + numbers.Below(700), 60 + numbers.Below(500));
        Resize(size.cx, size.cy);
        graph.ResetAll();
        for (int d = 0; d < CGraphCtrl::DatasetCount; ++d) {
            for (int i = numbers.OneIn(2) ? numbers.Below(numbers.OneIn(4) ? 1500 : 60) : 0; i > 0; --i)
                graph.AddData(d, 1, nullptr);
            graph.SetColor(d, Colour());
            graph.SetLegend(d, numbers.OneIn(3) ? Word(8) : CString());
            graph.ShowDataset(d, FALSE); // no data, whatever the style
        }
        graph.ShowDataset(12, graph.GetDatasetSize(12) == 0);
        for (int i = numbers.Below(200); i > 0; --i)
            graph.AddXTickLabel(Word(16), numbers.OneIn(2) ? Word(6) : CString());
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(numbers.Below(numbers.OneIn(8) ? 4 : 3)));
        graph.SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(numbers.Below(3)));
        graph.ShowIconMaximize(Flag(), Flag());
        graph.m_IconMaximizePressed = Flag();
        graph.SetCaptionFont(40 + numbers.Below(120), numbers.OneIn(2) ? "Arial" : "Tahoma");
        graph.ShowBorder(Flag());
        graph.ShowXLabel(Flag());
        graph.ShowYLabel(Flag());
        graph.ShowY2Label(Flag());
        graph.ShowLegend(Flag());
        graph.ShowLegendBoard(Flag());
        graph.SetGrid(Flag(), Flag());
        graph.SetAutoXVisible(FALSE);
        graph.SetXVisibleMin(numbers.OneIn(3) ? 0 : End());
        graph.SetXVisibleMax(graph.m_XVisibleMin +
                             (numbers.OneIn(9) ? End() : 1 + numbers.Below(2000) / 4.0));
        graph.SetYVisibleMin(End());
        graph.SetYVisibleMax(End());
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
        for (COLORREF* colour :
             {&graph.m_GridColor, &graph.m_BkColor, &graph.m_TitleColor, &graph.m_XLabelColor,
              &graph.m_YLabelColor, &graph.m_Y2LabelColor, &graph.m_AxisColor, &graph.m_XTickLabelColor,
              &graph.m_YTickLabelColor, &graph.m_Y2TickLabelColor, &graph.m_LegendColor,
              &graph.m_LegendTextColor, &graph.m_CaptionColor, &graph.m_CaptionTextColor})
            *colour = Colour();
    }

    testkit::Numbers numbers{20251122};
    CSize size{300, 200};
};

TEST_F(GraphFrameTest, EqualsThePlainPainter) {
    std::size_t compared = 0;
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        ASSERT_NO_FATAL_FAILURE(ChooseAll());
        graph.calls.clear();
        const auto picture = Record();
        PlainFrame plain(graph, size);
        const Strings expected = plain.Draw();
        Strings drawn;
        for (const testkit::MetafileRecord& record : picture->Records()) {
            ASSERT_EQ(record.state.mapMode, MM_ANISOTROPIC);
            ASSERT_EQ(CSize(record.state.windowExt), CSize(15000, 15000));
            ASSERT_EQ(CSize(record.state.viewportExt), CSize(500, 500));
            ASSERT_TRUE(record.kind != testkit::kText || record.state.bkMode == TRANSPARENT);
            if (record.kind != testkit::kClip && (record.kind != testkit::kText || !record.text.empty()) &&
                !PlainFrame::IsBeyond(record.points, 30 * size.cx, 30 * size.cy))
                drawn.push_back(record.Line() + " in " + record.ClipText());
        }
        EXPECT_FALSE(picture->FinalState().clipped);
        const auto differing = std::mismatch(drawn.begin(), drawn.end(), expected.begin(), expected.end());
        ASSERT_TRUE(drawn == expected)
            << "record " << differing.first - drawn.begin() << " of " << drawn.size() << ": "
            << (differing.first == drawn.end() ? "none" : *differing.first) << "\ninstead of "
            << (differing.second == expected.end() ? "none" : *differing.second);
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        compared += drawn.size();
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
        const bool hasPlot = plain.plot.Width() >= 51 && plain.plot.Height() >= 51;
        EXPECT_EQ(graph.calls,
                  hasPlot ? Strings({"xaxis " + std::to_string(plain.xCount), "data"}) : Strings());
        EXPECT_EQ(graph.GetTitleTextHeight(), 30 * size.cy / 15);
    }
    EXPECT_GT(compared, 10000u);
}

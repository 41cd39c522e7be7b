// SPDX-License-Identifier: MIT
// A literal painter and hit test of the graph control. Tests compare the control with it.
#pragma once

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/PlainLines.h"

#include <optional>

/// Draws the picture of a control step by step with plain GDI calls. Nothing is reduced or left out, so it is
/// slow. It reads the control's properties and samples, and computes its own layout.
class PlainGraph {
public:
    /// `size` is that of the control's client area in pixels.
    PlainGraph(const OpenGraph& graph, CSize size);

    /// Sets the control's mapping in `dc`, with the viewport origin at `origin`, and draws into it.
    void Paint(HDC dc, CPoint origin = CPoint(0, 0));

    /// Sample that a click at `point` (logical units) in the plot marks, -1 for none.
    int IndexAt(CPoint point) const;
    /// Place of a sample in the plot, logical units; the middle of the plot when it has none.
    CPoint PlaceOf(int index) const;
    /// Dataset whose legend row holds `point` (logical units), -1 for none.
    int LegendRowAt(CPoint point) const;
    /// Whether plot and axes are drawn.
    bool HasPlot() const { return IsLarge(plot); }

    // The layout in logical units.
    CRect title, caption, icon, yTick, yAxis, y2Tick, y2Axis, xTick, xAxis, plot, legend;
    int labelUnit; ///< height of a label row
    int xTicks;    ///< the most X ticks with a label

    /// How the bars divide the plot.
    struct Slots {
        int bar = 0;      ///< width of one bar
        int datasets = 0; ///< datasets with samples
        int visible = 0;  ///< positions with bars
        int Stride() const { return bar + bar * datasets; }
    } slots;

private:
    static bool IsLarge(const CRect& rect) { return rect.Width() >= 51 && rect.Height() >= 51; }

    void LayOut();
    Slots CountSlots() const;
    testkit::PlainScale XRange() const;
    testkit::PlainScale YRange(int dataset) const;
    std::optional<int> MiddleOfBars(int index) const;

    // Painters of the parts.
    void Caption();
    void Labels();
    void YAxis(int which);
    void XAxis();
    void LineTicks();
    void BarTicks();
    void Tick(int index, int x, bool grid);
    void TickLabel(int index, int x);
    void Lines();
    void Line(int index);
    void Bars();
    void Legend();

    // GDI, one object of each kind selected at a time.
    void Select(HGDIOBJ object) { ::DeleteObject(::SelectObject(m_dc, object)); }
    void Pen(COLORREF colour, int style = PS_SOLID, int width = 0);
    void Brush(COLORREF colour);
    void Font(int height, int escapement = 0, int weight = FW_NORMAL, LPCTSTR face = nullptr);
    void Clip(CRect pixels);
    void Box(const CRect& box) { ::Rectangle(m_dc, box.left, box.top, box.right, box.bottom); }
    void Stroke(int x1, int y1, int x2, int y2);
    void Say(int x, int y, UINT align, COLORREF colour, const CString& text);

    const OpenGraph& g;
    CSize size;
    int R, B; ///< right and bottom of the client area, logical units
    HDC m_dc = nullptr;
    CPoint m_origin{0, 0};
    CRect m_clip;
    /// Which X ticks were drawn so far.
    struct Thinning {
        int minGap = 0, next = 0, first = -1, interval = -1, counted = -1;
        std::optional<int> lastPixel;
    } m_ticks;
};

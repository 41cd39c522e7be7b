// SPDX-License-Identifier: MIT
// The literal painter: one function for each part of the picture.

#include "tests/graphctrl/PlainGraph.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

/// Height in pixels of a font of a size in tenths of a point on this screen.
int PointsToPixels(int tenthsOfAPoint) {
    const HDC screen = ::GetDC(nullptr);
    const int height = ::MulDiv(tenthsOfAPoint, ::GetDeviceCaps(screen, LOGPIXELSY), 720);
    ::ReleaseDC(nullptr, screen);
    return height;
}

void SetMapping(HDC dc, CPoint origin) {
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc, 15000, 15000, nullptr);
    ::SetViewportExtEx(dc, 500, 500, nullptr);
    ::SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
}

/// The pixel of a position, as the platform rounds in the control's mapping.
int Pixel(int units) {
    return static_cast<int>(std::floor(units * static_cast<double>(static_cast<float>(500.0 / 15000)) + 0.5));
}

CRect Pixels(const CRect& units) {
    return CRect(Pixel(units.left), Pixel(units.top), Pixel(units.right), Pixel(units.bottom));
}

CString LabelAt(const kavlix::LabelStore& labels, int index) {
    return index < labels.GetSize() ? labels.GetAt(index) : CString();
}

} // namespace

PlainGraph::PlainGraph(const OpenGraph& graph, CSize pixels)
    : g(graph), size(pixels), R(30 * pixels.cx), B(30 * pixels.cy) {
    LayOut();
    slots = CountSlots();
}

void PlainGraph::LayOut() {
    const bool two = g.m_GraphStyle == 2;
    labelUnit = B / 15;
    title = CRect(200, 200, R - 200, 200 + labelUnit + 500);
    if (g.m_TitleStyle == 1) {
        testkit::DibSurface surface(1, 1);
        m_dc = surface.Dc();
        SetMapping(m_dc, CPoint(0, 0));
        Font(-PointsToPixels(30 * g.m_CaptionFontSize), 0, FW_NORMAL, g.m_CaptionFontFace);
        SIZE text = {};
        ::GetTextExtentPoint32(m_dc, _T("Gg"), 2, &text);
        Select(::GetStockObject(SYSTEM_FONT));
        caption = CRect(0, 0, g.m_ShowBorder ? R - 30 : R, text.cy + 120);
        if (g.m_ShowIconMaximize) {
            icon = CRect(0, caption.top + 50, caption.right - 50, caption.bottom - 70);
            icon.left = icon.right - icon.Height() - 50;
        }
        title.bottom = caption.bottom + 400;
    }
    const int top = title.bottom;
    const int xu = g.m_ShowXLabel ? labelUnit : 0;
    const int bottom = B - g.m_XTickLabelHeight - xu - 300;
    const int x = title.left + (g.m_ShowYLabel ? labelUnit : 0);
    yTick = CRect(x, top, x + g.m_YTickLabelWidth, bottom);
    yAxis = CRect(yTick.right, top, yTick.right + 100, bottom);
    const int xr = title.right - (two && g.m_ShowY2Label ? labelUnit : 0);
    y2Tick = CRect(xr - (two ? g.m_Y2TickLabelWidth : 0), top, xr, bottom);
    y2Axis = CRect(y2Tick.left - (two ? 100 : 0), top, y2Tick.left, bottom);
    const int yx = B - xu - 200;
    const int xe = g.m_ShowLegend ? R - g.m_LegendWidth - 400 : static_cast<int>(y2Axis.left);
    xTick = CRect(yAxis.right, yx - g.m_XTickLabelHeight, xe, yx);
    xAxis = CRect(xTick.left, xTick.top - 100, xTick.right, xTick.top);
    plot = CRect(xAxis.left + 30, top, xAxis.right, bottom);
    legend = CRect(R - g.m_LegendWidth - 200, top, R - 200, xTick.bottom);
    xTicks = plot.Width() / (g.m_GraphStyle == 0 || two ? 800 : 1000);
}

PlainGraph::Slots PlainGraph::CountSlots() const {
    Slots count;
    double newest = -1;
    for (const CDataset& dataset : g.m_Datasets) {
        count.datasets += dataset.GetSize() > 0;
        if (count.visible > 0)
            continue;
        for (int i = 0; i < dataset.GetSize(); ++i) {
            if (g.m_XVisibleMin <= i && i <= g.m_XVisibleMax) {
                ++count.visible;
                newest = i;
            }
        }
    }
    const double range = g.m_XVisibleMax - g.m_XVisibleMin;
    const double span = (newest - g.m_XVisibleMin) * plot.Width() / range;
    if (count.visible > 0 && range > 0 && !std::isnan(span))
        count.bar = static_cast<int>(span) / count.visible / (count.datasets + 1);
    return count;
}

testkit::PlainScale PlainGraph::XRange() const {
    return {g.m_XVisibleMin, g.m_XVisibleMax, plot.left, plot.Width()};
}

testkit::PlainScale PlainGraph::YRange(int dataset) const {
    if (g.m_GraphStyle == 2 && dataset == 1)
        return {g.m_Y2VisibleMin, g.m_Y2VisibleMax, plot.bottom, -plot.Height()};
    return {g.m_YVisibleMin, g.m_YVisibleMax, plot.bottom, -plot.Height()};
}

int PlainGraph::IndexAt(CPoint point) const {
    if (g.m_GraphStyle == 1) {
        for (int i = 0; slots.bar > 0; ++i) {
            const auto middle = MiddleOfBars(i);
            if (!middle && i >= g.m_XVisibleMin)
                return -1;
            const int left = middle.value_or(0) - slots.bar * slots.datasets / 2;
            if (middle && point.x >= left - slots.bar / 2 &&
                point.x < left + slots.bar * slots.datasets + slots.bar / 2)
                return i;
        }
    } else if (g.m_GraphStyle == 0 || g.m_GraphStyle == 2) {
        for (const CDataset& dataset : g.m_Datasets) {
            int found = -1, best = 1000000;
            for (int i = 0; i < dataset.GetSize(); ++i) {
                const auto x = XRange().Place(i);
                if (x && std::abs(*x - point.x) < best) {
                    found = i;
                    best = std::abs(*x - point.x);
                }
            }
            if (found >= 0)
                return found;
        }
    }
    return -1;
}

/// The first dataset with samples says which samples have bars.
std::optional<int> PlainGraph::MiddleOfBars(int index) const {
    int slot = 0;
    for (const CDataset& dataset : g.m_Datasets) {
        for (int i = 0; i < dataset.GetSize() && slot < slots.visible; ++i) {
            if (i < g.m_XVisibleMin)
                continue;
            if (i == index && slots.bar != 0)
                return plot.left + slot * slots.Stride() + slots.bar * slots.datasets / 2;
            ++slot;
        }
        if (dataset.GetSize() > 0)
            break;
    }
    return std::nullopt;
}

CPoint PlainGraph::PlaceOf(int index) const {
    const auto x = g.m_GraphStyle == 1 ? MiddleOfBars(index) : XRange().Place(index);
    for (int d = 0; d < CGraphCtrl::DatasetCount && x && !plot.IsRectEmpty(); ++d) {
        double value = 0;
        if (!g.m_Datasets[d].m_Visible || !g.m_Datasets[d].GetYData(index, value))
            continue;
        if (const auto y = YRange(d).Place(value))
            return CPoint(std::clamp<int>(*x, plot.left, plot.right),
                          std::clamp<int>(*y, plot.top, plot.bottom));
    }
    return plot.CenterPoint();
}

int PlainGraph::LegendRowAt(CPoint point) const {
    const int height = g.m_LegendMargin + g.m_LegendItemHeight;
    CRect row(legend.left, legend.top + g.m_LegendMargin / 2, legend.right, 0);
    row.bottom = row.top + height;
    for (int i = 0; i < CGraphCtrl::DatasetCount; ++i, row += CPoint(0, height))
        if (!g.m_Datasets[i].m_Legend.IsEmpty() && row.PtInRect(point))
            return i;
    return -1;
}

void PlainGraph::Paint(HDC dc, CPoint origin) {
    m_dc = dc;
    m_origin = origin;
    SetMapping(dc, origin);
    ::SetBkMode(dc, TRANSPARENT);
    Brush(g.m_BkColor);
    Select(::GetStockObject(g.m_ShowBorder ? BLACK_PEN : NULL_PEN));
    const int less = g.m_ShowBorder ? 30 : 0;
    Box({0, 0, R - less, B - less});
    const CRect inner(0, 0, size.cx - 1, size.cy - 1);
    Clip(inner);
    if (g.m_TitleStyle == 1)
        Caption();
    Labels();
    if (HasPlot()) {
        YAxis(0);
        if (g.m_GraphStyle == 2)
            YAxis(1);
        XAxis();
        CRect seen = Pixels(plot);
        seen.BottomRight() += CSize(1, 1);
        Clip(seen & inner);
        if (g.m_GraphStyle == 1)
            Bars();
        else if (g.m_GraphStyle == 0 || g.m_GraphStyle == 2)
            Lines();
        Clip(inner);
    }
    if (g.m_ShowLegend && IsLarge(legend))
        Legend();
    ::SelectClipRgn(dc, nullptr);
    Select(::GetStockObject(NULL_PEN));
    Select(::GetStockObject(NULL_BRUSH));
    Select(::GetStockObject(SYSTEM_FONT));
}

void PlainGraph::Caption() {
    Brush(g.m_CaptionColor);
    Box(caption);
    Font(-PointsToPixels(30 * g.m_CaptionFontSize), 0, FW_NORMAL, g.m_CaptionFontFace);
    CString text;
    g.GetWindowText(text);
    Say(caption.CenterPoint().x, 0, TA_CENTER | TA_TOP, g.m_CaptionTextColor, text);
    if (!g.m_ShowIconMaximize)
        return;
    Brush(kWhite);
    Select(::GetStockObject(NULL_PEN));
    Box(icon);
    Pen(g.m_CaptionColor);
    CRect at = icon;
    if (g.m_IconMaximizePressed)
        at += CPoint(30, 30);
    // Pixels from the icon's edges. A bar is one pixel high.
    const auto bar = [&](int l, int t, int r) {
        Brush(g.m_CaptionColor);
        Box({at.left + 30 * l, at.top + 30 * t, at.right - 30 * r, at.top + 30 * (t + 1)});
    };
    const auto body = [&](int l, int t, int r, int b) {
        Brush(kWhite);
        Box({at.left + 30 * l, at.top + 30 * t, at.right - 30 * r, at.bottom - 30 * b});
    };
    if (g.m_IconMaximized == 1) {
        bar(3, 1, 2);
        body(3, 2, 2, 5);
        bar(1, 4, 4);
        body(1, 5, 4, 2);
    } else {
        bar(1, 1, 2);
        body(1, 2, 2, 2);
    }
}

void PlainGraph::Labels() {
    if (g.m_TitleStyle != 1) {
        Font(labelUnit, 0, FW_BOLD);
        Say((title.left + title.right) / 2, title.top, TA_CENTER, g.m_TitleColor, g.m_Title);
    }
    const int height = labelUnit - 50, middle = (yTick.bottom + title.bottom) / 2;
    if (g.m_ShowYLabel) {
        Font(height, 900);
        Say(title.left, middle, TA_CENTER, g.m_YLabelColor, g.m_YLabel);
    }
    if (g.m_ShowY2Label && g.m_GraphStyle == 2) {
        Font(height, -900);
        Say(title.right, middle, TA_CENTER, g.m_Y2LabelColor, g.m_Y2Label);
    }
    if (g.m_ShowXLabel) {
        Font(height);
        Say((xTick.right + yAxis.right) / 2, xTick.bottom, TA_CENTER, g.m_XLabelColor, g.m_XLabel);
    }
}

void PlainGraph::YAxis(int which) {
    const bool y2 = which == 1;
    const CRect& axis = y2 ? y2Axis : yAxis;
    Pen(g.m_GraphStyle == 2 ? g.m_Datasets[which].GetColor() : g.m_AxisColor);
    const int line = y2 ? y2Axis.left : yAxis.right;
    Stroke(line, axis.top, line, axis.bottom);
    const int ticks = plot.Height() / 500;
    if (ticks < 2)
        return;
    const int step = axis.Height() / (ticks - 1);
    for (int i = 0; i < ticks; ++i)
        Stroke(axis.left, axis.bottom - i * step, axis.right, axis.bottom - i * step);
    Pen(g.m_GridColor, PS_DOT);
    for (int i = 1; i < ticks && g.m_GridY && !y2; ++i)
        Stroke(plot.left, axis.bottom - i * step, plot.right, axis.bottom - i * step);
    double value = y2 ? g.m_Y2VisibleMin : g.m_YVisibleMin;
    double distance = ((y2 ? g.m_Y2VisibleMax : g.m_YVisibleMax) - value) / (ticks - 1);
    const double power = std::pow(10, y2 ? g.m_Y2UnitExponent : g.m_YUnitExponent);
    value /= power;
    distance /= power;
    const int decimals = std::max(y2 ? g.m_Y2TickLabelScale : g.m_YTickLabelScale, 0);
    Font(350);
    for (int i = 0; i < ticks; ++i, value += distance) {
        char text[400];
        std::snprintf(text, sizeof text, "%.*f", decimals, value);
        Say(axis.right + (y2 ? 100 : -100), axis.bottom - 150 - i * step,
            y2 ? TA_LEFT | TA_TOP : TA_RIGHT | TA_TOP, y2 ? g.m_Y2TickLabelColor : g.m_YTickLabelColor, text);
    }
    Font(450);
    Say(axis.right + (y2 ? 50 : -50), axis.top, y2 ? TA_RIGHT | TA_BOTTOM : TA_LEFT | TA_BOTTOM,
        y2 ? g.m_Y2TickLabelColor : g.m_YTickLabelColor, y2 ? g.m_Y2Unit : g.m_YUnit);
}

void PlainGraph::XAxis() {
    Pen(g.m_AxisColor);
    Stroke(xAxis.left, xAxis.top, xAxis.right, xAxis.top);
    if (xTicks < 2)
        return;
    m_ticks = {};
    m_ticks.minGap = xTick.Width() / (xTicks - 1);
    m_ticks.next = plot.left;
    Font(300, 900);
    if (g.m_GraphStyle == 1)
        BarTicks();
    else if (g.m_GraphStyle == 0 || g.m_GraphStyle == 2)
        LineTicks();
}

void PlainGraph::LineTicks() {
    for (int i = 0; i < g.GetDatasetSize(0); ++i)
        if (g.m_XVisibleMin <= i && i <= g.m_XVisibleMax)
            if (const auto x = XRange().Place(i))
                Tick(i, *x, g.m_GridX);
}

void PlainGraph::BarTicks() {
    int slot = 0;
    for (const CDataset& dataset : g.m_Datasets)
        for (int i = 0; i < dataset.GetSize() && slot < slots.visible; ++i)
            if (i >= g.m_XVisibleMin) {
                Tick(i, plot.left + slots.Stride() * slot + slots.bar * slots.datasets / 2, false);
                ++slot;
            }
}

/// A sample that may get a tick. Once the first two ticks are found, every sample at their interval has one.
/// Of ticks in one pixel column the first is drawn.
void PlainGraph::Tick(int index, int x, bool grid) {
    Thinning& t = m_ticks;
    if (t.first == -1)
        t.first = index;
    if (x < t.next)
        return;
    if (t.counted != -1)
        ++t.counted;
    if (t.interval != -1 && t.counted % t.interval != 0)
        return;
    if (t.interval == -1 && t.next != plot.left) {
        t.interval = index - t.first;
        t.counted = 0;
    }
    if (t.lastPixel != Pixel(x)) {
        Pen(g.m_AxisColor);
        Stroke(x, xAxis.bottom, x, xAxis.top);
        if (grid) {
            Pen(g.m_GridColor, PS_DOT);
            Stroke(x, xAxis.top, x, plot.top);
        }
        TickLabel(index, x);
        t.lastPixel = Pixel(x);
    }
    if (t.interval == -1)
        t.next += t.minGap;
}

void PlainGraph::TickLabel(int index, int x) {
    CString up = LabelAt(g.m_XTickLabelUp, index), down = LabelAt(g.m_XTickLabelDown, index);
    const int most = std::max(g.m_XTickLabelUpStringMaxLength, 0), y = xTick.top + 100;
    if (down.IsEmpty() && up.GetLength() <= most) {
        Say(x + 100, y, TA_RIGHT | TA_BASELINE, g.m_XTickLabelColor, up);
        return;
    }
    if (down.IsEmpty()) {
        down = up.Mid(most);
        up = up.Left(most);
        down.TrimLeft();
        up.TrimRight();
    }
    Say(x + 70, y, TA_RIGHT | TA_BOTTOM, g.m_XTickLabelColor, up);
    Say(x, y, TA_RIGHT, g.m_XTickLabelColor, down);
}

void PlainGraph::Lines() {
    Select(::GetStockObject(NULL_BRUSH));
    for (int d = g.m_GraphStyle == 2 ? 1 : CGraphCtrl::DatasetCount - 1; d >= 0; --d)
        if (g.m_Datasets[d].m_Visible)
            Line(d);
}

void PlainGraph::Line(int index) {
    const CDataset& dataset = g.m_Datasets[index];
    Pen(dataset.GetColor(), PS_SOLID, dataset.GetLineSize());
    std::vector<testkit::PlainSample> samples;
    for (int i = 0; i < dataset.GetSize(); ++i) {
        double value = 0;
        dataset.GetYData(i, value);
        samples.push_back(
            {XRange().Place(i), YRange(index).Place(value), i == g.m_SelectionMarkPos && !std::isnan(value)});
    }
    testkit::DrawPlainLine(m_dc, samples, dataset.GetMarkerType(), plot, g.m_LineCursorColor);
}

void PlainGraph::Bars() {
    Select(::GetStockObject(NULL_PEN));
    int offset = 0;
    for (int d = 0; d < CGraphCtrl::DatasetCount && slots.bar != 0; ++d) {
        const CDataset& dataset = g.m_Datasets[d];
        for (int i = 0, slot = 0; i < dataset.GetSize() && slot < slots.visible; ++i) {
            if (i < g.m_XVisibleMin)
                continue;
            double value = 0;
            dataset.GetYData(i, value);
            const int x = offset + slots.Stride() * slot++ + plot.left;
            if (i == g.m_SelectionMarkPos && offset == 0 && !std::isnan(value)) {
                Brush(g.m_BoxCursorColor);
                Box({x - slots.bar / 2, plot.top, x + slots.bar * slots.datasets + slots.bar / 2,
                     plot.bottom});
            }
            Brush(dataset.GetColor());
            // Three pixels beyond the plot a bar is cut: nothing is seen there.
            if (const auto y = YRange(d).Place(value); y && dataset.m_Visible)
                Box({x, std::clamp<int>(*y, plot.top - 90, plot.bottom + 90), x + slots.bar, plot.bottom});
        }
        if (dataset.GetSize() > 0)
            offset += slots.bar;
    }
}

void PlainGraph::Legend() {
    Select(::GetStockObject(NULL_PEN));
    if (g.m_ShowLegendBoard) {
        Brush(RGB(192, 192, 192));
        Box(legend + CPoint(100, 100));
        Brush(g.m_LegendColor);
        Box(legend);
    }
    CRect inside = legend;
    if (!g.m_ShowLegendBoard)
        inside.right = R;
    inside = Pixels(inside);
    inside.right -= 3;
    Clip(inside & CRect(0, 0, size.cx - 1, size.cy - 1));
    Font(350);
    const int side = g.m_LegendItemHeight, margin = g.m_LegendMargin, x = legend.left + margin;
    int y = legend.top + margin;
    for (const CDataset& dataset : g.m_Datasets) {
        if (dataset.m_Legend.IsEmpty())
            continue;
        Brush(dataset.m_Visible ? dataset.GetColor() : kWhite);
        Box({x, y, x + side, y + side});
        Say(x + margin + side, y - side / 6, TA_LEFT | TA_TOP, g.m_LegendTextColor, dataset.m_Legend);
        y += margin + side;
    }
}

void PlainGraph::Pen(COLORREF colour, int style, int width) {
    Select(::CreatePen(style, width, colour));
}

void PlainGraph::Brush(COLORREF colour) {
    Select(::CreateSolidBrush(colour));
}

/// The control's own fonts are Arial; `face` is the caption's.
void PlainGraph::Font(int height, int escapement, int weight, LPCTSTR face) {
    LOGFONT font = {};
    font.lfHeight = height;
    font.lfCharSet = DEFAULT_CHARSET;
    if (face == nullptr) {
        font.lfEscapement = escapement;
        font.lfWeight = weight;
        font.lfCharSet = ANSI_CHARSET;
        font.lfOutPrecision = OUT_TT_PRECIS;
        font.lfClipPrecision = CLIP_LH_ANGLES;
        font.lfQuality = PROOF_QUALITY;
    }
    lstrcpyn(font.lfFaceName, face == nullptr ? _T("Arial") : face, LF_FACESIZE);
    Select(::CreateFontIndirect(&font));
}

void PlainGraph::Clip(CRect pixels) {
    const HRGN region = ::CreateRectRgnIndirect(pixels + m_origin);
    ::SelectClipRgn(m_dc, region);
    ::DeleteObject(region);
}

void PlainGraph::Stroke(int x1, int y1, int x2, int y2) {
    ::MoveToEx(m_dc, x1, y1, nullptr);
    ::LineTo(m_dc, x2, y2);
}

void PlainGraph::Say(int x, int y, UINT align, COLORREF colour, const CString& text) {
    ::SetTextAlign(m_dc, align);
    ::SetTextColor(m_dc, colour);
    ::TextOut(m_dc, x, y, text, text.GetLength());
}

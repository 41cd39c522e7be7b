// SPDX-License-Identifier: MIT
// Drawing with GDI: rounding, pens, brushes and fonts, and the faster of two calls that draw the same pixels.
#include "graph/GraphCanvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "gdi/DirectPaint.h"
#include "gdi/Text.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr std::size_t kMostTools = 256; // greatest number of pens, and of brushes, that are kept

} // namespace

GraphCanvas::GraphCanvas(CDC& dc, const GraphFrame& frame)
    : m_attributes(dc), m_saved(dc), m_dc(dc), m_frame(frame),
      m_pixels(frame.pixel == 1 && !frame.up && dc.GetMapMode() == MM_TEXT &&
               KindOfStrokes(dc) == StrokeKind::Pixels),
      m_hostPen(::GetCurrentObject(dc.m_hDC, OBJ_PEN)), m_hostBrush(::GetCurrentObject(dc.m_hDC, OBJ_BRUSH)),
      m_hostInk(dc.GetTextColor()) {
    m_visible = {0, 0, Width(), Height()};
    CRect clip;
    if (m_pixels && m_dc.GetClipBox(&clip) != ERROR)
        m_visible = {std::max<double>(clip.left, 0), std::max<double>(clip.top, 0),
                     std::min<double>(clip.right, Width()), std::min<double>(clip.bottom, Height())};
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.SetTextAlign(TA_LEFT | TA_TOP);
}

GraphCanvas::~GraphCanvas() {
    HostTools();
}

int GraphCanvas::X(double x) const {
    return ToCoordinate(std::floor(m_frame.left + x + 0.5));
}

int GraphCanvas::Y(double y) const {
    return ToCoordinate(m_frame.up ? std::ceil(m_frame.top - y - 0.5) : std::floor(m_frame.top + y + 0.5));
}

void GraphCanvas::SetLine(COLORREF colour, double pixels) {
    m_penWidth = std::max(1, TruncateToInt(pixels * Pixel() + 0.5));
    if (m_pens.size() >= kMostTools && m_pens.count({colour, m_penWidth}) == 0) {
        Select(m_dc, m_hostPen);
        m_pens.clear();
    }
    CPen& pen = m_pens[{colour, m_penWidth}];
    if (pen.GetSafeHandle() == nullptr)
        pen.CreatePen(PS_SOLID, m_penWidth, colour);
    Select(m_dc, pen);
}

void GraphCanvas::NoLine() {
    m_dc.SelectStockObject(NULL_PEN);
}

void GraphCanvas::SetFill(COLORREF colour) {
    if (m_brushes.size() >= kMostTools && m_brushes.count(colour) == 0) {
        Select(m_dc, m_hostBrush);
        m_brushes.clear();
    }
    CBrush& brush = m_brushes[colour];
    if (brush.GetSafeHandle() == nullptr)
        brush.CreateSolidBrush(colour);
    Select(m_dc, brush);
}

void GraphCanvas::NoFill() {
    m_dc.SelectStockObject(NULL_BRUSH);
}

void GraphCanvas::HostTools() {
    Select(m_dc, m_hostPen);
    Select(m_dc, m_hostBrush);
}

void GraphCanvas::Line(PlanePoint from, PlanePoint to) {
    const double aside = m_penWidth; // covers half the width of the pen, and the rounding to whole units
    if (std::max(from.x, to.x) < m_visible.left - aside || std::min(from.x, to.x) > m_visible.right + aside ||
        std::max(from.y, to.y) < m_visible.top - aside || std::min(from.y, to.y) > m_visible.bottom + aside)
        return;
    m_dc.MoveTo(At(from));
    m_dc.LineTo(At(to));
}

const std::vector<POINT>& GraphCanvas::At(const PlanePoint* points, std::size_t count) {
    m_places.resize(count);
    std::transform(points, points + count, m_places.begin(), [this](PlanePoint place) { return At(place); });
    return m_places;
}

void GraphCanvas::Polyline(const std::vector<PlanePoint>& points) {
    if (points.size() < 2)
        return;
    const std::vector<POINT>& places = At(points.data(), points.size());
    if (m_penWidth > 1) {
        // With a wide pen GDI's Polyline draws the same pixels as LineTo and takes eight times as long.
        m_dc.MoveTo(places.front());
        for (std::size_t i = 1; i < places.size(); ++i)
            m_dc.LineTo(places[i]);
        return;
    }
    m_dc.Polyline(places.data(), static_cast<int>(places.size()));
}

void GraphCanvas::Polygon(const PlanePoint* points, std::size_t count) {
    const std::vector<POINT>& places = At(points, count);
    m_dc.Polygon(places.data(), static_cast<int>(places.size()));
}

void GraphCanvas::FillPixels(const CRect& area, COLORREF colour) {
    if (area.Width() <= 0 || area.Height() <= 0)
        return;
    SetFill(colour);
    m_dc.PatBlt(area.left, area.top, area.Width(), area.Height(), PATCOPY);
}

void GraphCanvas::Box(const PlaneRect& area, COLORREF fill, COLORREF outline) {
    CRect pixels(X(area.left), Y(area.top), X(area.right), Y(area.bottom));
    // Two fills are faster than GDI's Rectangle, which takes as long for the vertical lines of a border as
    // for a fill. And Rectangle draws nothing when the area is a single logical unit.
    if (m_pixels || pixels.Size() == CSize(1, 1)) {
        FillPixels(pixels, outline);
        pixels.DeflateRect(1, 1);
        if (fill != outline)
            FillPixels(pixels, fill);
        return;
    }
    SetLine(outline);
    SetFill(fill);
    Rectangle(area);
}

void GraphCanvas::Rectangle(const PlaneRect& area) {
    m_dc.Rectangle(X(area.left), Y(area.top), X(area.right), Y(area.bottom));
}

void GraphCanvas::Circle(PlanePoint centre, double radius) {
    m_dc.Ellipse(X(centre.x - radius), Y(centre.y - radius), X(centre.x + radius + Pixel()),
                 Y(centre.y + radius + Pixel()));
}

void GraphCanvas::Text(PlanePoint place, const CString& text) {
    // Every character is narrower than twice the height of its cell.
    const double reach = m_font.height * (2.0 * text.GetLength() + 1);
    const double back = m_font.angle != 0 ? reach : 0;
    if (place.x - back > m_visible.right || place.y - back > m_visible.bottom ||
        place.x + reach < m_visible.left || place.y + reach < m_visible.top)
        return;
    if (!m_frame.up || m_font.angle == 0) {
        DrawTextAt(m_dc, X(place.x), Y(place.y), text);
        return;
    }
    // Where y grows upwards, implementations of GDI differ in the direction in which they turn a text. So the
    // mapping is changed to the same scale with y growing downwards, where all turn in the same direction.
    const SavedDcGuard saved(m_dc);
    CPoint at(X(place.x), Y(place.y));
    m_dc.LPtoDP(&at);
    const CSize window = m_dc.GetWindowExt();
    const CSize viewport = m_dc.GetViewportExt();
    m_dc.SetMapMode(MM_ANISOTROPIC);
    m_dc.SetWindowExt(std::abs(window.cx), std::abs(window.cy));
    m_dc.SetViewportExt(std::abs(viewport.cx), std::abs(viewport.cy));
    m_dc.DPtoLP(&at);
    DrawTextAt(m_dc, at.x, at.y, text);
}

LabelSize GraphCanvas::Measure(const CString& text) const {
    const CSize size = MeasureText(m_dc, text, text.GetLength());
    return {static_cast<double>(size.cx), static_cast<double>(size.cy)};
}

CString GraphCanvas::Shorten(const CString& text, double room) const {
    return Shortened(m_dc, text, room);
}

LabelSize GraphCanvas::Character() const {
    TEXTMETRIC metrics{};
    m_dc.GetTextMetrics(&metrics);
    return {static_cast<double>(metrics.tmAveCharWidth), static_cast<double>(metrics.tmHeight)};
}

GraphFont::GraphFont(GraphCanvas& canvas, int pixels, int angle, int weight)
    : m_canvas(canvas), m_before(canvas.m_font),
      m_height(std::clamp(pixels, 1, kLargest) * static_cast<int>(canvas.Pixel())),
      m_selected(canvas.Dc(), Make(m_font, m_height, angle, weight)) {
    canvas.m_font = {static_cast<double>(m_height), angle};
}

HGDIOBJ GraphFont::Make(CFont& font, int height, int angle, int weight) {
    constexpr int kTenths = 10;
    constexpr BYTE kAnyPitchRoman = DEFAULT_PITCH | FF_ROMAN;
    font.CreateFont(height, 0, angle * kTenths, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, kAnyPitchRoman, _T("Arial"));
    return font.GetSafeHandle();
}

} // namespace kavlix

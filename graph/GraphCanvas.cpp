#include "graph/GraphCanvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "gdi/Text.h"
#include "graphctrl/Numeric.h"

namespace kavlix {

GraphCanvas::GraphCanvas(CDC& dc, const GraphFrame& frame)
    : m_attributes(dc), m_saved(dc), m_dc(dc), m_frame(frame),
      m_hostPen(::GetCurrentObject(dc.m_hDC, OBJ_PEN)), m_hostBrush(::GetCurrentObject(dc.m_hDC, OBJ_BRUSH)) {
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.SetTextColor(RGB(0, 0, 0));
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
    const int width = std::max(1, TruncateToInt(pixels * Pixel() + 0.5));
    if (m_pen.GetSafeHandle() == nullptr || m_penColour != colour || m_penWidth != width) {
        Select(m_dc, m_hostPen);
        m_pen.DeleteObject();
        m_pen.CreatePen(PS_SOLID, width, colour);
        m_penColour = colour;
        m_penWidth = width;
    }
    Select(m_dc, m_pen);
}

void GraphCanvas::NoLine() {
    m_dc.SelectStockObject(NULL_PEN);
}

void GraphCanvas::SetFill(COLORREF colour) {
    if (m_brush.GetSafeHandle() == nullptr || m_brushColour != colour) {
        Select(m_dc, m_hostBrush);
        m_brush.DeleteObject();
        m_brush.CreateSolidBrush(colour);
        m_brushColour = colour;
    }
    Select(m_dc, m_brush);
}

void GraphCanvas::NoFill() {
    m_dc.SelectStockObject(NULL_BRUSH);
}

void GraphCanvas::HostTools() {
    Select(m_dc, m_hostPen);
    Select(m_dc, m_hostBrush);
}

void GraphCanvas::Line(PlanePoint from, PlanePoint to) {
    m_dc.MoveTo(At(from));
    m_dc.LineTo(At(to));
}

std::vector<POINT> GraphCanvas::At(const PlanePoint* points, std::size_t count) const {
    std::vector<POINT> places(count);
    std::transform(points, points + count, places.begin(), [this](PlanePoint place) { return At(place); });
    return places;
}

void GraphCanvas::Polyline(const std::vector<PlanePoint>& points) {
    if (points.size() < 2)
        return;
    const std::vector<POINT> places = At(points.data(), points.size());
    m_dc.Polyline(places.data(), static_cast<int>(places.size()));
}

void GraphCanvas::Polygon(const PlanePoint* points, std::size_t count) {
    const std::vector<POINT> places = At(points, count);
    m_dc.Polygon(places.data(), static_cast<int>(places.size()));
}

void GraphCanvas::Rectangle(const PlaneRect& area) {
    m_dc.Rectangle(X(area.left), Y(area.top), X(area.right), Y(area.bottom));
}

void GraphCanvas::Circle(PlanePoint centre, double radius) {
    m_dc.Ellipse(X(centre.x - radius), Y(centre.y - radius), X(centre.x + radius + Pixel()),
                 Y(centre.y + radius + Pixel()));
}

void GraphCanvas::Text(PlanePoint place, const CString& text) {
    LOGFONT font{};
    ::GetObject(::GetCurrentObject(m_dc.m_hAttribDC, OBJ_FONT), sizeof font, &font);
    if (!m_frame.up || font.lfEscapement == 0) {
        DrawTextAt(m_dc, X(place.x), Y(place.y), text);
        return;
    }
    // Which way a font turns where y grows upwards differs from system to system; the same scale with y
    // downwards leaves no doubt.
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
    if (Measure(text).width <= room)
        return text;
    const auto cut = [&](int length) {
        length = WholeCharacters(text, text.GetLength(), length);
        return length > 0 ? text.Left(length) + "..." : CString();
    };
    int fits = 0;
    for (int tooLong = text.GetLength(); tooLong - fits > 1;) {
        const int length = fits + (tooLong - fits) / 2;
        (Measure(cut(length)).width <= room ? fits : tooLong) = length;
    }
    return cut(fits);
}

LabelSize GraphCanvas::Character() const {
    TEXTMETRIC metrics{};
    m_dc.GetTextMetrics(&metrics);
    return {static_cast<double>(metrics.tmAveCharWidth), static_cast<double>(metrics.tmHeight)};
}

GraphFont::GraphFont(GraphCanvas& canvas, int pixels, int angle, int weight)
    : m_selected(canvas.Dc(), Make(m_font, std::clamp(pixels, 1, 1000) * static_cast<int>(canvas.Pixel()),
                                   angle, weight)) {
}

HGDIOBJ GraphFont::Make(CFont& font, int height, int angle, int weight) {
    constexpr int kTenths = 10;
    constexpr BYTE kAnyPitchRoman = DEFAULT_PITCH | FF_ROMAN;
    font.CreateFont(height, 0, angle * kTenths, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, kAnyPitchRoman, "Arial");
    return font.GetSafeHandle();
}

} // namespace kavlix

#pragma once

#include <afxwin.h>

#include <map>
#include <utility>
#include <vector>

#include "gdi/Guards.h"
#include "graph/core/LabelPlacement.h"
#include "graph/core/PlanePoint.h"

namespace kavlix {

/// Where a picture lies in a DC, in the DC's logical units.
struct GraphFrame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int pixel = 1;   ///< logical units to a pixel of the screen
    bool up = false; ///< whether the DC's y grows upwards
};

/// A DC into which a picture is painted, with one pen and one brush at a time.
///
/// Places are in logical units from the picture's upper left corner, x to the right and y downwards,
/// whichever way the DC runs; they are rounded here, and held within what GDI can draw. While the canvas
/// lives text stands on whatever is below it, in the DC's text colour; the DC's state comes back at its end.
class GraphCanvas {
public:
    GraphCanvas(CDC& dc, const GraphFrame& frame);
    ~GraphCanvas();
    GraphCanvas(const GraphCanvas&) = delete;
    GraphCanvas& operator=(const GraphCanvas&) = delete;

    CDC& Dc() { return m_dc; }
    /// A pixel of the screen, in the picture's units.
    double Pixel() const { return m_frame.pixel; }
    double Width() const { return m_frame.width; }
    double Height() const { return m_frame.height; }
    /// Logical coordinates of the DC.
    int X(double x) const;
    int Y(double y) const;

    /// Pens of `pixels` pixels' width.
    void SetLine(COLORREF colour, double pixels = 1);
    void NoLine();
    void SetFill(COLORREF colour);
    void NoFill();
    /// The pen and brush that were selected when the canvas was made.
    void HostTools();

    void Line(PlanePoint from, PlanePoint to);
    /// Lines from each point to the next, with the pen of SetLine.
    void Polyline(const std::vector<PlanePoint>& points);
    void Polygon(const PlanePoint* points, std::size_t count);
    template <class Points> void Polygon(const Points& points) { Polygon(points.data(), points.size()); }
    /// Right and bottom edge lie outside.
    void Rectangle(const PlaneRect& area);
    /// A rectangle filled with `fill`, with a border of one pixel in `outline`. Replaces pen and brush.
    void Box(const PlaneRect& area, COLORREF fill, COLORREF outline);
    void Circle(PlanePoint centre, double radius);

    /// The COLORREF that texts have without a colour of their own: the DC's when the canvas was made.
    COLORREF HostInk() const { return m_hostInk; }
    /// The place is the text's own upper left corner. A text that cannot reach the picture, or on the screen
    /// what is to be painted of it, is not drawn.
    void Text(PlanePoint place, const CString& text);
    LabelSize Measure(const CString& text) const;
    /// `text` whole if it is not wider than `room`, else cut and ended with dots; empty when not even they
    /// and one character fit.
    CString Shorten(const CString& text, double room) const;
    /// Average width of a character, and height, of the font selected.
    LabelSize Character() const;

private:
    friend class GraphFont;
    /// Of the font selected: height of its cell in the picture's units, and its turn in degrees.
    struct FontShape {
        double height = 0;
        int angle = 0;
    };

    POINT At(PlanePoint place) const { return {X(place.x), Y(place.y)}; }
    const std::vector<POINT>& At(const PlanePoint* points, std::size_t count);
    void FillPixels(const CRect& area, COLORREF colour);

    AttribDcGuard m_attributes;
    SavedDcGuard m_saved;
    CDC& m_dc;
    GraphFrame m_frame;
    PlaneRect m_visible; ///< of the picture, as far as it is known
    bool m_pixels;       ///< a logical unit is a pixel, and what is drawn replaces what is there
    HGDIOBJ m_hostPen;
    HGDIOBJ m_hostBrush;
    COLORREF m_hostInk;
    // Kept for the whole picture: a bar graph comes back to the same few colours for every series.
    std::map<std::pair<COLORREF, int>, CPen> m_pens; ///< by colour and width in logical units
    std::map<COLORREF, CBrush> m_brushes;
    int m_penWidth = 1;
    FontShape m_font;
    std::vector<POINT> m_places; ///< scratch of the shapes with many points
};

/// A font that is selected for as long as it lives.
class GraphFont {
public:
    static constexpr int kLargest = 1000; ///< pixels

    /// `pixels` is the height of the text's cell, held within 1 and kLargest; `angle` degrees
    /// counter-clockwise.
    GraphFont(GraphCanvas& canvas, int pixels, int angle = 0, int weight = FW_NORMAL);
    ~GraphFont() { m_canvas.m_font = m_before; }
    GraphFont(const GraphFont&) = delete;
    GraphFont& operator=(const GraphFont&) = delete;

private:
    static HGDIOBJ Make(CFont& font, int height, int angle, int weight);

    GraphCanvas& m_canvas;
    GraphCanvas::FontShape m_before;
    int m_height; ///< in the picture's units
    CFont m_font;
    SelectGuard m_selected;
};

} // namespace kavlix

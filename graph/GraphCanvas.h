// SPDX-License-Identifier: MIT
// A DC with the few drawing operations that a graph needs, on screen and paper alike.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "gdi/Guards.h"
#include "graph/core/LabelPlacement.h"
#include "graph/core/PlanePoint.h"

namespace kavlix {

/// The height in pixels of a font whose size the host has set: sizes below 1 count as 1.
inline int FontHeight(int size) {
    return std::max(size, 1);
}

/// Where a picture lies in a DC, in the DC's logical units.
struct GraphFrame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int pixel = 1;   ///< logical units per pixel: 1 on the screen, 15 twips on paper (96 pixels to the inch)
    bool up = false; ///< whether the DC's y grows upwards
};

/// Draws shapes and texts of a picture into a DC, with one pen and one brush at a time.
///
/// Places are in logical units from the picture's upper left corner, x to the right and y downwards, also in
/// a DC whose y grows upwards. The canvas rounds places to whole units and limits them to what GDI can draw.
/// Texts have a transparent background and the DC's text colour. The destructor restores the DC's state.
class GraphCanvas {
public:
    GraphCanvas(CDC& dc, const GraphFrame& frame);
    ~GraphCanvas();
    GraphCanvas(const GraphCanvas&) = delete;
    GraphCanvas& operator=(const GraphCanvas&) = delete;

    CDC& Dc() { return m_dc; }
    /// The size of a screen pixel, in logical units.
    double Pixel() const { return m_frame.pixel; }
    double Width() const { return m_frame.width; }
    double Height() const { return m_frame.height; }
    /// The DC's logical coordinate of a place in the picture.
    int X(double x) const;
    int Y(double y) const;

    /// Selects a solid pen that is `pixels` screen pixels wide.
    void SetLine(COLORREF colour, double pixels = 1);
    void NoLine();
    void SetFill(COLORREF colour);
    void NoFill();
    /// Selects the pen and brush that the DC had when the canvas was made.
    void HostTools();

    void Line(PlanePoint from, PlanePoint to);
    /// Lines from each point to the next. Call SetLine before.
    void Polyline(const std::vector<PlanePoint>& points);
    void Polygon(const PlanePoint* points, std::size_t count);
    template <class Points> void Polygon(const Points& points) { Polygon(points.data(), points.size()); }
    /// The right and bottom edges are not part of the rectangle.
    void Rectangle(const PlaneRect& area);
    /// Draws a rectangle filled with `fill`, with a border one pixel wide in `outline`. May select another
    /// pen and brush.
    void Box(const PlaneRect& area, COLORREF fill, COLORREF outline);
    void Circle(PlanePoint centre, double radius);

    /// The text colour that the DC had when the canvas was made.
    COLORREF HostInk() const { return m_hostInk; }
    /// Draws a text in the selected font. `place` is the upper left corner of the text; a turned font turns
    /// the text around this corner. A text that cannot reach the visible part of the picture is not drawn.
    void Text(PlanePoint place, const CString& text);
    /// The size of a text in the selected font, before the text is turned.
    LabelSize Measure(const CString& text) const;
    /// `text` if it is at most `room` logical units wide, otherwise its beginning and three dots. Empty when
    /// not even one character and the dots fit.
    CString Shorten(const CString& text, double room) const;
    /// The average width and the height of a character in the selected font.
    LabelSize Character() const;

private:
    friend class GraphFont;
    /// Height in logical units and angle in degrees of the selected font.
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
    PlaneRect m_visible; ///< if m_pixels, the picture's part in the DC's clip box; otherwise all of it
    bool m_pixels;       ///< the DC paints pixels immediately (StrokeKind::Pixels); 1 logical unit is 1 pixel
    HGDIOBJ m_hostPen;
    HGDIOBJ m_hostBrush;
    COLORREF m_hostInk;
    // Pens and brushes are kept for reuse: every series of a bar graph uses the same few colours.
    std::map<std::pair<COLORREF, int>, CPen> m_pens; ///< by colour, and width in logical units
    std::map<COLORREF, CBrush> m_brushes;
    int m_penWidth = 1;
    FontShape m_font;
    std::vector<POINT> m_places; ///< the points of the shape being drawn; reused to save allocations
};

/// A bold or normal Arial. The constructor selects the font into the canvas, the destructor selects the font
/// that was selected before.
class GraphFont {
public:
    static constexpr int kLargest = 1000; ///< greatest height, pixels

    /// `pixels` is the height of a character cell; below 1 it counts as 1, above kLargest as kLargest.
    /// `angle` is in degrees counter-clockwise.
    GraphFont(GraphCanvas& canvas, int pixels, int angle = 0, int weight = FW_NORMAL);
    ~GraphFont() { m_canvas.m_font = m_before; }
    GraphFont(const GraphFont&) = delete;
    GraphFont& operator=(const GraphFont&) = delete;

private:
    static HGDIOBJ Make(CFont& font, int height, int angle, int weight);

    GraphCanvas& m_canvas;
    GraphCanvas::FontShape m_before;
    int m_height; ///< in logical units
    CFont m_font;
    SelectGuard m_selected;
};

} // namespace kavlix

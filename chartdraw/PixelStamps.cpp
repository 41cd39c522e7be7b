// SPDX-License-Identifier: MIT
// Shapes at many pixels: painted together from a mask, or drawn one by one by GDI.
#include "chartdraw/PixelStamps.h"

#include <vector>

#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Scratch.h"

namespace kavlix {
namespace {

/// Selects the pen and brush that draw a shape; the destructor restores the DC.
class Ink {
public:
    Ink(CDC& dc, COLORREF colour, bool isFilled) : m_saved(dc) {
        m_pen.CreatePen(PS_SOLID, 0, colour);
        if (isFilled)
            m_brush.CreateSolidBrush(colour);
        else
            m_brush.CreateStockObject(NULL_BRUSH);
        Select(dc, m_pen);
        Select(dc, m_brush);
    }

private:
    CPen m_pen;
    CBrush m_brush;
    SavedDcGuard m_saved; // last member: it must restore the DC before pen and brush are deleted
};

/// The pixels that GDI paints for a shape, relative to its centre. Empty when no scratch picture can be made.
std::vector<Point> PixelsOf(const StampShape& shape) {
    std::vector<Point> pixels;
    const int side = 2 * shape.reach + 1;
    Scratch scratch(side);
    if (!scratch.IsReady())
        return pixels;
    const Ink ink(scratch.Dc(), RGB(255, 255, 255), shape.isFilled);
    shape.draw(scratch.Dc(), shape.reach, shape.reach);
    ::GdiFlush();
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            if (scratch.Pixel(x, y) != 0)
                pixels.push_back({x - shape.reach, y - shape.reach});
    return pixels;
}

} // namespace

void DrawStamps(CDC& dc, const std::optional<PixelRaster>& raster, const POINT& origin,
                const PixelSet& places, COLORREF colour, const StampShape& shape) {
    if (places.IsEmpty())
        return;
    const std::optional<std::uint32_t> ink = DirectColour(colour);
    const std::vector<Point> pixels = raster && ink ? PixelsOf(shape) : std::vector<Point>();
    if (pixels.empty()) {
        const Ink pens(dc, colour, shape.isFilled);
        places.Visit([&](const Point& place) { shape.draw(dc, place.x, place.y); });
        return;
    }
    ::GdiFlush(); // GDI must finish its pending calls before pixels are written directly
    places.Stamped(pixels, shape.reach).VisitRuns([&](const Rect& run) {
        raster->Fill({run.left + origin.x, run.top + origin.y, run.right + origin.x, run.bottom + origin.y},
                     *ink);
    });
}

} // namespace kavlix

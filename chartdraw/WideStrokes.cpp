// SPDX-License-Identifier: MIT
// The cache of stroke shapes, and strokes of any length by GDI.
#include "chartdraw/WideStrokes.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>

#include "gdi/Guards.h"
#include "gdi/Scratch.h"
#include "plot/StrokeCut.h"

namespace kavlix {
namespace {

constexpr int kLongest = 255;  // largest distance in rows between the ends of a cached stroke
constexpr int kDirections = 3; // to the column on the left, within the column, and to the column on the right
constexpr int kLengths = 2 * kLongest + 1;

bool IsFar(const Point& point, const Rect& view) {
    return point.x < view.left - kFarFromView || point.x > view.right + kFarFromView ||
           point.y < view.top - kFarFromView || point.y > view.bottom + kFarFromView;
}

} // namespace

/// The cached shapes of one pen width, one entry for each direction and length.
struct WideStrokes::Shapes {
    struct Entry {
        bool isKnown = false;
        Shape shape;
    };
    std::array<Entry, kDirections * kLengths> entries;
};

WideStrokes::WideStrokes(CDC& dc, int width, const Rect& view, const std::optional<PixelRaster>& raster,
                         std::uint32_t colour, const POINT& origin)
    : m_dc(dc), m_width(width), m_view(view), m_raster(raster), m_colour(colour), m_origin(origin) {
    if (m_raster)
        m_shapes = &ShapesOf(width);
}

WideStrokes::~WideStrokes() = default;

/// All charts of a thread share the cache. It never shrinks: there are at most 100 line widths, and a shape
/// takes some hundred bytes.
WideStrokes::Shapes& WideStrokes::ShapesOf(int width) {
    thread_local std::map<int, std::unique_ptr<Shapes>> all;
    std::unique_ptr<Shapes>& shapes = all[width];
    if (!shapes)
        shapes = std::make_unique<Shapes>();
    return *shapes;
}

void WideStrokes::Draw(const Point* points, int count) {
    for (int i = 1; i < count; ++i) {
        const Point& from = points[i - 1];
        const Point& to = points[i];
        const Shape* shape = m_shapes != nullptr ? Find(to.x - from.x, to.y - from.y) : nullptr;
        if (shape == nullptr) {
            DrawByGdi(from, to);
            continue;
        }
        const int x = from.x + static_cast<int>(m_origin.x);
        const int y = from.y + static_cast<int>(m_origin.y);
        for (const Rect& part : *shape)
            m_raster->Fill({part.left + x, part.top + y, part.right + x, part.bottom + y}, m_colour);
    }
}

/// GDI's time grows with a stroke's length, visible or not. So an end far outside the view is replaced by a
/// nearer point, with which the stroke has the same visible pixels.
void WideStrokes::DrawByGdi(Point from, Point to) {
    if (!BringFarEndsNearer(from, to, IsFar(from, m_view), IsFar(to, m_view), m_view, m_width))
        return;
    m_dc.MoveTo(from.x, from.y);
    m_dc.LineTo(to.x, to.y);
}

/// The cached shape of the stroke from (0, 0) to (`dx`, `dy`); null when GDI has to draw the stroke.
const WideStrokes::Shape* WideStrokes::Find(int dx, int dy) {
    if (std::abs(dx) > 1 || std::abs(dy) > kLongest)
        return nullptr;
    Shapes::Entry& entry = m_shapes->entries[static_cast<std::size_t>((dx + 1) * kLengths + dy + kLongest)];
    if (!entry.isKnown)
        entry.isKnown = Learn(dx, dy, entry.shape);
    return entry.isKnown ? &entry.shape : nullptr;
}

/// Lets GDI draw a stroke into the scratch picture and reads its pixels back. False when that is impossible.
bool WideStrokes::Learn(int dx, int dy, Shape& shape) {
    const int margin = m_width + 2;
    if (!m_scratch)
        m_scratch = std::make_unique<Scratch>(kLongest + 1 + 2 * margin);
    if (!m_scratch->IsReady())
        return false;
    CDC& dc = m_scratch->Dc();
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, m_width, RGB(255, 255, 255)))
        return false;
    const SelectGuard selected(dc, pen);
    const int right = 2 * margin + 2;
    const int bottom = std::abs(dy) + 2 * margin + 1;
    dc.PatBlt(0, 0, right, bottom, BLACKNESS);
    const Point from{margin, dy < 0 ? margin - dy : margin};
    dc.MoveTo(from.x, from.y);
    dc.LineTo(from.x + dx, from.y + dy);
    ::GdiFlush();
    shape.clear();
    for (int y = 0; y < bottom; ++y) {
        for (int x = 0; x < right; ++x) {
            const int begin = x;
            while (x < right && m_scratch->Pixel(x, y) != 0)
                ++x;
            if (x == begin)
                continue;
            const Rect run{begin - from.x, y - from.y, x - from.x, y + 1 - from.y};
            if (!shape.empty() && shape.back().left == run.left && shape.back().right == run.right &&
                shape.back().bottom == run.top)
                shape.back().bottom = run.bottom;
            else
                shape.push_back(run);
        }
    }
    return true;
}

} // namespace kavlix

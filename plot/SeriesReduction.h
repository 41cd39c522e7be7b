// SPDX-License-Identifier: MIT
// Removes the points of a long line that cannot change a pixel.
#pragma once

#include <functional>
#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Takes the points of a line one by one and passes on only those that can change a pixel. A painter then
/// draws a few strokes per pixel column instead of one per sample.
///
/// The picture is the same as that of the whole line, for any solid pen. Of successive points in one pixel
/// column, the first, lowest, highest and last point are passed on, and of successive points in one pixel
/// row, the first, leftmost, rightmost and last point: their strokes cover the same pixels. Of successive
/// points beyond the same edge of the view, the first and last point are passed on. All other points are
/// passed on unchanged, so a line that goes back and forth across the view keeps all its points.
///
/// The points may come in any order of x. The memory in use does not depend on their number.
class SeriesReduction {
public:
    /// Receives a part of the line, at least 2 points. A line of a single point is not passed on. When a line
    /// comes in several parts, each part begins with the last point of the previous part.
    using Sink = std::function<void(const Point* points, int count)>;

    /// `view` is the visible area, enlarged on all sides by Reach of the pen, in device pixels as Add takes
    /// them. A pen at a point outside `view` must not paint a visible pixel.
    SeriesReduction(const Rect& view, Sink sink);
    /// Passes nothing on: call End when the line is complete.
    ~SeriesReduction() = default;
    SeriesReduction(const SeriesReduction&) = delete;
    SeriesReduction& operator=(const SeriesReduction&) = delete;

    /// The next point of a line that is drawn in device pixels.
    void Add(const Point& pixel) { Add(pixel, pixel); }
    /// The next point: its device pixel, and its position in the units of drawing. The position is what the
    /// sink receives.
    void Add(const Point& pixel, const Point& position);
    /// Ends the line and passes on the rest of it. The next point begins another line.
    void Break();
    /// Ends the last line, as Break does.
    void End() { Break(); }

    /// The largest distance, in pixels, from which a pen of `width` pixels can still paint inside the visible
    /// area.
    static int Reach(int width) { return width / 2 + 2; }

private:
    struct Entry {
        Point pixel;
        Point position;
        int order = 0; ///< index within the run
    };

    unsigned SidesOf(const Point& pixel) const;
    bool Continues(const Point& pixel, unsigned sides) const;
    int Key(const Point& pixel) const { return m_sameColumn ? pixel.y : pixel.x; }
    void FlushRun();
    void Append(const Entry& entry);
    void HandOn();

    Rect m_view;
    Sink m_sink;
    std::vector<Point> m_part;

    // The current run: successive points in one column, in one row or beyond one edge. Only its first, lowest
    // (or leftmost), highest (or rightmost) and last points are kept.
    int m_count = 0;
    bool m_sameColumn = false;
    bool m_sameRow = false;
    unsigned m_sides = 0; ///< edges of the view beyond which all points of the run lie
    Entry m_first;
    Entry m_low;
    Entry m_high;
    Entry m_last;
    int m_arrived = 0; ///< index of the first of the points at the run's end that all lie on its last pixel
};

} // namespace kavlix

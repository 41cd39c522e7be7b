#pragma once

#include <functional>
#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Takes the points of a line one by one and hands on only those that can change a pixel, so that a painter
/// does not walk through a million strokes.
///
/// The picture is that of the whole line, pixel for pixel, for any solid pen: of points that follow one
/// another in one pixel column (or row) the first, lowest, highest and last are handed on, whose strokes
/// cover what all strokes cover; of points that follow one another beyond the same edge of the view, the
/// first and the last. All others are handed on as they come: a line that goes back and forth across the view
/// is walked whole.
///
/// A line need not grow in x. Memory is constant.
class SeriesReduction {
public:
    /// Receives a part of the line, at least 2 points. Where a line is handed on in several parts, each
    /// begins with the last point of the one before.
    using Sink = std::function<void(const Point* points, int count)>;

    /// `view` in the units of the pixels given to Add: everything outside it is invisible, also to strokes as
    /// wide as the pen (see Reach).
    SeriesReduction(const Rect& view, Sink sink);
    /// Nothing is handed on here: call End when the line is complete.
    ~SeriesReduction() = default;
    SeriesReduction(const SeriesReduction&) = delete;
    SeriesReduction& operator=(const SeriesReduction&) = delete;

    /// The next point, where device pixels are the unit of drawing.
    void Add(const Point& pixel) { Add(pixel, pixel); }
    /// The next point: the device pixel that it falls on, and its position in the units of drawing, which is
    /// handed on.
    void Add(const Point& pixel, const Point& position);
    /// The line ends here; the next point begins another.
    void Break();
    /// Hands on all that is left. The reduction is as new afterwards.
    void End() { Break(); }

    /// How far beyond the view's edges a pen of `width` pixels still reaches into it.
    static int Reach(int width) { return width / 2 + 2; }

private:
    struct Entry {
        Point pixel;
        Point position;
        int order = 0; ///< within the run
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

    // The run of points that is being joined.
    int m_count = 0;
    bool m_sameColumn = false;
    bool m_sameRow = false;
    unsigned m_sides = 0; ///< edges of the view beyond which all points of the run lie
    Entry m_first;
    Entry m_low;
    Entry m_high;
    Entry m_last;
    int m_arrived = 0; ///< since that point of the run all have been on the pixel of the last
};

} // namespace kavlix

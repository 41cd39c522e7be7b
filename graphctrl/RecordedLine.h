// Lines for metafiles and printers.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <vector>

#include "graphctrl/LineTarget.h"
#include "graphctrl/core/PixelColumns.h"
#include "graphctrl/core/PixelRows.h"
#include "graphctrl/core/SampleStore.h"
#include "plot/Shapes.h"

namespace kavlix {

/// Has a DC that keeps strokes instead of pixels, as a metafile or a printer does, draw a line with the pen
/// that is selected. Of the points that the pixel rule keeps (one that falls on the pixel of the point before
/// is left out) the first, lowest, highest and last of each column of one logical unit are drawn: the same
/// painted strokes at a bounded size, however the picture is enlarged. Strokes are cut near the plot, since a
/// metafile's frame holds all that is drawn, seen or not.
class RecordedLine {
public:
    /// Pixels that strokes go on beyond what can be seen.
    static constexpr int kMargin = 32;

    /// `window` in pixels: what can be seen, and as far beyond it as the pen reaches. The ground's pixels are
    /// those of the window and the margin round it. A line with markers goes on from each sample, since
    /// drawing the marker moves there, and not from the last point that the pixel rule kept: its strokes are
    /// drawn one by one, but for those that lie in what the same column of one unit has already.
    RecordedLine(const LineTarget& target, const Rect& window, int penPixels, bool hasMarkers)
        : m_target(target), m_rows(target.yMap, target.rows), m_window(window), m_isThin(penPixels == 1),
          m_hasMarkers(hasMarkers) {}

    /// The next sample, at `x`; a NaN is a gap.
    void Add(double value, int x) {
        GoTo(x);
        if (value != value)
            End();
        else
            TakeUnlessOnKeptPixel(value);
    }
    /// The next samples, all of a column of one unit.
    void AddColumn(const SampleStore& samples, SampleStore::Reader& values, const PixelColumn& column) {
        GoTo(column.position);
        const int count = column.last - column.first + 1;
        if (!m_hasMarkers && count >= kLongColumn) {
            double copy[kRun];
            if (count <= kRun ? AddRun(values.Run(column.first, column.last, copy), count)
                              : AddExtremes(samples, values, column.first, column.last))
                return;
        }
        for (int i = column.first; i <= column.last; ++i)
            Add(values[i], column.position);
    }
    /// Draws all that came. The line may go on.
    void Pause();
    /// The line ends.
    void End();

private:
    /// A column's extremes are looked up when it has at least this many samples.
    static constexpr int kLongColumn = 8;
    /// A column of at most this many samples is read whole: the search among blocks takes longer.
    static constexpr int kRun = 256;

    struct Sample {
        int x;
        double value;
    };
    struct Kept {
        double value;
        int order; ///< among those of the column
    };
    /// Rows, or units, that the strokes of one column cover without a gap.
    struct Covered {
        int first = 0;
        int last = -1;
        bool Holds(const Covered& other) const { return first <= other.first && other.last <= last; }
        void Add(const Covered& other);
    };

    bool HasPixel(int column, int row) const {
        return m_target.columns.HasPixel(column) && m_target.rows.HasPixel(row);
    }
    bool IsNear(const Point& point) const {
        return m_target.columns.Holds(point.x) && m_target.rows.Holds(point.y);
    }
    void GoTo(int x) {
        if (x == m_x)
            return;
        m_x = x;
        m_pixel = m_target.columns.PixelOrSide(x);
    }
    bool TakeUnlessOnKeptPixel(double value) {
        const int row = m_rows.Of(value);
        const bool isSame = m_isOpen && m_pixel == m_keptPixel && row == m_keptRow &&
                            (HasPixel(m_pixel, row) || IsSameFarPixel({m_keptX, m_last}, {m_x, value}));
        if (!isSame)
            Keep(value, row);
        m_sample = {m_x, value};
        return !isSame;
    }
    bool AddRun(const double* values, int count);
    bool AddExtremes(const SampleStore& samples, SampleStore::Reader& values, int first, int last);
    int BeginOfPixel(const SampleStore& samples, SampleStore::Reader& values, int first, int last) const;
    bool IsSameFarPixel(const Sample& a, const Sample& b) const;
    /// The same for two samples of the column that is being added.
    bool IsSamePixel(double a, double b) const {
        const int row = m_rows.Of(a);
        return row == m_rows.Of(b) && (HasPixel(m_pixel, row) || IsSameFarPixel({m_x, a}, {m_x, b}));
    }
    Point Place(int x, double value) const { return {x, m_target.yMap.Position(value).value_or(0)}; }
    void Keep(double value, int row);
    bool IsCovered(double from, double to);
    void DrawColumn(bool isEnd);
    void From(const Point& point);
    void To(const Point& point);
    void ToFar(const Point& point);
    void Cut(const Point& begin, const Point& end);
    Point OnLine(const Point& from, const Point& to, const Point& pixel) const;
    void DrawPart();

    LineTarget m_target;
    PixelRows m_rows;
    Rect m_window;
    bool m_isThin;
    bool m_hasMarkers;

    int m_x = kCoordinateLimit + 1;        ///< of the last sample
    int m_pixel = 0;                       ///< its column
    Sample m_sample = {};                  ///< the last sample, kept or not; of a line with markers
    int m_coveredX = kCoordinateLimit + 1; ///< the column of what is covered; of a line with markers
    Covered m_coveredUnits;
    Covered m_coveredRows;
    bool m_isOpen = false;
    // The points kept of a column of one unit; the lowest and highest of all but the last.
    int m_count = 0;
    int m_keptX = 0;
    double m_first = 0;
    Kept m_low = {};
    Kept m_high = {};
    double m_before = 0;
    double m_last = 0;
    int m_keptPixel = 0; ///< of the last one
    int m_keptRow = 0;

    bool m_hasEnd = false;
    Point m_end;                 ///< where the last stroke ended, logical units
    std::vector<POINT> m_points; ///< of strokes to draw, logical units
    std::vector<Point> m_cut;
};

} // namespace kavlix

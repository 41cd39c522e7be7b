// SPDX-License-Identifier: MIT
// Draws a line for a metafile or printer, which records strokes instead of painting pixels.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <vector>

#include "graphctrl/LineTarget.h"
#include "graphctrl/core/SampleStore.h"
#include "plot/PixelColumns.h"
#include "plot/PixelRows.h"
#include "plot/Shapes.h"

namespace kavlix {

/// Draws one or more lines with the selected pen on a metafile or printer DC. For samples without markers, in
/// order of X, the number of strokes is bounded by the plot's width in logical units. Columns are one logical
/// unit wide instead of one pixel, so an enlarged picture keeps more detail.
///
/// Two rules choose the samples. Pixel rule: a sample on the same pixel as the sample before it is left out.
/// Column rule: of the samples that the pixel rule keeps in one column, only the first, lowest, highest and
/// last are drawn, and at the end of a line the last but one. Strokes are cut near the plot, because the
/// frame of a metafile includes everything that is drawn.
class RecordedLine {
public:
    /// Strokes are cut at most this many pixels outside the window that the constructor takes.
    static constexpr int kMargin = 32;

    /// `window` in pixels: the visible area, enlarged by the reach of pens and markers. The pixel table of
    /// `target` covers the window and kMargin pixels round it.
    ///
    /// With markers, each stroke begins at the previous sample, even if the pixel rule has left that sample
    /// out, because drawing that sample's marker moves GDI's current position to it. The strokes are then
    /// drawn one by one, except for those that the strokes of the same column cover already.
    RecordedLine(const LineTarget& target, const Rect& window, int penPixels, bool hasMarkers)
        : m_target(target), m_rows(target.yMap, target.rows), m_window(window), m_isThin(penPixels == 1),
          m_hasMarkers(hasMarkers) {}

    /// Adds the next sample, at `x` (logical units). A NaN ends the line.
    void Add(double value, int x) {
        GoTo(x);
        if (value != value)
            End();
        else
            KeepUnlessOnKeptPixel(value);
    }
    /// Adds the next samples: those of `column`, which is one logical unit wide.
    void AddColumn(const SampleStore& samples, SampleStore::Reader& values, const PixelColumn& column) {
        GoTo(column.position);
        const int count = column.last - column.first + 1;
        if (!m_hasMarkers && count >= kReducedColumn) {
            double copy[kReadColumn];
            if (count <= kReadColumn ? AddRead(values.Run(column.first, column.last, copy), count)
                                     : AddSearched(samples, values, column.first, column.last))
                return;
        }
        for (int i = column.first; i <= column.last; ++i)
            Add(values[i], column.position);
    }
    /// Draws what is pending. The line may continue.
    void Pause();
    /// Ends the line and draws what is pending. The next sample begins another line.
    void End();

private:
    /// AddColumn uses AddRead or AddSearched only for columns with at least this many samples.
    static constexpr int kReducedColumn = 8;
    /// AddColumn uses AddRead for columns with at most this many samples: reading all of them is faster than
    /// a search for their extremes.
    static constexpr int kReadColumn = 256;

    struct Sample {
        int x;
        double value;
    };
    struct Kept {
        double value;
        int order; ///< number within the column, from 0
    };
    /// A range of rows, or of vertical logical units, that the strokes of one column cover without a gap.
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
    /// Applies the pixel rule to a sample of the current column. True if the sample was kept.
    bool KeepUnlessOnKeptPixel(double value) {
        const int row = m_rows.Of(value);
        const bool isSame = m_isOpen && m_pixel == m_keptPixel && row == m_keptRow &&
                            (HasPixel(m_pixel, row) || IsSameFarPixel({m_keptX, m_last}, {m_x, value}));
        if (!isSame)
            Keep(value, row);
        m_sample = {m_x, value};
        return !isSame;
    }
    bool AddRead(const double* values, int count);
    bool AddSearched(const SampleStore& samples, SampleStore::Reader& values, int first, int last);
    int BeginOfPixel(const SampleStore& samples, SampleStore::Reader& values, int first, int last) const;
    bool IsSameFarPixel(const Sample& a, const Sample& b) const;
    /// Whether two samples of the current column, given by their values, fall on one pixel.
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

    int m_x = kCoordinateLimit + 1;        ///< current column: position of the last sample, logical units
    int m_pixel = 0;                       ///< pixel column of m_x
    Sample m_sample = {};                  ///< the last sample, kept or not; used with markers only
    int m_coveredX = kCoordinateLimit + 1; ///< X of the covered ranges, logical units; used with markers only
    Covered m_coveredUnits;
    Covered m_coveredRows;
    bool m_isOpen = false;
    // The pending samples: values of the kept samples of one column that are not drawn yet.
    int m_count = 0;     ///< number of pending samples
    int m_keptX = 0;     ///< X of the last kept sample, logical units
    double m_first = 0;  ///< first pending sample
    Kept m_low = {};     ///< lowest pending sample, the last one excluded
    Kept m_high = {};    ///< highest pending sample, the last one excluded
    double m_before = 0; ///< last but one pending sample
    double m_last = 0;   ///< last kept sample
    int m_keptPixel = 0; ///< pixel column of the last kept sample
    int m_keptRow = 0;   ///< pixel row of the last kept sample

    bool m_hasEnd = false;
    Point m_end;                 ///< end of the last stroke, logical units
    std::vector<POINT> m_points; ///< pending polyline, logical units
    std::vector<Point> m_cut;    ///< points of a stroke that ToFar cuts: first pixels, then logical units
};

} // namespace kavlix

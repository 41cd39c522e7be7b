// SPDX-License-Identifier: MIT
// ReducedLines: chooses the samples of each column and passes them on to DirectLine, GdiLine or RecordedLine.
#include "graphctrl/ReducedLines.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Markers.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/DirectLine.h"
#include "graphctrl/GdiLine.h"
#include "graphctrl/RecordedLine.h"
#include "graphctrl/core/SampleStore.h"

namespace kavlix {
namespace {

/// Columns of at most this many samples are drawn without a search for their extremes.
constexpr int kFewSamples = 4;
/// Prefetch distance: columns with more samples than this miss the cache, so their blocks are prefetched
/// `kAhead` columns early.
constexpr int kPrefetchedColumn = 256;
constexpr std::ptrdiff_t kAhead = 6;

int CountOf(const CDataset& dataset) {
    return dataset.Samples().Size();
}

bool IsInside(const Rect& rect, const CRect& outer) {
    return rect.left >= outer.left && rect.top >= outer.top && rect.right <= outer.right &&
           rect.bottom <= outer.bottom;
}

/// One edge per logical unit, from the beginning of pixel `first` to the beginning of pixel `end`. Both are
/// indices in `pixels`, from 0.
PixelEdges UnitsOf(const PixelEdges& pixels, int first, int end) {
    std::vector<int> edges(static_cast<std::size_t>(pixels.Edge(end) - pixels.Edge(first)) + 1);
    std::iota(edges.begin(), edges.end(), pixels.Edge(first));
    return PixelEdges(pixels.Edge(first), std::move(edges));
}

} // namespace

/// Draws one line.
class ReducedLines::Line {
public:
    Line(const ReducedLines& lines, const CDataset& dataset, const LinearMap& yMap)
        : m_lines(lines), m_dc(lines.m_dc), m_samples(dataset.Samples()), m_values(m_samples),
          m_marker(dataset.GetMarkerType()), m_yMap(yMap),
          m_penPixels(PenPixels(lines.m_dc, PenWidth(dataset))),
          m_colour(m_penPixels == 1 && lines.m_raster ? DirectColour(dataset.GetColor()) : std::nullopt) {
        if (lines.m_kind == StrokeKind::Recorded)
            m_recorded.emplace(Target(), ToRect(lines.m_plotWithReach), m_penPixels, HasShape(m_marker));
    }

    /// Draws the samples `first` to `last` with their markers. With `joined`, the line begins at sample
    /// `first` - 1.
    void Draw(int first, int last, bool joined) {
        if (m_recorded) {
            ForColumns(first, last, [this](const PixelColumn& column) {
                m_recorded->AddColumn(m_samples, m_values, column);
            });
            m_recorded->Pause();
        } else if (m_colour) {
            ::GdiFlush(); // GDI must finish its pending calls before pixels are written directly
            DrawLine(DirectLine(Target(), *m_lines.m_raster, *m_colour), first, last, joined);
        } else {
            DrawLine(GdiLine(Target(), m_lines.m_plot, m_penPixels), first, last, joined);
        }
        if (HasShape(m_marker))
            ForColumns(first, last, [this](const PixelColumn& column) { DrawMarkers(column); });
    }

    /// Draws the samples one by one into a metafile or printer DC. Used when the samples cannot be grouped by
    /// column (m_columns is empty), and when the value axis is not monotonic (see LinearMap::IsMonotonic),
    /// because then the extremes of a column cannot be used.
    void RecordInAnyOrder(int first, int last) {
        const auto isVisible = [&](int x, int y) {
            return m_lines.m_groupColumns.Holds(x) && m_lines.m_groupRows.Holds(y);
        };
        for (int i = first; i <= last; ++i) {
            const double value = m_values[i];
            const std::optional<int> x = m_lines.m_xPositions.At(i);
            const std::optional<int> y = m_yMap.Position(value);
            if (!x || !y) {
                m_recorded->End();
                continue;
            }
            m_recorded->Add(value, *x);
            if (HasShape(m_marker) && isVisible(*x, *y))
                DrawSampleMarker(m_dc, m_marker, *x, *y);
        }
        m_recorded->Pause();
    }

private:
    using Columns = std::vector<PixelColumn>::const_iterator;

    LineTarget Target() const { return {m_dc, m_lines.m_columnEdges, m_lines.m_rowEdges, m_yMap}; }

    /// Calls `visit(column)` for each column that holds any of the samples `first` to `last`. Other samples
    /// are left out of the column.
    template <class Visit> void ForColumns(int first, int last, Visit visit) const {
        const Columns end = m_lines.m_columns.end();
        for (Columns column = ColumnOf(first); column != end && column->first <= last; ++column)
            visit(Cut(*column, first, last));
    }

    /// The first column whose last sample is sample `first` or a later one.
    Columns ColumnOf(int first) const {
        return std::lower_bound(
            m_lines.m_columns.begin(), m_lines.m_columns.end(), first,
            [](const PixelColumn& column, int index) { return column.last < index; });
    }
    static PixelColumn Cut(PixelColumn column, int first, int last) {
        column.first = std::max(column.first, first);
        column.last = std::min(column.last, last);
        return column;
    }

    template <class Sink> void DrawLine(Sink sink, int first, int last, bool joined) {
        if (joined) {
            const Columns column = ColumnOf(first - 1);
            if (column != m_lines.m_columns.end() && column->first < first)
                AddSample(sink, first - 1, *column);
        }
        const Columns end = m_lines.m_columns.end();
        for (Columns column = ColumnOf(first); column != end && column->first <= last; ++column) {
            if (end - column > kAhead && column[kAhead].first <= last &&
                column->last - column->first >= kPrefetchedColumn)
                m_samples.Prefetch(column[kAhead].first);
            AddColumn(sink, Cut(*column, first, last), last);
        }
        sink.End();
    }

    template <class Sink> void AddSample(Sink& sink, int index, const PixelColumn& column) {
        const double value = m_values[index];
        if (std::isnan(value))
            sink.End();
        else
            sink.Add(value, column);
    }

    template <class Sink> void AddColumn(Sink& sink, const PixelColumn& column, int end) {
        if (column.last - column.first < kFewSamples) {
            for (int i = column.first; i <= column.last; ++i)
                AddSample(sink, i, column);
            return;
        }
        const Extremes extremes = m_samples.ExtremesOf(column.first, column.last);
        if (extremes.HasGap())
            AddBetweenGaps(sink, column, end);
        else
            AddWithoutGap(sink, column, end, extremes);
    }

    /// Adds a column that has gaps: the samples between two gaps are added like a column of their own.
    template <class Sink> void AddBetweenGaps(Sink& sink, const PixelColumn& column, int end) {
        std::vector<int> gaps; // indices of the gaps, the last gap first
        for (int last = column.last; last >= column.first; --last) {
            last = m_samples.FindLast(
                column.first, last, [](const Extremes& block) { return !block.HasGap(); },
                [](double value) { return std::isnan(value); });
            if (last >= column.first)
                gaps.push_back(last);
        }
        int first = column.first;
        for (auto gap = gaps.rbegin(); gap != gaps.rend(); ++gap) {
            if (first < *gap)
                AddColumn(sink, Cut(column, first, *gap - 1), end);
            sink.End();
            first = *gap + 1;
        }
        if (first <= column.last)
            AddColumn(sink, Cut(column, first, column.last), end);
    }

    template <class Sink>
    void AddWithoutGap(Sink& sink, const PixelColumn& column, int end, Extremes extremes) {
        const int first = column.first;
        const int last = column.last;
        AddSample(sink, first, column);
        int before = -1;
        if (last == end || std::isnan(m_values[last + 1])) {
            // The line ends here. GDI leaves out the last pixel of a line, so the painted pixels depend on
            // the direction of the last stroke: the beginning of that stroke must be added.
            before = LastElsewhere(first, last);
            if (before < first)
                return;
            extremes = m_samples.ExtremesOf(first, before);
        }
        sink.Add(extremes.low, column);
        sink.Add(extremes.high, column);
        if (before >= 0)
            AddSample(sink, before, column);
        AddSample(sink, last, column);
    }

    /// The last of the samples `first` to `last` on another row than sample `last`; `first` - 1 if
    /// there is none.
    int LastElsewhere(int first, int last) const {
        const int row = DeviceRow(m_samples[last]);
        return m_samples.FindLast(
            first, last,
            [&](const Extremes& block) {
                return !block.HasGap() && DeviceRow(block.low) == row && DeviceRow(block.high) == row;
            },
            [&](double value) { return DeviceRow(value) != row; });
    }

    int DeviceRow(double value) const {
        const int y = m_yMap.Position(value).value_or(0);
        if (m_lines.m_rowEdges.Holds(y))
            return m_lines.m_rowEdges.PixelOf(y);
        POINT point = {0, y};
        m_dc.LPtoDP(&point);
        return static_cast<int>(point.y);
    }

    /// Draws the markers of a column, one for each row that holds a sample.
    void DrawMarkers(const PixelColumn& column) {
        if (!m_lines.m_groupColumns.Holds(column.position))
            return;
        const PixelEdges& rows = m_lines.m_groupRows;
        const int count = rows.Count();
        m_rowDone.assign(static_cast<std::size_t>(count), false);
        // The first row of a block of values whose smallest position is `y`, and the last row of a block
        // whose largest position is `y`. Rows outside the table are left out: their markers are invisible.
        const auto firstRow = [&](int y) {
            return y < rows.Begin() ? 0 : y >= rows.End() ? count : rows.Find(y);
        };
        const auto lastRow = [&](int y) {
            return y < rows.Begin() ? -1 : y >= rows.End() ? count - 1 : rows.Find(y);
        };
        m_samples.VisitUnless(
            column.first, column.last,
            [&](const Extremes& block) {
                if (block.HasGap())
                    return false;
                const int a = m_yMap.Position(block.low).value_or(0);
                const int b = m_yMap.Position(block.high).value_or(0);
                const auto begin = m_rowDone.begin() + firstRow(std::min(a, b));
                const auto end = m_rowDone.begin() + lastRow(std::max(a, b)) + 1;
                return begin >= end || std::find(begin, end, false) == end;
            },
            [&](double value) {
                const std::optional<int> y = m_yMap.Position(value);
                if (!y || !rows.Holds(*y))
                    return;
                const auto row = static_cast<std::size_t>(rows.Find(*y));
                if (m_rowDone[row])
                    return;
                m_rowDone[row] = true;
                DrawSampleMarker(m_dc, m_marker, column.position, *y);
            });
    }

    const ReducedLines& m_lines;
    CDC& m_dc;
    const SampleStore& m_samples;
    SampleStore::Reader m_values;
    CDataset::MarkerType m_marker;
    LinearMap m_yMap;
    int m_penPixels;
    std::optional<std::uint32_t> m_colour;  ///< set if DirectLine draws the line
    std::optional<RecordedLine> m_recorded; ///< set if RecordedLine draws the line
    std::vector<bool> m_rowDone;
};

ReducedLines::ReducedLines(CDC& dc, const CRect& plot, int reach, const XPositions& xPositions,
                           const IndexRange* ranges, int count)
    : m_dc(dc), m_xPositions(xPositions), m_plot(ToDeviceWithEdges(dc, plot)), m_plotWithReach(m_plot),
      m_kind(KindOfStrokes(dc)) {
    IndexRange all;
    for (int i = 0; i < count; ++i) {
        if (ranges[i].IsEmpty())
            continue;
        all = all.IsEmpty()
                  ? ranges[i]
                  : IndexRange{std::min(all.first, ranges[i].first), std::max(all.last, ranges[i].last)};
    }
    m_plotWithReach.InflateRect(reach / kUnitsPerPixel + 1, reach / kUnitsPerPixel + 1);
    const int margin = m_kind == StrokeKind::Recorded ? RecordedLine::kMargin : 0;
    CRect known = m_plotWithReach;
    known.InflateRect(margin, margin);
    if (all.IsEmpty() || m_kind == StrokeKind::Mixed ||
        !FindPixelEdges(dc, known, m_columnEdges, m_rowEdges)) {
        m_kind = StrokeKind::Mixed;
        return;
    }
    if (m_kind == StrokeKind::Recorded) {
        m_groupColumns = UnitsOf(m_columnEdges, margin, m_columnEdges.Count() - margin);
        m_groupRows = UnitsOf(m_rowEdges, margin, m_rowEdges.Count() - margin);
    } else {
        m_groupColumns = m_columnEdges;
        m_groupRows = m_rowEdges;
    }
    m_columns = GroupRunsByColumn(
        all, m_groupColumns, [&](IndexRange rest) { return xPositions.RunEnd(rest); },
        [&](int index) { return xPositions.At(index).value_or(0); });
    m_raster = DirectRaster(dc);
    if (m_raster && !IsInside(m_raster->Clip(), m_plotWithReach))
        m_raster.reset();
}

bool ReducedLines::Draw(const CDataset& dataset, CPen& pen, const LinearMap& yMap, IndexRange range,
                        const LineSelectionMark& selectionMark) const {
    const bool isRecorded = m_kind == StrokeKind::Recorded;
    const bool isInOrder = !m_columns.empty() && yMap.IsMonotonic();
    if (m_kind == StrokeKind::Mixed || !(isInOrder || isRecorded) || range.IsEmpty() || range.first < 0 ||
        range.last >= CountOf(dataset) || pen.GetSafeHandle() == nullptr)
        return false;
    // One marker is drawn for all samples on a pixel. Markers of their own would have the same shape only if
    // all pixels are equally large.
    if (!isRecorded && HasShape(dataset.GetMarkerType()) &&
        (!m_columnEdges.IsRegular() || !m_rowEdges.IsRegular()))
        return false;
    Select(m_dc, pen);

    Line line(*this, dataset, yMap);
    const auto draw = [&](int first, int last, bool joined) {
        if (isInOrder)
            line.Draw(first, last, joined);
        else
            line.RecordInAnyOrder(first, last);
    };
    const int marked = selectionMark.index;
    const bool hasMark =
        marked >= range.first && marked <= range.last && !std::isnan(dataset.Samples()[marked]);
    const std::optional<int> markX = hasMark ? m_xPositions.At(marked) : std::nullopt;
    if (!markX) {
        draw(range.first, range.last, false);
        return true;
    }
    // The selection mark covers the strokes up to the marked sample; the strokes from there on cover
    // the selection mark.
    draw(range.first, marked - 1, false);
    DrawSelectionMark(m_dc, selectionMark, pen, *markX);
    draw(marked, range.last, marked > range.first);
    return true;
}

} // namespace kavlix

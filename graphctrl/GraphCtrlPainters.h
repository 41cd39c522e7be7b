#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

#include <optional>

#include "gdi/DottedPen.h"
#include "graphctrl/core/BarSlots.h"
#include "graphctrl/core/IndexRange.h"
#include "plot/LinearMap.h"

/// The painters that the graph controls share. They take everything they need as arguments, keep nothing, and
/// never ask the window.
namespace kavlix {

/// Line sizes go from 0 to this, logical units.
constexpr int kWidestLine = 1000;

/// Where samples stand along the X axis.
class XPositions {
public:
    virtual ~XPositions() = default;
    /// Position of sample `index` in logical units, none when it has none.
    virtual std::optional<int> At(int index) const = 0;
    /// The last sample of `range` up to which all have positions that run one way; none where a sample may
    /// have no position, or where only a walk could tell.
    virtual std::optional<int> RunEnd(IndexRange range) const = 0;
};

/// Samples that stand at their index.
class IndexPositions : public XPositions {
public:
    explicit IndexPositions(const LinearMap& map) : m_map(map) {}
    std::optional<int> At(int index) const override { return m_map.Position(index); }
    std::optional<int> RunEnd(IndexRange range) const override {
        return m_map.IsMonotonic() ? std::optional<int>(range.last) : std::nullopt;
    }

private:
    LinearMap m_map;
};

/// The selection mark of the line styles: a dotted line across the plot with a triangle on top.
struct LineMark {
    int index = -1; ///< marked sample, -1 for none
    const CRect& plot;
    CPen& cursorPen;
    CBrush& triangleBrush;
};

/// Width of the pen that draws a dataset's line, in logical units: its line size, within what SetLineSize
/// takes.
int PenWidth(const CDataset& dataset);

/// Width in pixels of a pen `width` logical units wide, as the DC rounds; 1 for a cosmetic one.
int PenPixels(const CDC& dc, int width);

/// How far a line with its markers and the mark reaches beyond the positions of its samples, in logical
/// units.
int LineReach(const CDataset& dataset);

/// Draws the marker `type` of a sample with the pen and brush that are selected, and moves the current
/// position to the sample if there is such a marker.
void DrawSampleMarker(CDC& dc, CDataset::MarkerType type, int x, int y);

/// Draws the mark at `x`, where it can be seen in the plot; leaves `seriesPen` selected and the current
/// position as it was.
void DrawMark(CDC& dc, const LineMark& mark, CPen& seriesPen, int x);

/// Draws the samples `range` of a dataset as a line with markers and, at the marked sample, the mark. Samples
/// without position leave a gap. Uses the NULL_BRUSH that the caller has selected; leaves `pen` selected.
/// Every sample of the range is drawn: see ReducedLines.
void DrawSeriesLine(CDC& dc, const CDataset& dataset, CPen& pen, const XPositions& xPositions,
                    const LinearMap& yMap, IndexRange range, const LineMark& mark);

/// The selection mark of the bar style: a band behind a whole group of bars.
struct BarMark {
    int index = -1; ///< marked sample, -1 for none
    CBrush& brush;
};

/// Draws the samples `range` of a dataset as bars in the slots 0, 1, 2, ..., `offset` right of each slot's
/// left edge, with `brush` and the null pen that the caller has selected. `mark` is null for all but the
/// dataset that draws it. Of a hidden dataset only the mark is drawn. Leaves `brush` selected.
void DrawSeriesBars(CDC& dc, const CDataset& dataset, CBrush& brush, const BarSlots& slots, int offset,
                    IndexRange range, const Rect& plot, const LinearMap& yMap, const BarMark* mark);

/// Draws an X tick at `x` with the pen that is selected, which is `axisPen` at first. With a `gridPen` the
/// grid line goes on from it up to `plotTop`; either pen may stay selected.
void DrawXTick(CDC& dc, int x, const CRect& rectAxis, CPen& axisPen, DottedPen* gridPen, int plotTop);

/// Draws the upright texts of an X tick at `x`, `y` being the top of the label band's text: `up` and `down`
/// side by side, or `up` alone, broken in two when it is longer than `longest` characters. Text colour and
/// font are the caller's.
void DrawXTickLabel(CDC& dc, int x, int y, const CString& up, const CString& down, int longest);

} // namespace kavlix

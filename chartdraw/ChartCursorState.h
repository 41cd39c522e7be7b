// SPDX-License-Identifier: MIT
// ChartCursorState: the two cursors of a chart, and the samples that they are at.
#pragma once

#include <kavlix/ChartDraw.h>

#include <optional>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/MeasuredTexts.h"
#include "chartdraw/core/PointBoxTree.h"

namespace kavlix {

/// A sample that a cursor is at.
struct CursorReading {
    int dataset = -1; ///< -1: there is none
    int sample = -1;
    ChartPoint point{0, 0};
    double x = 0; ///< value of the X axis

    bool IsValid() const { return dataset >= 0; }
};

struct ChartCursorState {
    explicit ChartCursorState(CChartDraw& chart) : chart(chart) {}

    static constexpr int kCursors = 2;

    /// Where a cursor has been set. The values of the sample stay when points are removed or inserted.
    struct Place {
        bool isShown = false;
        /// The dataset, or one that has been removed: never dereferenced before it is found in the chart.
        const ChartDrawState::ChartDataset* dataset = nullptr;
        ChartPoint point{0, 0};
        double x = 0; ///< value of the X axis, for other datasets
    };

    CChartDraw& chart;
    CChartCursor::Mode mode = CChartCursor::Off;
    bool hasReadout = true;
    COLORREF lineColor = RGB(96, 96, 96);
    COLORREF textColor = RGB(32, 32, 32);
    COLORREF background = RGB(255, 255, 255);
    COLORREF border = RGB(160, 160, 160);
    Place places[kCursors];
    /// The pointer where keys have moved the first cursor away from it. Windows sends further mouse messages for a
    /// pointer that rests.
    std::optional<CPoint> resting;
    CPoint pointer{0, 0}; ///< where it was last
    MeasuredTexts texts;  ///< of the readout

    bool IsShown(int cursor) const {
        return mode != CChartCursor::Off && cursor >= 0 && cursor < kCursors && places[cursor].isShown;
    }
    /// The sample that a cursor is at: the one where it has been set, or else the nearest one in x.
    CursorReading Read(const ChartDrawState& state, int cursor) const;
    /// The sample of a dataset nearest in x to the sample of a cursor.
    static CursorReading ReadAt(const ChartDrawState& state, const CursorReading& own, int dataset);
    /// Whether the sample of a dataset is farther from the cursor's sample than the dataset's gap limit: the dataset has
    /// no value there.
    static bool IsBeyondGap(const ChartDrawState& state, const CursorReading& own,
                            const CursorReading& reading);
    /// The sample nearest in x to `x` among the visible datasets, of equally near ones that of `preferred`.
    static CursorReading Nearest(const ChartDrawState& state, double x,
                                 const ChartDrawState::ChartDataset* preferred);
    /// The sample nearest to a position in client pixels.
    CursorReading Nearest(const ChartDrawState& state, CPoint point) const;
    /// Sets a cursor to a sample, or hides it. Whether that is a change.
    bool Set(const ChartDrawState& state, int cursor, const CursorReading& reading);
    /// Figures of a dataset between the samples of the cursors.
    static ChartStatistics Statistics(const ChartDrawState& state, const CursorReading& first,
                                      const CursorReading& second, int dataset);
};

} // namespace kavlix

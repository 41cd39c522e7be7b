// SPDX-License-Identifier: MIT
// ChartReferencesState: the reference lines and bands of a chart, and the one that the user moves.
#pragma once

#include <kavlix/ChartDraw.h>

#include <vector>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/MeasuredTexts.h"

namespace kavlix {

/// A reference line or band.
struct ChartReference {
    int id = 0;
    CChartReferences::Axis axis = CChartReferences::X;
    bool isBand = false;
    double from = 0; ///< of a line the same as `to`
    double to = 0;
    CString text;
    COLORREF color = 0;
    int size = 1; ///< width of a line, pixels
    bool isDashed = false;
    bool isMovable = false;
    bool isShown = true;
};

/// Which values of a reference line or band a press moves.
enum class ReferencePart { None, From, To, Both };

struct ChartReferencesState {
    explicit ChartReferencesState(CChartDraw& chart) : chart(chart) {}

    CChartDraw& chart;
    std::vector<ChartReference> items;
    int nextId = 0;
    MeasuredTexts texts;

    /// What the user moves.
    struct Move {
        int id = -1; ///< -1: nothing
        ReferencePart part = ReferencePart::None;
        CPoint start{0, 0}; ///< where the button was pressed
        double from = 0;    ///< the values at that time
        double to = 0;
        bool hasMoved = false;
    } move;

    /// Null when there is none.
    ChartReference* Find(int id);
    /// The pixels of a line, or of a band, clipped to the plot; empty when it is not in view.
    CRect RectOf(const ChartDrawState& state, const ChartReference& item) const;
    /// The line or band that can be moved at a position, and the part; null for none.
    const ChartReference* Hit(const ChartDrawState& state, CPoint point, ReferencePart& part) const;
    /// Changes an item by `change`. FALSE when there is none.
    template <class Change> BOOL With(int id, Change change) {
        ChartReference* const item = Find(id);
        if (item == nullptr)
            return FALSE;
        change(*item);
        return TRUE;
    }
};

} // namespace kavlix

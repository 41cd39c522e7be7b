// SPDX-License-Identifier: MIT
// Paints one tick of the X axis and its label.
#pragma once

#include <afxwin.h>

#include "gdi/DottedPen.h"

namespace kavlix {

/// Distance from the top of the X label band down to the labels, and from the right edge of a value axis'
/// tick strip to its labels, leftwards for Y and rightwards for Y2; logical units.
constexpr int kTickLabelGap = 100;
/// Distance from a tick rightwards to the right edge of a two-line label's upper line, logical units.
constexpr int kUpperLineShift = 70;
/// Distance from a tick rightwards to the baseline of a label of one line, logical units.
constexpr int kSingleLineShift = 100;

/// Draws an X tick at `x` with `axisPen`, which the caller has selected before the first tick. A `gridPen`
/// that is not null continues the tick as a grid line up to `plotTop`. Either pen may be selected afterwards.
void DrawXTick(CDC& dc, int x, const CRect& rectAxis, CPen& axisPen, DottedPen* gridPen, int plotTop);

/// Draws a label of two lines for the X tick at `x`. The text runs upwards and ends at `y`. The caller has
/// selected font and text colour. Afterwards the text alignment is TA_RIGHT.
void DrawTwoLines(CDC& dc, int x, int y, const CString& upper, const CString& lower);

/// Draws the label of the X tick at `x`: the lines `up` and `down` side by side. The text runs upwards and
/// ends at `y` below the tick. With an empty `down`, an `up` of more than `longest` characters is broken into
/// two lines. The caller has selected font and text colour.
void DrawXTickLabel(CDC& dc, int x, int y, const CString& up, const CString& down, int longest);

} // namespace kavlix

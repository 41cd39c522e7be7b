// Paints one tick of the X axis and its label.
#pragma once

#include <afxwin.h>

#include "gdi/DottedPen.h"

namespace kavlix {

/// From a tick to the baseline of a label of one line, logical units.
constexpr int kSingleLineShift = 100;

/// Draws an X tick at `x` with `axisPen`, which the caller has selected before the first tick. A `gridPen`
/// that is not null continues the tick as a grid line up to `plotTop`. Either pen may be selected afterwards.
void DrawXTick(CDC& dc, int x, const CRect& rectAxis, CPen& axisPen, DottedPen* gridPen, int plotTop);

/// Draws the label of an X tick, which runs upwards and ends at `y` below the tick at `x`: the lines `up` and
/// `down` side by side. With an empty `down`, an `up` of more than `longest` characters is broken into two
/// lines. The caller has selected font and text colour.
void DrawXTickLabel(CDC& dc, int x, int y, const CString& up, const CString& down, int longest);

} // namespace kavlix

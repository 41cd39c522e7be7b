// Paints one tick of the X axis and its label.
#pragma once

#include <afxwin.h>

#include "gdi/DottedPen.h"

namespace kavlix {

/// Distance from a tick to the baseline of its label where the label is a single line, logical units.
constexpr int kSingleLineShift = 100;

/// Draws an X tick at `x` with the pen that is selected, which is `axisPen` at first. With a `gridPen` the
/// grid line goes on from it up to `plotTop`; either pen may stay selected.
void DrawXTick(CDC& dc, int x, const CRect& rectAxis, CPen& axisPen, DottedPen* gridPen, int plotTop);

/// Draws the upright texts of an X tick at `x`, `y` being the top of the label band's text: `up` and `down`
/// side by side, or `up` alone, broken in two when it is longer than `longest` characters. Text colour and
/// font are the caller's.
void DrawXTickLabel(CDC& dc, int x, int y, const CString& up, const CString& down, int longest);

} // namespace kavlix

// SPDX-License-Identifier: MIT
// The markers at the points of a series.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

namespace kavlix {

/// Whether `type` has a shape to draw. MarkerNone and unknown types have none.
inline bool HasShape(CDataset::MarkerType type) {
    return type > CDataset::MarkerNone && type < CDataset::MarkerTypeCount;
}

/// Draws a marker around the point `x`, `y` with the selected pen. The marker extends `half` logical units to
/// every side; a triangle extends only two thirds of `half` below the point. At the right and bottom GDI
/// leaves out the last pixel of squares, circles and crosses. If this pixel must be drawn too, `beyond` is
/// the size of a pixel in logical units, otherwise 0. The caller has selected NULL_BRUSH. False, and nothing
/// drawn, when `type` has no shape.
bool DrawMarker(CDC& dc, CDataset::MarkerType type, int x, int y, int half, int beyond);

} // namespace kavlix

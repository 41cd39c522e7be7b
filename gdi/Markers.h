#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

namespace kavlix {

/// Whether there is anything to draw for `type`; MarkerNone and unknown types have no shape.
inline bool HasShape(CDataset::MarkerType type) {
    return type > CDataset::MarkerNone && type < CDataset::MarkerTypeCount;
}

/// Draws a marker round a point with the pen that is selected, `half` logical units to every side. GDI leaves
/// out the last pixel of a box or stroke at right and bottom: `beyond`, the size of a pixel, adds it, 0 does
/// not. Uses the NULL_BRUSH that the caller has selected. False, and nothing drawn, without a shape.
bool DrawMarker(CDC& dc, CDataset::MarkerType type, int x, int y, int half, int beyond);

} // namespace kavlix

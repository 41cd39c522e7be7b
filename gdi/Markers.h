#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

namespace kavlix {

/// Draws a marker round a point with the pen that is selected, `half` logical units to every side. GDI leaves
/// out the last pixel of a box or stroke at right and bottom: `beyond`, the size of a pixel, adds it, 0 does
/// not. Uses the NULL_BRUSH that the caller has selected. False, and nothing drawn, for an unknown type and
/// MarkerNone.
bool DrawMarker(CDC& dc, CDataset::MarkerType type, int x, int y, int half, int beyond);

} // namespace kavlix

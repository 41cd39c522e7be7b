// SPDX-License-Identifier: MIT
// Where a line is drawn: the DC, the pixel table, and the map from values to positions.
#pragma once

#include <afxwin.h>

#include <cstddef>

#include "plot/LinearMap.h"
#include "plot/PixelEdges.h"

namespace kavlix {

/// What DirectLine, GdiLine and RecordedLine draw with. All references must outlive the line. The pixel table
/// is the part of the device whose pixels have known edges, in logical units.
struct LineTarget {
    CDC& dc;
    const PixelEdges& columns; ///< edges of the pixel table's columns
    const PixelEdges& rows;    ///< edges of the pixel table's rows
    const LinearMap& yMap;     ///< values to logical units
};

/// Largest number of points that a line collects before it draws them, which bounds the memory of a line.
constexpr std::size_t kMaxPendingPoints = 8192;

} // namespace kavlix

// Where a line is drawn: the DC, the pixels of its surroundings, and the map of its values.
#pragma once

#include <afxwin.h>

#include <cstddef>

#include "plot/LinearMap.h"
#include "plot/PixelEdges.h"

namespace kavlix {

/// What DirectLine, GdiLine and RecordedLine draw with. All references must outlive the line.
struct LineTarget {
    CDC& dc;
    const PixelEdges& columns; ///< the pixel table: columns and rows whose edges are known in logical units
    const PixelEdges& rows;
    const LinearMap& yMap; ///< values to logical units
};

/// Largest number of points that a line collects before it draws them, which bounds the memory of a line.
constexpr std::size_t kMaxPendingPoints = 8192;

} // namespace kavlix

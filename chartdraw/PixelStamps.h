// SPDX-License-Identifier: MIT
// Drawing the same small shape at many pixels: markers, and the dots of points without neighbours.
#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>

#include "chartdraw/core/PixelSet.h"
#include "plot/PixelRaster.h"

namespace kavlix {

/// A small shape that can be drawn at any pixel.
struct StampShape {
    int reach;     ///< the shape covers at most this many pixels in each direction from its centre
    bool isFilled; ///< filled with the pen's colour; otherwise only outlined
    /// Draws the shape centred on (x, y) with the pen and brush that are selected.
    std::function<void(CDC&, int x, int y)> draw;
};

/// Draws the shape at each of the places. With `raster`, which gives access to the pixels of `dc`, GDI draws the
/// shape only once, into a scratch picture; the pixels found there are then painted at all places in one pass.
/// `origin` is the device point of the logical origin.
void DrawStamps(CDC& dc, const std::optional<PixelRaster>& raster, const POINT& origin,
                const PixelSet& places, COLORREF colour, const StampShape& shape);

} // namespace kavlix

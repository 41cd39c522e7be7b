// The same small shape on many pixels of a chart: markers, and the dots of points without neighbours.
#pragma once

#include <afxwin.h>

#include <functional>

#include "chartdraw/core/PixelSet.h"

namespace kavlix {

/// A shape of up to `reach` pixels round its place.
struct StampShape {
    int reach;
    bool isFilled; ///< with the colour of the pen
    /// Draws it with the pen and brush that are selected.
    std::function<void(CDC&, int x, int y)> draw;
};

/// Draws the shape on each of the places. Where pixels lie in memory GDI draws it once, elsewhere, and all
/// places are painted together with the pixels that it took.
void DrawStamps(CDC& dc, const PixelSet& places, COLORREF colour, const StampShape& shape);

} // namespace kavlix

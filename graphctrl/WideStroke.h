// One stroke of a pen wider than a pixel, and how a stroke from far away is shortened.
#pragma once

#include <afxwin.h>

#include "plot/Shapes.h"

namespace kavlix {

/// A stroke, logical units, with a pen more than a pixel wide on a DC that paints pixels. GDI takes what a
/// stroke's length takes, seen or not.
struct WideStroke {
    enum Kind {
        Unseen, ///< it passes by
        Band,   ///< upright, from beyond the view to beyond it, as all bands
        Whole
    };

    POINT from;
    POINT to;

    /// Has a stroke from far away end nearer, so that it takes the same pixels of `view`, in device units,
    /// which is as much larger than the clip as the pen reaches.
    Kind Shorten(CDC& dc, const Rect& view, int penPixels);
    void Draw(CDC& dc) const {
        dc.MoveTo(from);
        dc.LineTo(to);
    }
};

} // namespace kavlix

// SPDX-License-Identifier: MIT
// One stroke of a pen wider than a pixel, and how a stroke from far away is shortened.
#pragma once

#include <afxwin.h>

#include "plot/Shapes.h"

namespace kavlix {

/// A straight line between two points in logical units, for a pen wider than a pixel. GDI's time
/// grows with the length of a stroke, also where the stroke is clipped away, so strokes from far away
/// are shortened first.
struct WideStroke {
    enum Kind {
        Invisible, ///< paints no pixel of the view
        Band,      ///< vertical after both ends were moved; both lie outside the view
        Other
    };

    POINT from;
    POINT to;

    /// Moves far ends nearer without a change to the pixels that the stroke paints in `view`. Returns the
    /// kind of the stroke. `view` in device pixels: the clip region, enlarged by the reach of the pen, which
    /// is `penPixels` wide.
    Kind Shorten(CDC& dc, const Rect& view, int penPixels);
    /// Draws the stroke with the selected pen.
    void Draw(CDC& dc) const {
        dc.MoveTo(from);
        dc.LineTo(to);
    }
};

} // namespace kavlix

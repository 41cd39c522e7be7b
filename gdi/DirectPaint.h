#pragma once

#include <afxwin.h>

#include <optional>

#include "plot/PixelEdges.h"
#include "plot/PixelRaster.h"

/// Painting pixels without a GDI call for each stroke.
namespace kavlix {

/// What becomes of strokes on a DC.
enum class StrokeKind {
    Pixels,   ///< pixels at once, which replace what is there: strokes that change no pixel may be left out
    Recorded, ///< a metafile or printer keeps them, in units finer than its pixels; they replace what is
              ///< there
    Mixed     ///< they are mixed with what is there, or drawn by other rules: each stroke counts
};
StrokeKind KindOfStrokes(const CDC& dc);

/// Whether `dc` paints pixels at once, by whatever rules, in the controls' own mapping or another without a
/// transform.
bool PaintsPixels(const CDC& dc);

/// The pixels that `dc` paints into, clipped as it is: where they lie in memory, have 32 bits each and the
/// platform would paint the same ones. None where GDI must be asked.
std::optional<PixelRaster> DirectRaster(const CDC& dc);

/// `colour` as such a pixel holds it; none for a colour that is not plain red, green and blue.
std::optional<std::uint32_t> DirectColour(COLORREF colour);

/// Where the pixels of `device` begin in logical units, in both directions, as `dc` rounds. False when it has
/// another mapping than the controls' own.
bool FindPixelEdges(const CDC& dc, const CRect& device, PixelEdges& columns, PixelEdges& rows);

/// The pixels that a rectangle between two corners in device units fills under the null pen.
Rect FilledByRectangle(const POINT& corner, const POINT& opposite);

} // namespace kavlix

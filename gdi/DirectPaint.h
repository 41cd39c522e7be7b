// Direct access to the pixels behind a DC, for painting without a GDI call per stroke.
#pragma once

#include <afxwin.h>

#include <optional>

#include "plot/PixelEdges.h"
#include "plot/PixelRaster.h"

namespace kavlix {

/// How a DC treats strokes.
enum class StrokeKind {
    Pixels,   ///< it paints pixels at once: strokes that change no pixel may be left out
    Recorded, ///< a metafile or printer stores them, in units finer than a pixel
    Mixed     ///< a raster operation or transform is set: every stroke must be drawn
};
StrokeKind KindOfStrokes(const CDC& dc);

/// Whether `dc` paints pixels at once: a screen or memory DC without world transform. Any mapping mode and
/// raster operation may be set.
bool PaintsPixels(const CDC& dc);

/// The pixels that `dc` paints into, limited to its clip region. Empty when the caller must paint through
/// GDI: for bitmaps whose pixels are not in memory or do not have 32 bits, for clip regions that are not a
/// rectangle, for DCs whose kind is not StrokeKind::Pixels, and on systems that paint other pixels than
/// PixelRaster.
std::optional<PixelRaster> DirectRaster(const CDC& dc);

/// `colour` as a 32-bit pixel stores it. Empty for palette colours, which are not plain red, green and blue.
std::optional<std::uint32_t> DirectColour(COLORREF colour);

/// Finds the borders of the pixels of `device` in logical units, with the rounding that `dc` uses. False when
/// the DC does not have the controls' own mapping; see SetControlMapping.
bool FindPixelEdges(const CDC& dc, const CRect& device, PixelEdges& columns, PixelEdges& rows);

/// The pixels that CDC::Rectangle fills between two corners, in device pixels, with the null pen selected.
Rect FilledByRectangle(const POINT& corner, const POINT& opposite);

} // namespace kavlix

// SPDX-License-Identifier: MIT
// Direct access to the pixels behind a DC, for painting without a GDI call per stroke.
#pragma once

#include <afxwin.h>

#include <optional>

#include "plot/PixelEdges.h"
#include "plot/PixelRaster.h"

namespace kavlix {

/// How a DC treats strokes.
enum class StrokeKind {
    Pixels,   ///< the DC paints pixels immediately: strokes that change no pixel may be left out
    Recorded, ///< metafile, printer or separate attribute DC: may store strokes in units finer than a pixel
    Mixed     ///< raster operation other than R2_COPYPEN, or advanced graphics mode: draw every stroke
};
StrokeKind KindOfStrokes(const CDC& dc);

/// Whether `dc` paints pixels immediately: a screen or memory DC without a separate attribute DC, and not in
/// the advanced graphics mode, in which a world transform may be set. Mapping mode and raster operation do
/// not matter.
bool PaintsPixels(const CDC& dc);

/// The pixels that `dc` paints into, limited to its clip region. Empty when the caller must paint through
/// GDI, for example when the pixels are not in memory or do not have 32 bits, when the clip region is not a
/// rectangle, when the DC is mirrored or its kind is not StrokeKind::Pixels, and on systems where GDI paints
/// other pixels than PixelRaster.
std::optional<PixelRaster> DirectRaster(const CDC& dc);

/// `colour` as a 32-bit pixel stores it. Empty for palette colours, which are not plain red, green and blue.
std::optional<std::uint32_t> DirectColour(COLORREF colour);

/// Finds the borders, in logical units, of the pixel columns and pixel rows of `device`, with the rounding
/// that `dc` uses. `device` is in device pixels. False when `device` is empty, and when the DC does not have
/// the controls' own mapping (see SetControlMapping); only the viewport origin may differ.
bool FindPixelEdges(const CDC& dc, const CRect& device, PixelEdges& columns, PixelEdges& rows);

/// The device pixels that CDC::Rectangle fills, with the null pen selected, between two corners in device
/// pixels.
Rect FilledByRectangle(const POINT& corner, const POINT& opposite);

} // namespace kavlix

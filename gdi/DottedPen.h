#pragma once

#include <afxwin.h>

#include <optional>
#include <vector>

#include "gdi/DirectPaint.h"

namespace kavlix {

/// The pen of grid lines: dotted, one pixel wide, transparent between the dots. GDI walks a dotted line dot
/// by dot, which takes a third of an empty picture; where pixels lie in memory, upright and level lines are
/// painted there directly, dot for dot as GDI does.
class DottedPen {
public:
    /// For lines on `dc`, which must outlive this object with its clip and mapping unchanged.
    DottedPen(CDC& dc, COLORREF colour);

    /// Draws a line directly and tells whether it could. Where not, select Pen and draw it by GDI.
    bool Draw(const CPoint& from, const CPoint& to) const;
    /// Whether Draw draws upright lines.
    bool IsDirect() const { return m_raster.has_value(); }
    /// Draws upright lines from `from` to `to`, in logical units, in each of some device columns; only where
    /// IsDirect. Takes far less time than the lines one by one.
    void DrawColumns(const std::vector<int>& columns, int from, int to) const;
    CPen& Pen() { return m_pen; }

private:
    CDC& m_dc;
    CPen m_pen;
    const DotPattern& m_dots; ///< without period where GDI must be asked
    std::optional<PixelRaster> m_raster;
    std::optional<std::uint32_t> m_colour;
};

} // namespace kavlix

// SPDX-License-Identifier: MIT
// WideStroke: how a stroke from far away is shortened.
#include "graphctrl/WideStroke.h"

#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "plot/StrokeCut.h"

namespace kavlix {

WideStroke::Kind WideStroke::Shorten(CDC& dc, const Rect& view, int penPixels) {
    // The test compares logical units, so that strokes near the view, the usual ones, need no conversion to
    // pixels.
    const auto isBeyond = [](int place, int begin, int end) {
        return place < (begin - kFarFromView) * kUnitsPerPixel ||
               place > (end + kFarFromView) * kUnitsPerPixel;
    };
    const auto isFar = [&](const POINT& point) {
        return isBeyond(point.x, view.left, view.right) || isBeyond(point.y, view.top, view.bottom);
    };
    if (!isFar(from) && !isFar(to))
        return Other;
    POINT ends[2] = {from, to};
    dc.LPtoDP(ends, 2);
    const Point first = ToPoint(ends[0]);
    const Point last = ToPoint(ends[1]);
    Point begin = first;
    Point end = last;
    if (!BringFarEndsNearer(begin, end, isFar(from), isFar(to), view, penPixels))
        return Invisible;
    const auto move = [&](POINT& place, const Point& old, const Point& pixel) {
        if (pixel == old)
            return;
        place = {pixel.x, pixel.y};
        dc.DPtoLP(&place);
    };
    const bool isBand = begin.x == end.x && !(begin == first) && !(end == last);
    move(from, first, begin);
    move(to, last, end);
    return isBand ? Band : Other;
}

} // namespace kavlix

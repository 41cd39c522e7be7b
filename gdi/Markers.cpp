// SPDX-License-Identifier: MIT
// The shape of each marker type.
#include "gdi/Markers.h"

#include <initializer_list>

namespace kavlix {
namespace {

void DrawPath(CDC& dc, std::initializer_list<CPoint> points) {
    auto point = points.begin();
    dc.MoveTo(*point);
    while (++point != points.end())
        dc.LineTo(*point);
}

} // namespace

bool DrawMarker(CDC& dc, CDataset::MarkerType type, int x, int y, int half, int beyond) {
    const int left = x - half;
    const int top = y - half;
    const int right = x + half;
    const int bottom = y + half;
    const int base = y + half * 2 / 3; // places the data point near the triangle's middle
    switch (type) {
    case CDataset::MarkerSquare:
        dc.Rectangle(left, top, right + beyond, bottom + beyond);
        return true;
    case CDataset::MarkerDiamond:
        DrawPath(dc, {{x, top}, {right, y}, {x, bottom}, {left, y}, {x, top}});
        return true;
    case CDataset::MarkerTriangle:
        DrawPath(dc, {{x, top}, {left, base}, {right, base}, {x, top}});
        return true;
    case CDataset::MarkerCircle:
        dc.Ellipse(left, top, right + beyond, bottom + beyond);
        return true;
    case CDataset::MarkerCross:
        DrawPath(dc, {{x, top}, {x, bottom + beyond}});
        DrawPath(dc, {{left, y}, {right + beyond, y}});
        return true;
    case CDataset::MarkerNone:
    case CDataset::MarkerTypeCount:
        break; // no default label, so the compiler warns when a new type has no case
    }
    return false;
}

} // namespace kavlix

// SPDX-License-Identifier: MIT
// The line walk, the shapes of markers, and the selection mark.

#include "tests/support/PlainLines.h"

#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace testkit {

std::optional<int> PlainScale::Place(double value) const {
    constexpr double kFarthest = 1 << 27; // limit of GDI coordinates
    if (max - min == 0)
        return std::nullopt;
    const double place = (value - min) * extent / (max - min) + edge;
    if (std::isnan(place))
        return std::nullopt;
    return static_cast<int>(std::clamp(place, -kFarthest, kFarthest));
}

namespace {

void DrawMarker(HDC dc, int type, int x, int y) {
    const auto path = [dc](std::initializer_list<POINT> points) {
        ::MoveToEx(dc, points.begin()->x, points.begin()->y, nullptr);
        for (auto point = points.begin() + 1; point != points.end(); ++point)
            ::LineTo(dc, point->x, point->y);
    };
    switch (type) {
    case CDataset::MarkerSquare:
        ::Rectangle(dc, x - 90, y - 90, x + 90, y + 90);
        break;
    case CDataset::MarkerDiamond:
        path({{x, y - 90}, {x + 90, y}, {x, y + 90}, {x - 90, y}, {x, y - 90}});
        break;
    case CDataset::MarkerTriangle:
        path({{x, y - 90}, {x - 90, y + 60}, {x + 90, y + 60}, {x, y - 90}});
        break;
    case CDataset::MarkerCircle:
        ::Ellipse(dc, x - 90, y - 90, x + 90, y + 90);
        break;
    case CDataset::MarkerCross:
        path({{x, y - 90}, {x, y + 90}});
        path({{x - 90, y}, {x + 90, y}});
        break;
    default:
        return;
    }
    ::MoveToEx(dc, x, y, nullptr);
}

void DrawMark(HDC dc, int x, const RECT& plot, COLORREF colour) {
    const int saved = ::SaveDC(dc);
    const POINT triangle[] = {{x + 10, plot.top + 180}, {x + 90, plot.top}, {x - 70, plot.top}};
    const HRGN region = ::CreatePolygonRgn(triangle, 3, ALTERNATE);
    const HBRUSH red = ::CreateSolidBrush(RGB(255, 0, 0));
    const HPEN dots = ::CreatePen(PS_DOT, 0, colour);
    ::FillRgn(dc, region, red);
    ::SelectObject(dc, dots);
    ::MoveToEx(dc, x, plot.bottom, nullptr);
    ::LineTo(dc, x, plot.top);
    ::RestoreDC(dc, saved);
    for (const HGDIOBJ object : {HGDIOBJ(region), HGDIOBJ(red), HGDIOBJ(dots)})
        ::DeleteObject(object);
}

} // namespace

void DrawPlainLine(HDC dc, const std::vector<PlainSample>& samples, int marker, const RECT& plot,
                   COLORREF markColour) {
    std::vector<POINT> pixels;
    for (const PlainSample& sample : samples)
        pixels.push_back({sample.x.value_or(0), sample.y.value_or(0)});
    if (!pixels.empty())
        ::LPtoDP(dc, pixels.data(), static_cast<int>(pixels.size()));
    std::optional<POINT> lastPixel;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto& [x, y, isMarked] = samples[i];
        if (isMarked && x)
            DrawMark(dc, *x, plot, markColour);
        if (!x || !y) {
            lastPixel.reset();
            continue;
        }
        if (!lastPixel)
            ::MoveToEx(dc, *x, *y, nullptr);
        else if (lastPixel->x != pixels[i].x || lastPixel->y != pixels[i].y)
            ::LineTo(dc, *x, *y);
        lastPixel = pixels[i];
        DrawMarker(dc, marker, *x, *y);
    }
}

} // namespace testkit

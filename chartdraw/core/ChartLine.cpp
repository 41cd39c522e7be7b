// SPDX-License-Identifier: MIT
// Cutting strokes at the border of the range that GDI can draw.
#include "chartdraw/core/ChartLine.h"

#include <algorithm>
#include <cmath>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

// Positions are limited to this many pixels from 0. The difference of two limited positions is still finite.
constexpr double kFarthest = 1e300;

Point ToPixel(double x, double y) {
    return {ToCoordinate(x), ToCoordinate(y)};
}

} // namespace

/// A coordinate of the stroke, x or y, is start + part * step, with `part` from 0 to 1. Narrows the range of
/// `part`, from `from` to `to`, to the parts at which this coordinate is near (see IsNear). When there are
/// none, `from` > `to` afterwards.
void ChartLine::Narrow(double start, double step, double& from, double& to) {
    if (step == 0) {
        if (std::abs(start) > kNear)
            to = -1;
        return;
    }
    const double a = (-kNear - start) / step;
    const double b = (kNear - start) / step;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
}

/// The coordinate at `part` of a stroke, limited to the near range because rounding can lead out of it.
double ChartLine::Along(double start, double step, double part) {
    return std::clamp(start + part * step, -kNear, kNear);
}

void ChartLine::Add(double x, double y) {
    if (std::isnan(x) || std::isnan(y)) {
        End();
        return;
    }
    const double farthestY = m_mode == Straight || m_mode == Steps ? kFarthest : kNear;
    const Place place{std::clamp(x, -kFarthest, kFarthest), std::clamp(y, -farthestY, farthestY)};
    if (m_started && IsStepped())
        AddPlace({place.x, m_last.y});
    AddPlace(place);
}

void ChartLine::AddPlace(const Place& place) {
    if (m_started && !(IsNear(m_last) && IsNear(place))) {
        m_isLone = false;
        AddCut(place);
    } else if (IsNear(place)) {
        const Point pixel = ToPixel(place.x, place.y);
        if (!m_started)
            m_first = pixel;
        m_isLone = (m_isLone || !m_started) && pixel == m_first;
        m_path.Add(pixel);
    }
    if (IsNear(place))
        m_lastPixel = ToPixel(place.x, place.y);
    m_last = place;
    m_isLastNear = IsNear(place);
    m_started = true;
}

void ChartLine::AddCut(const Place& to) {
    // Count `part` from the near end, if the stroke has one: counted from a very large far end, rounding
    // would lose the position of the near end. So the near end keeps the pixel that it has in a line without
    // cuts.
    const bool backwards = IsNear(to);
    const Place& start = backwards ? to : m_last;
    const Place& other = backwards ? m_last : to;
    const double dx = other.x - start.x;
    const double dy = other.y - start.y;
    double begin = 0;
    double end = 1;
    Narrow(start.x, dx, begin, end);
    Narrow(start.y, dy, begin, end);
    if (begin <= end) {
        const Point cut = ToPixel(Along(start.x, dx, end), Along(start.y, dy, end));
        if (backwards) {
            m_path.Add(cut);
            m_path.Add(ToPixel(to.x, to.y));
        } else {
            if (!IsNear(m_last))
                m_path.Add(ToPixel(Along(start.x, dx, begin), Along(start.y, dy, begin)));
            m_path.Add(cut);
        }
    }
    // The far point itself is not passed on: the line ends at the cut and begins again where it becomes near.
    if (!IsNear(to))
        m_path.Break();
}

void ChartLine::End() {
    m_path.Break();
    if (m_isLone)
        m_lonePixels.Add(m_first);
    m_isLone = m_started = false;
}

} // namespace kavlix

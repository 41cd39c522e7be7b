// Cutting strokes at the border of the range that GDI can draw.
#include "chartdraw/core/ChartLine.h"

#include <algorithm>
#include <cmath>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

// Pixels. The difference of two such positions is still finite.
constexpr double kFarthest = 1e300;

Point ToPixel(double x, double y) {
    return {ToCoordinate(x), ToCoordinate(y)};
}

} // namespace

// Along the stroke one coordinate is start + part * step, with part from 0 to 1. Narrows the range `from` to
// `to` of the part to where this coordinate is near. `from` > `to` afterwards: the stroke is nowhere near.
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

// The coordinate at `part` of a stroke, held within the near range against rounding.
double ChartLine::Along(double start, double step, double part) {
    return std::clamp(start + part * step, -kNear, kNear);
}

void ChartLine::Add(double x, double y) {
    if (std::isnan(x) || std::isnan(y)) {
        End();
        return;
    }
    const Place place{std::clamp(x, -kFarthest, kFarthest), std::clamp(y, -kFarthest, kFarthest)};
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
    m_last = place;
    m_started = true;
}

void ChartLine::AddCut(const Place& to) {
    // Count the parts from the near end, if there is one: from a very large far end, rounding would lose the
    // near one. The near end keeps the pixel that it has in a line without cuts.
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

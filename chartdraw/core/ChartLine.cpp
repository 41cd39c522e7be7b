#include "chartdraw/core/ChartLine.h"

#include <algorithm>
#include <cmath>

#include "plot/Numeric.h"

namespace kavlix {

namespace {

/// Sums and products of two such positions stay finite.
constexpr double kFarthest = 1e300;

Point ToPixel(double x, double y) {
    return {ToCoordinate(x), ToCoordinate(y)};
}

} // namespace

/// Narrows the part [from, to] of a stroke to where `start` + part * `step` lies within the near range.
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
    // What is near has its own pixel, as in a line that is not cut, and the cut is reckoned from there: the
    // far end may be so large that the near one is lost in it.
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
    // Out there the stroke ends; the next one begins where it comes back.
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

// SPDX-License-Identifier: MIT
// Texts inside sectors, and the choice of what goes beside the pie.
#include "piechart/core/PieLabels.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "piechart/core/PieLabelsBeside.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr int kSectorInset = 2; // pixels between a text and its sector's boundary
constexpr int kSampleStep = 2;  // pixels between the tested points on the edges of a text's box

constexpr double kQuarterCircle = 90.0;

// Places tried for the texts inside a sector: distances from the label circle, in radii of the pie; negative
// distances are towards the centre.
constexpr double kInsideShifts[] = {0.0, 0.06, 0.12, -0.08, -0.16};

/// One run of PlaceLabels().
class Placer {
public:
    Placer(const PieLabelArea& area, const std::vector<PieLabelRequest>& requests)
        : m_area(area), m_requests(requests), m_centre(PieCentre(area.pie)),
          m_radius((static_cast<double>(area.pie.bottom) - area.pie.top) / 2), m_labels(requests.size()) {}

    std::vector<PieLabel> Place() {
        // Texts would hide a pie of less than two lines' height.
        if (m_radius < m_area.lineHeight)
            return std::move(m_labels);
        std::vector<PieBlock> left;
        std::vector<PieBlock> right;
        for (std::size_t i = 0; i < m_requests.size(); ++i) {
            const PieText rest = PlaceInside(i);
            if (rest.label == 0 && rest.percent == 0)
                continue;
            PieBlock block;
            block.index = i;
            block.angle = Angle(m_requests[i].sector.Middle());
            block.span = m_requests[i].sector.Span();
            block.text = rest;
            (block.angle < 2 * kQuarterCircle ? right : left).push_back(block);
        }
        PlaceBeside(m_area, left, false, m_labels);
        PlaceBeside(m_area, right, true, m_labels);
        return std::move(m_labels);
    }

private:
    // Turns an angle counted from the first piece into one counted from twelve o'clock, 0 to 360.
    double Angle(double angle) const {
        const double turned = std::fmod(angle + m_area.startAngle, kFullCircle);
        return turned < 0 ? turned + kFullCircle : turned;
    }

    // Whether a rectangle lies in a sector, at least kSectorInset from its boundary. Points on the
    // rectangle's edges are tested.
    bool IsInside(const Rect& rect, const PieSector& sector) const {
        const auto holds = [&](int x, int y) {
            const double dx = x - m_centre.x;
            const double dy = y - m_centre.y;
            const double distance = std::hypot(dx, dy);
            if (distance > m_radius - kSectorInset)
                return false;
            if (sector.Span() >= kFullCircle)
                return true;
            const double from = std::fmod(
                AngleOfPoint(m_area.pie, {x, y}) - Angle(sector.begin) + 2 * kFullCircle, kFullCircle);
            const double toBoundary = std::min(from, sector.Span() - from);
            return toBoundary >= kQuarterCircle ||
                   (toBoundary > 0 && std::sin(PieRadians(toBoundary)) * distance >= kSectorInset);
        };
        for (int x = rect.left; x < rect.right + kSampleStep; x += kSampleStep) {
            const int column = std::min(x, rect.right);
            if (!holds(column, rect.top) || !holds(column, rect.bottom))
                return false;
        }
        for (int y = rect.top; y < rect.bottom + kSampleStep; y += kSampleStep) {
            const int row = std::min(y, rect.bottom);
            if (!holds(rect.left, row) || !holds(rect.right, row))
                return false;
        }
        return true;
    }

    static Rect Around(Point middle, int width, int height) {
        const int left = middle.x - width / 2;
        const int top = middle.y - height / 2;
        return {left, top, left + width, top + height};
    }

    // Places both texts of a piece in its sector if they fit, otherwise the percentage alone if that fits.
    // The result holds the widths of the texts that are not placed.
    PieText PlaceInside(std::size_t index) {
        const PieSector& sector = m_requests[index].sector;
        const PieText& text = m_requests[index].text;
        const int line = m_area.lineHeight;
        PieLabel& label = m_labels[index];
        const double middle = Angle(sector.Middle());
        const bool narrow = sector.Span() < 2 * kQuarterCircle &&
                            2 * m_radius * std::sin(PieRadians(sector.Span() / 2)) < line;
        if (narrow)
            return text;

        const Point place = PointOnPie(m_area.pie, middle, true);
        const int lines = (text.label > 0) + (text.percent > 0);
        const int width = std::max(text.label, text.percent);
        for (const double shift : kInsideShifts) {
            const double radians = PieRadians(middle);
            const Point shifted{place.x + ToCoordinate(std::sin(radians) * shift * m_radius),
                                place.y - ToCoordinate(std::cos(radians) * shift * m_radius)};
            const Rect box = Around(shifted, width + 2 * kPieTextPadding, lines * line);
            if (!IsInside(box, sector))
                continue;
            label.box = box;
            Rect row = {box.left + kPieTextPadding, box.top, box.right - kPieTextPadding, box.top + line};
            if (text.label > 0) {
                label.label = row;
                row.top += line;
                row.bottom += line;
            }
            if (text.percent > 0)
                label.percent = row;
            return {};
        }
        PieText rest = text;
        const Rect alone = Around(place, text.percent, line);
        if (text.percent > 0 && IsInside(alone, sector)) {
            label.percent = alone;
            rest.percent = 0;
        }
        return rest;
    }

    const PieLabelArea& m_area;
    const std::vector<PieLabelRequest>& m_requests;
    Point m_centre;
    double m_radius;
    std::vector<PieLabel> m_labels;
};

} // namespace

std::vector<int> WidestSectors(const std::vector<PieSector>& sectors, int count) {
    std::vector<int> indices;
    for (std::size_t i = 0; i < sectors.size(); ++i)
        if (sectors[i].hasPlace)
            indices.push_back(static_cast<int>(i));
    const auto kept = static_cast<std::size_t>(std::max(count, 0));
    if (indices.size() <= kept)
        return indices;
    const auto wider = [&](int a, int b) {
        const double first = sectors[static_cast<std::size_t>(a)].Span();
        const double second = sectors[static_cast<std::size_t>(b)].Span();
        return first != second ? first > second : a < b;
    };
    std::nth_element(indices.begin(), indices.begin() + static_cast<std::ptrdiff_t>(kept), indices.end(),
                     wider);
    indices.resize(kept);
    std::sort(indices.begin(), indices.end());
    return indices;
}

int LabelCapacity(const PieLabelArea& area) {
    // Each line has room for one label on either side of the pie. Labels inside the pie count too, although
    // they need no room beside it.
    return 2 * (std::max(area.client.Height(), 0) / std::max(area.lineHeight, 1));
}

std::vector<PieLabel> PlaceLabels(const PieLabelArea& area, const std::vector<PieLabelRequest>& requests) {
    return Placer(area, requests).Place();
}

} // namespace kavlix

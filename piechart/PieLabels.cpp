#include "piechart/PieLabels.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "graphctrl/Numeric.h"

namespace kavlix {
namespace {

// Pixels.
constexpr int kPadding = 2;        // of a box, left and right of its texts
constexpr int kRowGap = 2;         // between boxes one above the other
constexpr int kWordGap = 5;        // between label and percentage in one line
constexpr int kWindowMargin = 1;   // between boxes and the window's edge
constexpr int kPieGap = 6;         // between the pie and a box beside it
constexpr int kSectorInset = 2;    // between a text and its sector's boundary
constexpr int kSampleStep = 2;     // between the points of a text's edge that are looked at
constexpr int kLeaderStart = 4;    // leaders leave the rim that far outwards
constexpr double kBendEvery = 6.0; // degrees along the rim, where a straight leader would cross the pie

constexpr int kMostLines = 3;         // of a box
constexpr std::size_t kMostBends = 1; // a leader with more leads nobody's eye

constexpr double kQuarterCircle = 90.0;

// Distances from the label circle at which a text inside is tried, parts of the radius.
constexpr double kInsideShifts[] = {0.0, 0.06, 0.12, -0.08, -0.16};

/// A block of texts beside the pie.
struct Block {
    std::size_t index = 0; ///< of the request
    double angle = 0;      ///< of the sector's middle
    PieText text;          ///< what of the texts is to stand here
    int lines = 0;
    int wanted = 0; ///< top where it stands beside its sector
    int top = 0;
};

/// How the texts of a block are arranged; no lines when it has no room.
struct Arrangement {
    int lines = 0;
    int width = 0;
    int labelWidth = 0;
    bool broken = false;
    bool percent = false;
    bool sameLine = false;
};

class Placer {
public:
    Placer(const PieLabelArea& area, const std::vector<PieLabelRequest>& requests)
        : m_area(area), m_requests(requests), m_centre(PieCentre(area.pie)),
          m_radius((static_cast<double>(area.pie.bottom) - area.pie.top) / 2), m_labels(requests.size()) {}

    std::vector<PieLabel> Place() {
        // Texts would only hide a pie that is hardly higher than themselves.
        if (m_radius < m_area.lineHeight)
            return std::move(m_labels);
        std::vector<Block> left;
        std::vector<Block> right;
        for (std::size_t i = 0; i < m_requests.size(); ++i) {
            const PieText rest = PlaceInside(i);
            if (rest.label == 0 && rest.percent == 0)
                continue;
            Block block;
            block.index = i;
            block.angle = Angle(m_requests[i].sector.Middle());
            block.text = rest;
            (block.angle < 2 * kQuarterCircle ? right : left).push_back(block);
        }
        PlaceBeside(left, false);
        PlaceBeside(right, true);
        return std::move(m_labels);
    }

private:
    /// From an angle of the pieces to one of the circle, 0 to 360.
    double Angle(double angle) const {
        const double turned = std::fmod(angle + m_area.startAngle, kFullCircle);
        return turned < 0 ? turned + kFullCircle : turned;
    }

    // Whether all of a rectangle lies in a sector and clear of its boundary.
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

    // Puts both texts of a piece into its sector, or else the percentage alone. The result is what is left.
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
            const Rect box = Around(shifted, width + 2 * kPadding, lines * line);
            if (!IsInside(box, sector))
                continue;
            label.box = box;
            Rect row = {box.left + kPadding, box.top, box.right - kPadding, box.top + line};
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

    /// The place between the pie and the window's edge, left and right, for a box in the rows [top, bottom).
    Rect Beside(bool right, int top, int bottom) const {
        const int away = top > m_centre.y ? top - m_centre.y : bottom < m_centre.y ? m_centre.y - bottom : 0;
        // Leaders run between the pie and the boxes.
        const double keptClear = m_radius + kLeaderStart + 1;
        const double half = away < keptClear ? std::sqrt(keptClear * keptClear - double{1} * away * away) : 0;
        const int reach = TruncateToInt(std::ceil(half)) + kPieGap - kLeaderStart - 1;
        return right ? Rect{m_centre.x + reach, top, m_area.client.right - kWindowMargin, bottom}
                     : Rect{m_area.client.left + kWindowMargin, top, m_centre.x - reach, bottom};
    }

    // The most that fits into a width and a number of lines.
    Arrangement Arrange(const PieText& text, int room, int maxLines) const {
        const int width = room - 2 * kPadding;
        Arrangement result;
        result.percent = text.percent > 0 && text.percent <= width;
        result.labelWidth = text.label;
        result.width = std::max(text.label, result.percent ? text.percent : 0);
        const int both = text.label + kWordGap + text.percent;
        if (text.label == 0) {
            result.lines = result.percent;
        } else if (result.percent && both <= width) {
            result.sameLine = true;
            result.width = both;
            result.lines = 1;
        } else if (text.label <= width && (!result.percent || maxLines >= 2)) {
            result.lines = 1 + result.percent;
        } else if (text.broken > 0 && text.broken <= width && maxLines >= 2 + result.percent) {
            result.broken = true;
            result.labelWidth = text.broken;
            result.width = std::max(text.broken, result.percent ? text.percent : 0);
            result.lines = 2 + result.percent;
        } else if (width >= text.narrowest) {
            // An abbreviated label goes with the percentage as far as both say something.
            const int beside = width - kWordGap - text.percent;
            result.labelWidth = std::min(text.label, width);
            result.width = result.labelWidth;
            result.lines = 1;
            if (result.percent && maxLines >= 2) {
                result.lines = 2;
                result.width = std::max(result.width, text.percent);
            } else if (result.percent && beside >= text.narrowest) {
                result.sameLine = true;
                result.labelWidth = beside;
                result.width = width;
            } else {
                result.percent = false;
            }
        } else if (result.percent) {
            result.labelWidth = 0;
            result.width = text.percent;
            result.lines = 1;
        }
        return result;
    }

    int Height(const Block& block) const { return block.lines * m_area.lineHeight; }

    // As many lines as the texts take beside their sector, at most `maxLines`.
    void Measure(Block& block, bool right, int maxLines) const {
        const Point sector = PointAround(m_area.pie, block.angle, m_radius + kPieGap);
        for (block.lines = 1;; ++block.lines) {
            // Over and under the pie a box stands clear of it, at the sides beside its sector.
            const double half = Height(block) / 2.0;
            block.wanted = sector.y - ToCoordinate(half + half * std::cos(PieRadians(block.angle)));
            const Rect room = Beside(right, block.wanted, block.wanted + Height(block));
            const int lines = Arrange(block.text, room.Width(), maxLines).lines;
            if (lines == 0)
                block.lines = 0;
            if (lines <= block.lines)
                return;
        }
    }

    int TotalHeight(const std::vector<Block>& blocks) const {
        int height = -kRowGap;
        for (const Block& block : blocks)
            height += Height(block) + kRowGap;
        return height;
    }

    // Moves blocks that stand on one another apart, each as little as can be, and all into the window. The
    // blocks are sorted and fit.
    void Spread(std::vector<Block>& blocks, int top, int bottom) const {
        struct Cluster {
            double sum = 0; ///< of the tops wanted, each less what stands above it
            int count = 0;
            double Mean() const { return sum / count; }
        };
        std::vector<Cluster> clusters;
        int above = 0;
        for (const Block& block : blocks) {
            clusters.push_back({static_cast<double>(block.wanted - above), 1});
            above += Height(block) + kRowGap;
            while (clusters.size() > 1 && clusters[clusters.size() - 2].Mean() >= clusters.back().Mean()) {
                clusters[clusters.size() - 2].sum += clusters.back().sum;
                clusters[clusters.size() - 2].count += clusters.back().count;
                clusters.pop_back();
            }
        }
        const int last = std::max(bottom - TotalHeight(blocks), top);
        std::size_t next = 0;
        above = 0;
        for (const Cluster& cluster : clusters) {
            const int first = std::clamp(TruncateToInt(std::round(cluster.Mean())), top, last);
            for (int i = 0; i < cluster.count; ++i, ++next) {
                blocks[next].top = first + above;
                above += Height(blocks[next]) + kRowGap;
            }
        }
    }

    // Gives blocks that found less room than beside their sector further lines, as far as the window's height
    // goes. False when none has changed.
    bool Grow(std::vector<Block>& blocks, bool right, int height, int maxLines) const {
        bool grown = false;
        for (Block& block : blocks) {
            const Rect room = Beside(right, block.top, block.top + Height(block));
            const int more = Arrange(block.text, room.Width(), maxLines).lines - block.lines;
            if (more <= 0 || TotalHeight(blocks) + more * m_area.lineHeight > height)
                continue;
            block.lines += more;
            block.wanted -= more * m_area.lineHeight / 2;
            grown = true;
        }
        return grown;
    }

    void PlaceBeside(std::vector<Block>& blocks, bool right) {
        const int top = m_area.client.top + kWindowMargin;
        const int bottom = m_area.client.bottom - kWindowMargin;
        const auto without = [&](const auto& unwanted) {
            blocks.erase(std::remove_if(blocks.begin(), blocks.end(), unwanted), blocks.end());
        };
        int maxLines = kMostLines;
        for (;; --maxLines) {
            for (Block& block : blocks)
                Measure(block, right, maxLines);
            without([](const Block& block) { return block.lines == 0; });
            if (maxLines == 1 || TotalHeight(blocks) <= bottom - top)
                break;
        }
        while (!blocks.empty() && TotalHeight(blocks) > bottom - top)
            blocks.erase(std::min_element(blocks.rbegin(), blocks.rend(),
                                          [&](const Block& a, const Block& b) { return Span(a) < Span(b); })
                             .base() -
                         1);
        std::stable_sort(blocks.begin(), blocks.end(), [&](const Block& a, const Block& b) {
            return right ? a.angle < b.angle : a.angle > b.angle;
        });
        for (;;) {
            do
                Spread(blocks, top, bottom);
            while (Grow(blocks, right, bottom - top, maxLines));
            for (const Block& block : blocks)
                Put(block, right);
            const auto far =
                std::max_element(blocks.begin(), blocks.end(),
                                 [&](const Block& a, const Block& b) { return Bends(a) < Bends(b); });
            if (far == blocks.end() || Bends(*far) <= kMostBends)
                return;
            RemoveNear(blocks, far);
        }
    }

    // How often the way from the rim to a block must turn round the pie.
    std::size_t Bends(const Block& block) const {
        constexpr std::size_t kStraight = 3; // rim, start, end
        const std::vector<Point>& leader = m_labels[block.index].leader;
        return leader.size() > kStraight ? leader.size() - kStraight : 0;
    }

    // Takes out the smallest of the blocks that stand close together round `crowded`.
    void RemoveNear(std::vector<Block>& blocks, std::vector<Block>::iterator crowded) {
        const auto touch = [&](const Block& upper, const Block& lower) {
            return upper.top + Height(upper) + kRowGap == lower.top;
        };
        auto first = crowded;
        while (first != blocks.begin() && touch(*(first - 1), *first))
            --first;
        auto end = crowded + 1;
        while (end != blocks.end() && touch(*(end - 1), *end))
            ++end;
        const auto smallest =
            std::min_element(first, end, [&](const Block& a, const Block& b) { return Span(a) < Span(b); });
        Clear(*smallest);
        blocks.erase(smallest);
    }

    double Span(const Block& block) const { return m_requests[block.index].sector.Span(); }

    // Takes the box beside the pie away again; a percentage inside the sector stays.
    void Clear(const Block& block) {
        PieLabel none;
        if (block.text.percent == 0)
            none.percent = m_labels[block.index].percent;
        m_labels[block.index] = none;
    }

    void Put(const Block& block, bool right) {
        Clear(block);
        const Rect room = Beside(right, block.top, block.top + Height(block));
        const Arrangement shape = Arrange(block.text, room.Width(), block.lines);
        const int line = m_area.lineHeight;
        if (shape.lines == 0)
            return;
        PieLabel& label = m_labels[block.index];
        const int width = shape.width + 2 * kPadding;
        const int left = right ? room.left : room.right - width;
        const int top = room.top + (Height(block) - shape.lines * line) / 2;
        label.outside = true;
        label.broken = shape.broken;
        label.box = {left, top, left + width, top + shape.lines * line};

        // Texts stand at the side of the box that faces the pie.
        const int labelLines = shape.labelWidth == 0 ? 0 : 1 + shape.broken;
        const auto row = [&](int textWidth, int first, int lines) {
            const int x = right ? left + kPadding : left + width - kPadding - textWidth;
            return Rect{x, top + first * line, x + textWidth, top + (first + lines) * line};
        };
        if (labelLines > 0)
            label.label = row(shape.labelWidth, 0, labelLines);
        if (shape.percent)
            label.percent = row(block.text.percent, shape.sameLine ? 0 : labelLines, 1);
        if (shape.sameLine) {
            label.label.left = left + kPadding;
            label.label.right = label.label.left + shape.labelWidth;
            label.percent.right = left + width - kPadding;
            label.percent.left = label.percent.right - block.text.percent;
        }
        label.leader = Leader(block.angle, label.box, right);
    }

    // Whether the straight line between two points comes closer to the centre than the rim.
    bool CrossesPie(Point from, Point to) const {
        const double dx = to.x - from.x;
        const double dy = to.y - from.y;
        const double length = dx * dx + dy * dy;
        double part = 0;
        if (length > 0)
            part = std::clamp(((m_centre.x - from.x) * dx + (m_centre.y - from.y) * dy) / length, 0.0, 1.0);
        return std::hypot(from.x + part * dx - m_centre.x, from.y + part * dy - m_centre.y) < m_radius + 1;
    }

    std::vector<Point> Leader(double angle, const Rect& box, bool right) const {
        std::vector<Point> points{PointOnPie(m_area.pie, angle, false)};
        const Point start = PointAround(m_area.pie, angle, m_radius + kLeaderStart);
        points.push_back(start);
        // To the edge that faces the pie; over or under the pie that may be the lower or upper one.
        Point to{right ? box.left : box.right, (box.top + box.bottom) / 2};
        const int above = start.y >= box.bottom ? start.y - box.bottom : box.top - start.y;
        if (start.x >= box.left && start.x < box.right && above < m_area.lineHeight)
            to = {start.x, start.y >= box.bottom ? box.bottom : box.top};
        const double towards = AngleOfPoint(m_area.pie, to) > angle ? kBendEvery : -kBendEvery;
        constexpr int kHalfWay = 30; // bends to the other side of the pie
        for (int i = 0; i < kHalfWay && CrossesPie(points.back(), to); ++i) {
            angle += towards;
            points.push_back(PointAround(m_area.pie, angle, m_radius + kLeaderStart));
        }
        points.push_back(to);
        return points;
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
    // One label to a line on either side; fewer than that fit inside.
    return 2 * (std::max(area.client.Height(), 0) / std::max(area.lineHeight, 1));
}

std::vector<PieLabel> PlaceLabels(const PieLabelArea& area, const std::vector<PieLabelRequest>& requests) {
    return Placer(area, requests).Place();
}

} // namespace kavlix

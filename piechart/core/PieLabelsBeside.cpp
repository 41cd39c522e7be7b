// Labels beside the pie: their places, and the leaders to their sectors.
#include "piechart/core/PieLabelsBeside.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

// Pixels.
constexpr int kRowGap = 2;         // between boxes one above the other
constexpr int kWordGap = 5;        // between label and percentage in one line
constexpr int kWindowMargin = 1;   // between boxes and the window's edge
constexpr int kPieGap = 6;         // between the pie and a box beside it
constexpr int kLeaderStart = 4;    // leaders leave the rim that far outwards
constexpr int kLaneWidth = 3;      // between leaders that run round the pie one outside the other
constexpr double kBendEvery = 6.0; // degrees along the rim, where a straight leader would cross the pie

constexpr int kMostLines = 3; // of a box
constexpr int kMostLanes = 6; // side by side, beside the one next to the pie
constexpr int kLanesAStep = 2;
constexpr int kMostBends = 6; // a longer way round the pie is hard to follow
// Leaders of tiny sectors begin side by side: up to 10 pixels of two leaders may lie closer than kTogether.
constexpr int kMostTogether = 10;
constexpr double kTogether = 2.0;

/// How the texts of a block are arranged; no lines when it has no room.
struct Arrangement {
    int lines = 0;
    int width = 0;
    int labelWidth = 0;
    bool broken = false;
    bool percent = false;
    bool sameLine = false;
};

/// The blocks of one side.
class Column {
public:
    Column(const PieLabelArea& area, std::vector<PieBlock> blocks, bool right, int lanes)
        : m_area(area), m_blocks(std::move(blocks)), m_right(right), m_lanes(lanes),
          m_centre(PieCentre(area.pie)), m_radius((static_cast<double>(area.pie.bottom) - area.pie.top) / 2) {
    }

    /// Leaves out the smallest blocks until the others have room, and leaders that can be told apart.
    void Place() {
        const int top = m_area.client.top + kWindowMargin;
        const int bottom = m_area.client.bottom - kWindowMargin;
        int maxLines = kMostLines;
        for (;; --maxLines) {
            for (PieBlock& block : m_blocks)
                Measure(block, maxLines);
            m_blocks.erase(std::remove_if(m_blocks.begin(), m_blocks.end(),
                                          [](const PieBlock& block) { return block.lines == 0; }),
                           m_blocks.end());
            if (maxLines == 1 || TotalHeight() <= bottom - top)
                break;
        }
        while (!m_blocks.empty() && TotalHeight() > bottom - top)
            m_blocks.erase(std::min_element(m_blocks.rbegin(), m_blocks.rend(), IsSmaller).base() - 1);
        std::stable_sort(m_blocks.begin(), m_blocks.end(),
                         [&](const PieBlock& a, const PieBlock& b) { return Down(a) < Down(b); });
        for (;;) {
            do
                Spread(top, bottom);
            while (Grow(bottom - top, maxLines));
            const auto crowded = Connect();
            if (crowded == m_blocks.end())
                return;
            RemoveNear(crowded);
        }
    }

    std::size_t Count() const { return m_blocks.size(); }

    void Put(std::vector<PieLabel>& labels) const {
        for (const PieBlock& block : m_blocks)
            Put(block, labels[block.index]);
    }

private:
    using Iterator = std::vector<PieBlock>::iterator;

    static bool IsSmaller(const PieBlock& a, const PieBlock& b) { return a.span < b.span; }

    // How far down a sector lies, degrees: 0 to 180 from top to bottom on either side.
    double Down(const PieBlock& block) const { return m_right ? block.angle : kFullCircle - block.angle; }

    int Height(const PieBlock& block) const { return block.lines * m_area.lineHeight; }

    // The radius that boxes keep clear of: leaders run between the pie and the boxes.
    double Clear() const { return m_radius + kLeaderStart + m_lanes * kLaneWidth + 1; }

    // The place between the pie and the window's edge for a box in the rows [top, bottom).
    Rect Beside(int top, int bottom) const {
        const int away = top > m_centre.y ? top - m_centre.y : bottom < m_centre.y ? m_centre.y - bottom : 0;
        const double half = away < Clear() ? std::sqrt(Clear() * Clear() - double{1} * away * away) : 0;
        const int reach = TruncateToInt(std::ceil(half)) + kPieGap - kLeaderStart - 1;
        return m_right ? Rect{m_centre.x + reach, top, m_area.client.right - kWindowMargin, bottom}
                       : Rect{m_area.client.left + kWindowMargin, top, m_centre.x - reach, bottom};
    }

    Rect Room(const PieBlock& block) const { return Beside(block.top, block.top + Height(block)); }

    // The most that fits into a width and a number of lines.
    Arrangement Arrange(const PieText& text, int room, int maxLines) const {
        const int width = room - 2 * kPieTextPadding;
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

    // As many lines as the texts take beside their sector, at most `maxLines`.
    void Measure(PieBlock& block, int maxLines) const {
        const Point sector = PointAround(m_area.pie, block.angle, m_radius + kPieGap);
        for (block.lines = 1;; ++block.lines) {
            // Over and under the pie a box stands clear of it, at the sides beside its sector.
            const double half = Height(block) / 2.0;
            block.wanted = sector.y - ToCoordinate(half + half * std::cos(PieRadians(block.angle)));
            const Rect room = Beside(block.wanted, block.wanted + Height(block));
            const int lines = Arrange(block.text, room.Width(), maxLines).lines;
            if (lines == 0)
                block.lines = 0;
            if (lines <= block.lines)
                return;
        }
    }

    int TotalHeight() const {
        int height = -kRowGap;
        for (const PieBlock& block : m_blocks)
            height += Height(block) + kRowGap;
        return height;
    }

    // Moves blocks that stand on one another apart, each as little as can be, and all into the window. The
    // blocks are sorted and fit.
    void Spread(int top, int bottom) {
        struct Cluster {
            double sum = 0; ///< of the tops wanted, each less what stands above it
            int count = 0;
            double Mean() const { return sum / count; }
        };
        std::vector<Cluster> clusters;
        int above = 0;
        for (const PieBlock& block : m_blocks) {
            clusters.push_back({static_cast<double>(block.wanted - above), 1});
            above += Height(block) + kRowGap;
            while (clusters.size() > 1 && clusters[clusters.size() - 2].Mean() >= clusters.back().Mean()) {
                clusters[clusters.size() - 2].sum += clusters.back().sum;
                clusters[clusters.size() - 2].count += clusters.back().count;
                clusters.pop_back();
            }
        }
        const int last = std::max(bottom - TotalHeight(), top);
        std::size_t next = 0;
        above = 0;
        for (const Cluster& cluster : clusters) {
            const int first = std::clamp(TruncateToInt(std::round(cluster.Mean())), top, last);
            for (int i = 0; i < cluster.count; ++i, ++next) {
                m_blocks[next].top = first + above;
                above += Height(m_blocks[next]) + kRowGap;
            }
        }
    }

    // Gives blocks that found less room than beside their sector further lines, as far as the window's height
    // goes. False when none has changed.
    bool Grow(int height, int maxLines) {
        bool grown = false;
        for (PieBlock& block : m_blocks) {
            const Rect room = Room(block);
            const int more = Arrange(block.text, room.Width(), maxLines).lines - block.lines;
            if (more <= 0 || TotalHeight() + more * m_area.lineHeight > height)
                continue;
            block.lines += more;
            block.wanted -= more * m_area.lineHeight / 2;
            grown = true;
        }
        return grown;
    }

    // Gives every block its leader, each in the nearest lane in which it can be told from its neighbours'.
    // The result is a block whose leader finds no way, or the end.
    Iterator Connect() {
        for (PieBlock& block : m_blocks)
            block.leader.clear();
        // Leaders that lead down pass outside those that begin below, so these come first, and the other way
        // round.
        for (auto block = m_blocks.end(); block != m_blocks.begin();)
            if (LeadsDown(*--block) && !Connect(block))
                return block;
        for (auto block = m_blocks.begin(); block != m_blocks.end(); ++block)
            if (block->leader.empty() && !Connect(block))
                return block;
        return m_blocks.end();
    }

    bool Connect(Iterator block) {
        for (int lane = 0; lane <= m_lanes; ++lane) {
            std::vector<Point> leader = Leader(*block, lane);
            if (leader.empty() || (block != m_blocks.begin() && AreTogether(leader, (block - 1)->leader)) ||
                (block + 1 != m_blocks.end() && AreTogether(leader, (block + 1)->leader)))
                continue;
            block->leader = std::move(leader);
            return true;
        }
        return false;
    }

    Point LeaderStart(const PieBlock& block, int lane) const {
        return PointAround(m_area.pie, block.angle, m_radius + kLeaderStart + lane * kLaneWidth);
    }

    Rect Box(const PieBlock& block, const Arrangement& shape) const {
        const Rect room = Room(block);
        const int width = shape.width + 2 * kPieTextPadding;
        const int left = m_right ? room.left : room.right - width;
        const int top = room.top + (Height(block) - shape.lines * m_area.lineHeight) / 2;
        return {left, top, left + width, top + shape.lines * m_area.lineHeight};
    }

    // Where a leader ends: at the edge that faces the pie; over or under the pie that may be the lower or
    // upper one.
    Point LeaderEnd(const PieBlock& block) const {
        const Rect box = Box(block, Arrange(block.text, Room(block).Width(), block.lines));
        const Point start = LeaderStart(block, 0);
        const int above = start.y >= box.bottom ? start.y - box.bottom : box.top - start.y;
        if (start.x >= box.left && start.x < box.right && above < m_area.lineHeight)
            return {start.x, start.y >= box.bottom ? box.bottom : box.top};
        return {m_right ? box.left : box.right, (box.top + box.bottom) / 2};
    }

    bool LeadsDown(const PieBlock& block) const {
        const double end = AngleOfPoint(m_area.pie, LeaderEnd(block));
        return (m_right ? end : kFullCircle - end) > Down(block);
    }

    // From the rim outwards, round the pie in a lane and to the box; empty when the way round is too long.
    std::vector<Point> Leader(const PieBlock& block, int lane) const {
        std::vector<Point> points{PointOnPie(m_area.pie, block.angle, false), LeaderStart(block, lane)};
        const Point to = LeaderEnd(block);
        double angle = block.angle;
        const double towards = AngleOfPoint(m_area.pie, to) > angle ? kBendEvery : -kBendEvery;
        const double away = m_radius + 1 + lane * kLaneWidth;
        for (int bends = 0; IsCloser(points.back(), to, m_centre.x, m_centre.y, away); ++bends) {
            if (bends == kMostBends)
                return {};
            angle += towards;
            points.push_back(PointAround(m_area.pie, angle, m_radius + kLeaderStart + lane * kLaneWidth));
        }
        points.push_back(to);
        return points;
    }

    // Whether the straight line between two points comes closer to a third than `away`.
    static bool IsCloser(Point from, Point to, double x, double y, double away) {
        const double dx = double{1} * to.x - from.x;
        const double dy = double{1} * to.y - from.y;
        const double length = dx * dx + dy * dy;
        const double part =
            length > 0 ? std::clamp(((x - from.x) * dx + (y - from.y) * dy) / length, 0.0, 1.0) : 0;
        const double besideX = from.x + part * dx - x;
        const double besideY = from.y + part * dy - y;
        return besideX * besideX + besideY * besideY < away * away;
    }

    // Whether two straight lines cross; touching is none.
    static bool Cross(Point a, Point b, Point c, Point d) {
        const auto side = [](Point from, Point to, Point point) {
            const double turn = (double{1} * to.x - from.x) * (double{1} * point.y - from.y) -
                                (double{1} * to.y - from.y) * (double{1} * point.x - from.x);
            return turn > 0 ? 1 : turn < 0 ? -1 : 0;
        };
        return side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0;
    }

    // Whether an eye cannot follow one line apart from another.
    static bool AreTogether(const std::vector<Point>& line, const std::vector<Point>& other) {
        constexpr int kStep = 2;
        int together = 0;
        for (std::size_t i = 1; i < line.size(); ++i) {
            const int dx = line[i].x - line[i - 1].x;
            const int dy = line[i].y - line[i - 1].y;
            const int steps = std::max(std::abs(dx), std::abs(dy)) / kStep;
            for (std::size_t k = 1; k < other.size(); ++k)
                if (Cross(line[i - 1], line[i], other[k - 1], other[k]))
                    return true;
            for (int step = 0; step <= steps; ++step) {
                const double part = static_cast<double>(step) / std::max(steps, 1);
                const double x = line[i - 1].x + dx * part;
                const double y = line[i - 1].y + dy * part;
                for (std::size_t k = 1; k < other.size(); ++k) {
                    if (!IsCloser(other[k - 1], other[k], x, y, kTogether))
                        continue;
                    together += kStep;
                    break;
                }
                if (together > kMostTogether)
                    return true;
            }
        }
        return false;
    }

    // Takes out the smallest of the blocks that stand close together round `crowded`.
    void RemoveNear(Iterator crowded) {
        const auto touch = [&](const PieBlock& upper, const PieBlock& lower) {
            return upper.top + Height(upper) + kRowGap == lower.top;
        };
        auto first = crowded;
        while (first != m_blocks.begin() && touch(*(first - 1), *first))
            --first;
        auto end = crowded + 1;
        while (end != m_blocks.end() && touch(*(end - 1), *end))
            ++end;
        m_blocks.erase(std::min_element(first, end, IsSmaller));
    }

    void Put(const PieBlock& block, PieLabel& label) const {
        const Arrangement shape = Arrange(block.text, Room(block).Width(), block.lines);
        if (shape.lines == 0)
            return;
        label.outside = true;
        label.broken = shape.broken;
        label.box = Box(block, shape);
        label.leader = block.leader;

        // Texts stand at the side of the box that faces the pie.
        const int line = m_area.lineHeight;
        const int left = label.box.left + kPieTextPadding;
        const int right = label.box.right - kPieTextPadding;
        const int labelLines = shape.labelWidth == 0 ? 0 : 1 + shape.broken;
        const auto row = [&](int textWidth, int first, int lines) {
            const int x = m_right ? left : right - textWidth;
            const int top = label.box.top + first * line;
            return Rect{x, top, x + textWidth, top + lines * line};
        };
        if (labelLines > 0)
            label.label = row(shape.labelWidth, 0, labelLines);
        if (shape.percent)
            label.percent = row(block.text.percent, shape.sameLine ? 0 : labelLines, 1);
        if (shape.sameLine) {
            label.label.left = left;
            label.label.right = left + shape.labelWidth;
            label.percent.right = right;
            label.percent.left = right - block.text.percent;
        }
    }

    const PieLabelArea& m_area;
    std::vector<PieBlock> m_blocks; ///< from top to bottom
    bool m_right;
    int m_lanes; ///< beside the nearest one
    Point m_centre;
    double m_radius;
};

} // namespace

void PlaceBeside(const PieLabelArea& area, const std::vector<PieBlock>& blocks, bool right,
                 std::vector<PieLabel>& labels) {
    // Lanes take room from the texts: more of them only where more labels find a place then.
    std::optional<Column> best;
    for (int lanes = 0; lanes <= kMostLanes; lanes += kLanesAStep) {
        Column column(area, blocks, right, lanes);
        column.Place();
        if (!best || column.Count() > best->Count())
            best.emplace(std::move(column));
        if (best->Count() == blocks.size())
            break;
    }
    best->Put(labels);
}

} // namespace kavlix

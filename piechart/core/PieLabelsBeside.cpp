// SPDX-License-Identifier: MIT
// Text blocks beside the pie: where each stands, and its leader line to the sector.
#include "piechart/core/PieLabelsBeside.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "piechart/core/LeaderGeometry.h"
#include "piechart/core/PieTextArrangement.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr int kRowGap = 2;       // least number of pixels between two blocks one above the other
constexpr int kWindowMargin = 1; // least number of pixels between a block and the window's edge
constexpr int kPieGap = 6;       // pixels between the pie and a block; lanes add to them
constexpr int kLeaderStart = 4;  // pixels from the rim to lane 0, at a right angle to the rim
constexpr int kMostLines = 3;    // greatest number of text lines of a block

// A leader that cannot run straight to its block follows the rim in a lane: a circle round the pie. Every
// lane is kLaneWidth pixels farther out than the lane before it. Lane 0 is the closest to the pie.
constexpr int kLaneWidth = 3;
constexpr int kMostLanes = 6;                // greatest number of lanes outside lane 0
constexpr int kLanesAStep = 2;               // lanes that PlaceBeside adds at once
constexpr double kDegreesBetweenBends = 6.0; // between two bends of a leader in its lane
constexpr int kMostBends = 6;                // greatest number in the lane; longer leaders are hard to follow

/// The text blocks on one side of the pie, from top to bottom.
class Column {
public:
    Column(const PieLabelArea& area, std::vector<PieBlock> blocks, bool right, int lanes)
        : m_area(area), m_blocks(std::move(blocks)), m_right(right), m_lanes(lanes),
          m_centre(PieCentre(area.pie)), m_radius((static_cast<double>(area.pie.bottom) - area.pie.top) / 2) {
    }

    /// Removes blocks whose texts do not fit, and blocks of small sectors, until the remaining blocks fit and
    /// have distinct leaders. Gives the remaining blocks their places and leaders.
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
        std::stable_sort(m_blocks.begin(), m_blocks.end(), [&](const PieBlock& a, const PieBlock& b) {
            return DegreesFromTop(a) < DegreesFromTop(b);
        });
        for (;;) {
            do
                Spread(top, bottom);
            while (Grow(bottom - top, maxLines));
            const auto crowded = Connect();
            if (crowded == m_blocks.end())
                return;
            RemoveSmallestNear(crowded);
        }
    }

    std::size_t Count() const { return m_blocks.size(); }

    /// Writes the result to the entries of `labels` that the blocks belong to.
    void Store(std::vector<PieLabel>& labels) const {
        for (const PieBlock& block : m_blocks)
            Store(block, labels[block.index]);
    }

private:
    using Iterator = std::vector<PieBlock>::iterator;

    static bool IsSmaller(const PieBlock& a, const PieBlock& b) { return a.span < b.span; }

    // Degrees from twelve o'clock to a sector's middle, on the column's side of the pie: 0 to 180.
    double DegreesFromTop(const PieBlock& block) const {
        return m_right ? block.angle : kFullCircle - block.angle;
    }

    int Height(const PieBlock& block) const { return block.lines * m_area.lineHeight; }

    // The radius of the circle that blocks must not enter: the lanes of the leaders lie inside the circle.
    double ClearRadius() const { return m_radius + kLeaderStart + m_lanes * kLaneWidth + 1; }

    // The free rectangle between the pie and the window's edge, in the rows from `top` to `bottom` - 1.
    Rect FreeRoom(int top, int bottom) const {
        const int away = top > m_centre.y ? top - m_centre.y : bottom < m_centre.y ? m_centre.y - bottom : 0;
        const double half =
            away < ClearRadius() ? std::sqrt(ClearRadius() * ClearRadius() - double{1} * away * away) : 0;
        const int reach = TruncateToInt(std::ceil(half)) + kPieGap - kLeaderStart - 1;
        return m_right ? Rect{m_centre.x + reach, top, m_area.client.right - kWindowMargin, bottom}
                       : Rect{m_area.client.left + kWindowMargin, top, m_centre.x - reach, bottom};
    }

    Rect Room(const PieBlock& block) const { return FreeRoom(block.top, block.top + Height(block)); }

    // Chooses `wanted` and `lines`, at most `maxLines`, for a block that stands beside its sector. A taller
    // block has another place and so another width, so the number of lines grows until the texts fit. 0 lines
    // when no text fits.
    void Measure(PieBlock& block, int maxLines) const {
        const Point sector = PointAround(m_area.pie, block.angle, m_radius + kPieGap);
        for (block.lines = 1;; ++block.lines) {
            // At the top of the pie the block's lower edge is level with the sector, at the side of the pie
            // the block's middle, at the bottom its upper edge. The cosine blends these cases.
            const double half = Height(block) / 2.0;
            block.wanted = sector.y - ToCoordinate(half + half * std::cos(PieRadians(block.angle)));
            const Rect room = FreeRoom(block.wanted, block.wanted + Height(block));
            const int lines = ArrangeTexts(block.text, room.Width(), maxLines).lines;
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

    // Chooses the tops so that no blocks overlap and all lie between `top` and `bottom`, with the least sum
    // of squared distances from the wanted tops. Blocks that would overlap form a cluster, which stands at
    // the mean of what its blocks want. The blocks must be sorted and fit.
    void Spread(int top, int bottom) {
        struct Cluster {
            double sum = 0; // of the wanted tops, each minus the height of all blocks and gaps above it
            int count = 0;  // of blocks
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

    // Gives more lines to blocks whose texts take more lines at the place that Spread() has chosen than they
    // have, if all blocks then still fit into `height`. False when no block has changed.
    bool Grow(int height, int maxLines) {
        bool grown = false;
        for (PieBlock& block : m_blocks) {
            const Rect room = Room(block);
            const int more = ArrangeTexts(block.text, room.Width(), maxLines).lines - block.lines;
            if (more <= 0 || TotalHeight() + more * m_area.lineHeight > height)
                continue;
            block.lines += more;
            block.wanted -= more * m_area.lineHeight / 2;
            grown = true;
        }
        return grown;
    }

    // Gives every block a leader that differs clearly from the leaders of the neighbouring blocks. The result
    // is the first block found for which no lane gives such a leader, or m_blocks.end() if all have leaders.
    Iterator Connect() {
        for (PieBlock& block : m_blocks)
            block.leader.clear();
        // A leader that goes down passes outside the leaders that begin below it. So the lower leaders need
        // the inner lanes and choose first. Among the leaders that go up, the higher ones choose first.
        for (auto block = m_blocks.end(); block != m_blocks.begin();)
            if (LeadsDown(*--block) && !Connect(block))
                return block;
        for (auto block = m_blocks.begin(); block != m_blocks.end(); ++block)
            if (block->leader.empty() && !Connect(block))
                return block;
        return m_blocks.end();
    }

    // Gives a block a leader in the innermost lane where the leader differs clearly from those of the
    // neighbouring blocks. False when there is no such lane.
    bool Connect(Iterator block) {
        for (int lane = 0; lane <= m_lanes; ++lane) {
            std::vector<Point> leader = Leader(*block, lane);
            if (leader.empty() || (block != m_blocks.begin() && RunTogether(leader, (block - 1)->leader)) ||
                (block + 1 != m_blocks.end() && RunTogether(leader, (block + 1)->leader)))
                continue;
            block->leader = std::move(leader);
            return true;
        }
        return false;
    }

    Point LeaderStart(const PieBlock& block, int lane) const {
        return PointAround(m_area.pie, block.angle, m_radius + kLeaderStart + lane * kLaneWidth);
    }

    Rect Box(const PieBlock& block, const PieTextArrangement& shape) const {
        const Rect room = Room(block);
        const int width = shape.width + 2 * kPieTextPadding;
        const int left = m_right ? room.left : room.right - width;
        const int top = room.top + (Height(block) - shape.lines * m_area.lineHeight) / 2;
        return {left, top, left + width, top + shape.lines * m_area.lineHeight};
    }

    // The leader's end at the box: on the lower or upper edge if the sector lies closely below or above the
    // box, otherwise in the middle of the side that faces the pie.
    Point LeaderEnd(const PieBlock& block) const {
        const Rect box = Box(block, ArrangeTexts(block.text, Room(block).Width(), block.lines));
        const Point start = LeaderStart(block, 0);
        const int above = start.y >= box.bottom ? start.y - box.bottom : box.top - start.y;
        if (start.x >= box.left && start.x < box.right && above < m_area.lineHeight)
            return {start.x, start.y >= box.bottom ? box.bottom : box.top};
        return {m_right ? box.left : box.right, (box.top + box.bottom) / 2};
    }

    bool LeadsDown(const PieBlock& block) const {
        const double end = AngleOfPoint(m_area.pie, LeaderEnd(block));
        return (m_right ? end : kFullCircle - end) > DegreesFromTop(block);
    }

    // The leader from the rim into its lane, along the lane until a straight line to the box passes outside
    // the pie and the inner lanes, then to the box. Empty when the leader would have more than kMostBends
    // bends in the lane.
    std::vector<Point> Leader(const PieBlock& block, int lane) const {
        std::vector<Point> points{PointOnPie(m_area.pie, block.angle, false), LeaderStart(block, lane)};
        const Point to = LeaderEnd(block);
        double angle = block.angle;
        const double towards =
            AngleOfPoint(m_area.pie, to) > angle ? kDegreesBetweenBends : -kDegreesBetweenBends;
        const double away = m_radius + 1 + lane * kLaneWidth;
        for (int bends = 0; IsCloserThan(points.back(), to, m_centre.x, m_centre.y, away); ++bends) {
            if (bends == kMostBends)
                return {};
            angle += towards;
            points.push_back(PointAround(m_area.pie, angle, m_radius + kLeaderStart + lane * kLaneWidth));
        }
        points.push_back(to);
        return points;
    }

    // Removes the block with the smallest sector from the run of touching blocks that contains `crowded`.
    void RemoveSmallestNear(Iterator crowded) {
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

    void Store(const PieBlock& block, PieLabel& label) const {
        const PieTextArrangement shape = ArrangeTexts(block.text, Room(block).Width(), block.lines);
        if (shape.lines == 0)
            return;
        label.outside = true;
        label.broken = shape.broken;
        label.box = Box(block, shape);
        label.leader = block.leader;

        // Texts in separate lines are aligned to the side of the box that faces the pie. In one line, the
        // label stands at the left end of the box and the percentage at the right end.
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
    std::vector<PieBlock> m_blocks;
    bool m_right; ///< the column stands to the right of the pie
    int m_lanes;  ///< number of lanes outside lane 0
    Point m_centre;
    double m_radius;
};

} // namespace

void PlaceBeside(const PieLabelArea& area, const std::vector<PieBlock>& blocks, bool right,
                 std::vector<PieLabel>& labels) {
    // Lanes take width from the texts, so more lanes are chosen only if they place more labels.
    std::optional<Column> best;
    for (int lanes = 0; lanes <= kMostLanes; lanes += kLanesAStep) {
        Column column(area, blocks, right, lanes);
        column.Place();
        if (!best || column.Count() > best->Count())
            best.emplace(std::move(column));
        if (best->Count() == blocks.size())
            break;
    }
    best->Store(labels);
}

} // namespace kavlix

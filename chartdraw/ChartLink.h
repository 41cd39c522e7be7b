// SPDX-License-Identifier: MIT
// The charts that share an X view and cursors.
#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kavlix {

struct ChartDrawState;
struct ChartLinkState;

/// A range of an X axis, and the origin from which its values count.
struct LinkedRange {
    double min = 0;
    double max = 1;
    double origin = 0;
    bool isWhole = false; ///< the whole data of all linked charts instead of the range

    /// The same range, counted from another origin.
    LinkedRange From(double other) const {
        return {min + (origin - other), max + (origin - other), other, isWhole};
    }
    /// Whether the ranges are equal but for the rounding of origins.
    bool IsSameAs(const LinkedRange& other) const {
        if (isWhole || other.isWhole)
            return isWhole == other.isWhole;
        constexpr double kTolerance = 1e-9;
        const LinkedRange moved = other.From(origin);
        const double most = kTolerance * (max - min);
        return std::abs(min - moved.min) <= most && std::abs(max - moved.max) <= most;
    }
};

/// Charts that are linked with one another. Handlers of notifications can link and destroy charts while a range is
/// shared.
struct ChartLinkGroup {
    std::vector<ChartLinkState*> members;
    bool isSharing = false;          ///< a range is on its way to the members
    LinkedRange shared;              ///< this range
    std::optional<LinkedRange> next; ///< the range that a handler has set meanwhile, to be shared next
    unsigned round = 0;              ///< number of the last range
    bool isMovingCursor = false;     ///< the position of a cursor is on its way to the members

    bool Has(const ChartDrawState* chart) const;
    /// A member that has not got the range `round` yet; null when all have got it.
    ChartLinkState* NextMember() const;
};

/// Pixels from the window's left and right edge to the plot.
struct LinkedRoom {
    int left = 0;
    int right = 0;

    bool operator==(const LinkedRoom& other) const { return left == other.left && right == other.right; }
};

/// Membership of a chart in a group; ends with this object.
struct ChartLinkState {
    ChartLinkState(std::shared_ptr<ChartLinkGroup> joined, ChartDrawState* chart)
        : group(std::move(joined)), chart(chart), round(group->round) {
        group->members.push_back(this);
    }
    ~ChartLinkState() {
        auto& members = group->members;
        members.erase(std::remove(members.begin(), members.end(), this), members.end());
    }
    ChartLinkState(const ChartLinkState&) = delete;
    ChartLinkState& operator=(const ChartLinkState&) = delete;

    std::shared_ptr<ChartLinkGroup> group;
    ChartDrawState* chart;
    unsigned round;    ///< number of the last range that the chart has got
    LinkedRoom needed; ///< what the last layout needs
    LinkedRoom used;   ///< the most that a chart of the group needed then
};

inline bool ChartLinkGroup::Has(const ChartDrawState* chart) const {
    return std::any_of(
        members.begin(), members.end(), [=](const ChartLinkState* member) { return member->chart == chart; });
}

inline ChartLinkState* ChartLinkGroup::NextMember() const {
    const auto found = std::find_if(members.begin(), members.end(),
                                    [this](const ChartLinkState* member) { return member->round != round; });
    return found == members.end() ? nullptr : *found;
}

} // namespace kavlix

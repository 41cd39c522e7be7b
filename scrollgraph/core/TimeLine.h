#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

#include "scrollgraph/core/StampStore.h"

namespace kavlix {

/// X units per second on the time axis.
inline constexpr int kXUnitsPerSecond = 20;

/// The time stamps of a scrolling graph, one per sample index, in seconds since 1970-01-01 00:00 UTC. Stamp 0
/// is the origin of the x units. Appending never moves what is stored; dropping from the head costs what is
/// dropped.
///
/// Binary searches take the stamps to be in order; where they are not, their result is some valid index.
class TimeLine {
public:
    /// Number of stamps; never above what an int counts.
    int Size() const { return static_cast<int>(m_times.Size()); }
    bool Has(int index) const { return index >= 0 && index < Size(); }
    /// Stamp `index`; 0 when there is none.
    std::int32_t At(int index) const { return Has(index) ? Stamp(index) : 0; }
    /// Seconds from stamp 0 to stamp `index`, on 32 bits; 0 when there is no such stamp.
    std::int32_t Offset(int index) const;
    /// Place of sample `index` in x units. The product is taken on 32 bits and wraps round, 3.4 years from
    /// the origin; 0 when there is no such stamp.
    double X(int index) const;

    /// Throws std::bad_alloc, changing nothing, when memory or the range of an int is exhausted.
    void Append(std::int32_t time);
    /// Drops the `count` oldest stamps, all of them when there are fewer; a count below 1 drops none.
    void RemoveHead(int count);
    /// Drops all stamps and gives their memory back.
    void Clear();
    /// Keeps the first stamp, which must exist, alone.
    void KeepOne();

    /// The first sample whose x is not below `x`. The last stamp is never looked at, so that the result is at
    /// most Size() - 1; 0 when there are fewer than two stamps.
    int LowerBound(double x) const;
    /// The last sample that a view `viewWidth` x units wide, beginning at sample `first`, has room for when
    /// there is one sample a second. Hosts rely on the odd end: Size() itself, not Size() - 1, comes out when
    /// the room ends exactly there.
    int UpperBound(int first, double viewWidth) const;
    /// The last sample, at most `last`, up to which x never decreases from sample `first` on: the stamp
    /// behind it steps back. None where a stamp between is so far from the origin that its x wraps round.
    /// Both samples exist, `first` not behind `last`. A search among the stamps that step back, no walk.
    std::optional<int> RunEnd(int first, int last) const;

private:
    std::int32_t Stamp(int index) const { return m_times[static_cast<std::size_t>(index)]; }

    StampStore m_times;
    std::int64_t m_removed = 0; ///< stamps dropped from the head so far
    /// The stamps that are before their predecessors, ascending, each by its index when nothing was dropped.
    std::deque<std::int64_t> m_stepsBack;
};

} // namespace kavlix

// SPDX-License-Identifier: MIT
// The time stamps of a scrolling graph, and searches among them.
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
/// is the origin of the x units. Removing the oldest stamps costs time in proportion to their number.
///
/// LowerBound assumes ascending stamps; where stamps do not ascend, its result is some valid index.
class TimeLine {
public:
    /// Number of stamps; never above what an int counts.
    int Size() const { return static_cast<int>(m_times.Size()); }
    bool Has(int index) const { return index >= 0 && index < Size(); }
    /// Stamp `index`; 0 when there is none.
    std::int32_t At(int index) const { return Has(index) ? Stamp(index) : 0; }
    /// Seconds from stamp 0 to stamp `index`, modulo 2^32; 0 when there is no such stamp.
    std::int32_t Offset(int index) const;
    /// X of sample `index` in x units; 0 when there is no such stamp. X is computed with 32 bits, so it wraps
    /// round 3.4 years from stamp 0.
    double X(int index) const;

    /// Throws std::bad_alloc and changes nothing when memory or the range of an int is exhausted.
    void Append(std::int32_t time);
    /// Removes the `count` oldest stamps, all of them when there are fewer; a count below 1 removes none.
    void RemoveHead(int count);
    /// Removes all stamps and frees their memory.
    void Clear();
    /// Removes all stamps but the first, which must exist.
    void KeepOne();

    /// The first sample, of all but the last one, whose x is not below `x`; the last sample when there is
    /// none. 0 when there are fewer than two stamps.
    int LowerBound(double x) const;
    /// The last sample of a view `viewWidth` x units wide that begins at sample `first`, computed as if there
    /// were one sample a second. Hosts rely on an odd limit: a computed index of Size(), one behind the last
    /// sample, is returned unchanged; larger ones become Size() - 1.
    int UpperBound(int first, double viewWidth) const;
    /// The last sample of the run of ascending x that begins at sample `first`: the sample before the next
    /// stamp that is earlier than its predecessor, but at most `last`. None when the run contains a sample
    /// more than 3.4 years from stamp 0, whose x has wrapped round. Both samples must exist, `first` not
    /// behind `last`. Takes one binary search.
    std::optional<int> RunEnd(int first, int last) const;

private:
    std::int32_t Stamp(int index) const { return m_times[static_cast<std::size_t>(index)]; }

    StampStore m_times;
    std::int64_t m_removed = 0; ///< number of stamps that RemoveHead has removed so far
    /// Numbers of the stamps that are earlier than their predecessors, ascending. A stamp's number is its
    /// index plus m_removed.
    std::deque<std::int64_t> m_stepsBack;
};

} // namespace kavlix

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
/// The binary searches assume ascending stamps; where stamps do not ascend, the result is some valid index.
class TimeLine {
public:
    /// Number of stamps; never above what an int counts.
    int Size() const { return static_cast<int>(m_times.Size()); }
    bool Has(int index) const { return index >= 0 && index < Size(); }
    /// Stamp `index`; 0 when there is none.
    std::int32_t At(int index) const { return Has(index) ? Stamp(index) : 0; }
    /// Seconds from stamp 0 to stamp `index`, on 32 bits; 0 when there is no such stamp.
    std::int32_t Offset(int index) const;
    /// X of sample `index` in x units; 0 when there is no such stamp. The product has 32 bits and wraps round
    /// 3.4 years from the origin.
    double X(int index) const;

    /// Throws std::bad_alloc and changes nothing when memory or the range of an int is exhausted.
    void Append(std::int32_t time);
    /// Removes the `count` oldest stamps, all of them when there are fewer; a count below 1 removes none.
    void RemoveHead(int count);
    /// Removes all stamps and frees their memory.
    void Clear();
    /// Removes all stamps but the first, which must exist.
    void KeepOne();

    /// The first sample whose x is not below `x`. The search excludes the last stamp: the result is at most
    /// Size() - 1, and 0 when there are fewer than two stamps.
    int LowerBound(double x) const;
    /// The last sample of a view `viewWidth` x units wide that begins at sample `first`, as if there were one
    /// sample a second. Hosts rely on the odd limit: when the view ends exactly behind the last sample, the
    /// result is Size(), not Size() - 1.
    int UpperBound(int first, double viewWidth) const;
    /// The end of the run of ascending x that begins at sample `first`: the sample before the next stamp that
    /// steps back, at most `last`. None where x wraps round within the run. Both samples must exist, `first`
    /// not behind `last`. A binary search among the stamps that step back.
    std::optional<int> RunEnd(int first, int last) const;

private:
    std::int32_t Stamp(int index) const { return m_times[static_cast<std::size_t>(index)]; }

    StampStore m_times;
    std::int64_t m_removed = 0; ///< number of stamps removed from the head so far
    /// Indices of the stamps that are earlier than their predecessors, ascending, counted as if no stamp had
    /// been removed.
    std::deque<std::int64_t> m_stepsBack;
};

} // namespace kavlix

#pragma once

#include "monitor/recording/Recording.h"

#include <cstddef>
#include <deque>
#include <functional>

namespace kavlix::recording {

/// Finds lowest and highest value of any run of a long series at the price of a short one: it holds the spans
/// of blocks, and asks for single values at the run's ends only.
class SpanIndex {
public:
    void Clear();
    /// The next value of the series.
    void Append(double value);
    /// The series has lost its first values.
    void RemoveHead(std::size_t count);

    std::size_t Size() const { return m_size; }

    /// @param first,end the run, cut to the series; the end is not part of it
    /// @param valueAt gives the series' value of an index
    ValueSpan Of(std::size_t first, std::size_t end, const std::function<double(std::size_t)>& valueAt) const;

private:
    std::deque<ValueSpan> m_blocks;
    std::size_t m_size = 0;
    std::size_t m_gone = 0; ///< values of the first block that were removed
};

} // namespace kavlix::recording

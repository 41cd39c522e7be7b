// SPDX-License-Identifier: MIT
// Lowest and highest value of any part of a long series, without looking at every value.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// Answers minimum and maximum queries over ranges of a series. The index holds the span of each block of 256
/// values, so a query looks at single values only at both ends of its range. The values themselves stay with
/// the caller.
class SpanIndex {
public:
    void Clear();

    /// Adds the next value of the series.
    void Append(double value);

    /// Removes the first `count` values of the series.
    void RemoveHead(std::size_t count);

    std::size_t Size() const { return m_size; }

    /// The span of the values from `first` to `end`, `end` excluded, as far as the series has them. `valueAt`
    /// returns the value of an index.
    ValueSpan Of(std::size_t first, std::size_t end, const std::function<double(std::size_t)>& valueAt) const;

private:
    std::deque<ValueSpan> m_blocks;
    std::size_t m_size = 0;
    std::size_t m_gone = 0; ///< number of removed values in the first block
};

} // namespace kavlix::recording

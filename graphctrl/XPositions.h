// SPDX-License-Identifier: MIT
// Where samples stand along the X axis.
#pragma once

#include <optional>

#include "plot/IndexRange.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The X positions of samples.
class XPositions {
public:
    virtual ~XPositions() = default;
    /// Position of sample `index` in logical units; none for a sample without a position.
    virtual std::optional<int> At(int index) const = 0;
    /// The last sample of the monotonic run that begins with the first sample of `range`: between these two
    /// samples, positions never change direction. None when a sample may have no position, and when only a
    /// look at every sample could find the end.
    virtual std::optional<int> RunEnd(IndexRange range) const = 0;
};

/// Samples whose X is their index.
class IndexPositions : public XPositions {
public:
    explicit IndexPositions(const LinearMap& map) : m_map(map) {}
    std::optional<int> At(int index) const override { return m_map.Position(index); }
    std::optional<int> RunEnd(IndexRange range) const override {
        return m_map.IsMonotonic() ? std::optional<int>(range.last) : std::nullopt;
    }

private:
    LinearMap m_map;
};

} // namespace kavlix

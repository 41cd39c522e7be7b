// Where samples stand along the X axis.
#pragma once

#include <optional>

#include "graphctrl/core/IndexRange.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// Where samples stand along the X axis.
class XPositions {
public:
    virtual ~XPositions() = default;
    /// Position of sample `index` in logical units, none when it has none.
    virtual std::optional<int> At(int index) const = 0;
    /// The last sample of `range` up to which all have positions that run one way; none where a sample may
    /// have no position, or where only a walk could tell.
    virtual std::optional<int> RunEnd(IndexRange range) const = 0;
};

/// Samples that stand at their index.
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

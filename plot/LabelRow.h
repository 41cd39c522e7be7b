// SPDX-License-Identifier: MIT
// Places labels along an axis so that none lies on another or is cut off.
#pragma once

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace kavlix {

/// One row of labels. The first label that asks for a place gets it.
class LabelRow {
public:
    /// Labels stand from `low` to `high`, at least `gap` apart, all in pixels.
    LabelRow(int low, int high, int gap) : m_low(low), m_high(high), m_gap(gap) {}

    /// Takes the place from `begin` to `begin` + `length`. False when it is not free.
    bool Take(int begin, int length) {
        const int end = begin + length;
        if (begin < m_low || end > m_high)
            return false;
        for (const auto& [otherBegin, otherEnd] : m_taken)
            if (begin < otherEnd + m_gap && otherBegin < end + m_gap)
                return false;
        m_taken.emplace_back(begin, end);
        return true;
    }
    /// As Take, for a label that may move as far as the ends of the row require. The result is where it begins.
    std::optional<int> TakeNear(int begin, int length) {
        const int moved = std::max(std::min(begin, m_high - length), m_low);
        return Take(moved, length) ? std::optional<int>(moved) : std::nullopt;
    }

private:
    int m_low;
    int m_high;
    int m_gap;
    std::vector<std::pair<int, int>> m_taken;
};

} // namespace kavlix

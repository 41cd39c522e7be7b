// SPDX-License-Identifier: MIT
// TimeLine: 32-bit x units, binary searches and runs of ascending time.
#include "scrollgraph/core/TimeLine.h"

#include <algorithm>
#include <limits>
#include <new>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr double kSecondsPerXUnit = 1.0 / kXUnitsPerSecond;

} // namespace

std::int32_t TimeLine::Offset(int index) const {
    if (!Has(index))
        return 0;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(Stamp(index)) -
                                     static_cast<std::uint32_t>(Stamp(0)));
}

double TimeLine::X(int index) const {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(Offset(index)) * kXUnitsPerSecond);
}

void TimeLine::Append(std::int32_t time) {
    if (m_times.Size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    const bool stepsBack = !m_times.IsEmpty() && time < m_times.Back();
    if (stepsBack)
        m_stepsBack.push_back(m_removed + Size());
    try {
        m_times.Add(time);
    } catch (...) {
        if (stepsBack)
            m_stepsBack.pop_back();
        throw;
    }
}

void TimeLine::RemoveHead(int count) {
    const int removed = std::clamp(count, 0, Size());
    m_times.RemoveHead(static_cast<std::size_t>(removed));
    m_removed += removed;
    while (!m_stepsBack.empty() && m_stepsBack.front() <= m_removed)
        m_stepsBack.pop_front();
}

void TimeLine::Clear() {
    m_times.Clear();
    m_stepsBack.clear();
}

void TimeLine::KeepOne() {
    m_times.KeepOne();
    m_stepsBack.clear();
}

int TimeLine::LowerBound(double x) const {
    int first = 0;
    int length = Size() - 1;
    while (length > 0) {
        const int half = length / 2;
        if (X(first + half) < x) {
            first += half + 1;
            length -= half + 1;
        } else {
            length = half;
        }
    }
    return first;
}

int TimeLine::UpperBound(int first, double viewWidth) const {
    const int seconds = TruncateToInt(viewWidth * kSecondsPerXUnit, std::numeric_limits<int>::min(),
                                      std::numeric_limits<int>::max());
    const std::int64_t last = std::int64_t{seconds} + first - 1;
    return Size() >= last ? static_cast<int>(std::max<std::int64_t>(last, std::numeric_limits<int>::min()))
                          : Size() - 1;
}

std::optional<int> TimeLine::RunEnd(int first, int last) const {
    constexpr std::int64_t farthest = std::numeric_limits<std::int32_t>::max() / kXUnitsPerSecond;
    const auto fromOrigin = [this](int index) { return std::int64_t{Stamp(index)} - Stamp(0); };
    const auto next = std::upper_bound(m_stepsBack.begin(), m_stepsBack.end(), m_removed + first);
    const int end = next == m_stepsBack.end()
                        ? last
                        : static_cast<int>(std::min<std::int64_t>(last, *next - m_removed - 1));
    if (fromOrigin(first) < -farthest || fromOrigin(end) > farthest)
        return std::nullopt;
    return end;
}

} // namespace kavlix

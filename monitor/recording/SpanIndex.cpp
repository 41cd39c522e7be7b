// SPDX-License-Identifier: MIT
// Spans of blocks of 256 values.

#include "monitor/recording/SpanIndex.h"

#include <algorithm>

namespace kavlix::recording {
namespace {

constexpr std::size_t kBlock = 256; // values in a block

} // namespace

void SpanIndex::Clear() {
    m_blocks.clear();
    m_size = 0;
    m_gone = 0;
}

void SpanIndex::Append(double value) {
    if ((m_gone + m_size) % kBlock == 0)
        m_blocks.emplace_back();
    m_blocks.back().Take(value);
    ++m_size;
}

void SpanIndex::RemoveHead(std::size_t count) {
    if (count >= m_size) {
        Clear();
        return;
    }
    m_size -= count;
    m_gone += count;
    for (; m_gone >= kBlock; m_gone -= kBlock)
        m_blocks.pop_front();
}

ValueSpan SpanIndex::Of(std::size_t first, std::size_t end,
                        const std::function<double(std::size_t)>& valueAt) const {
    ValueSpan span;
    end = std::min(end, m_size);
    for (std::size_t i = first; i < end;) {
        const std::size_t place = m_gone + i;
        if (place % kBlock == 0 && i + kBlock <= end) {
            span.Take(m_blocks[place / kBlock]);
            i += kBlock;
        } else {
            span.Take(valueAt(i));
            ++i;
        }
    }
    return span;
}

} // namespace kavlix::recording

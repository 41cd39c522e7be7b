// SPDX-License-Identifier: MIT
// StampStore: chunks of time stamps, and their change from one byte a stamp to four.
#include "scrollgraph/core/StampStore.h"

#include <utility>

namespace kavlix {

/// Stores stamp `k` of the chunk; the caller stores them in order. At the first stamp that is too far from
/// the even pace, the chunk changes to four bytes a stamp.
void StampStore::Chunk::Set(std::size_t k, std::int32_t stamp) {
    if (narrow) {
        if (k == 1)
            step = stamp - first;
        const std::int64_t away = stamp - Even(k);
        if (away >= INT8_MIN && away <= INT8_MAX) {
            narrow->away[k] = static_cast<std::int8_t>(away);
            return;
        }
        auto all = std::make_unique<Wide>();
        for (std::size_t i = 0; i < k; ++i)
            all->stamps[i] = At(i);
        wide = std::move(all);
        narrow.reset();
    }
    wide->stamps[k] = stamp;
}

void StampStore::Add(std::int32_t stamp) {
    const std::size_t place = m_head + m_size;
    if (place / kChunk == m_chunks.size())
        m_chunks.push_back({stamp, 0, std::make_unique<Narrow>(), nullptr});
    m_chunks[place / kChunk].Set(place % kChunk, stamp);
    ++m_size;
}

void StampStore::RemoveHead(std::size_t count) {
    m_head += count;
    m_size -= count;
    while (m_head >= kChunk) {
        m_chunks.pop_front();
        m_head -= kChunk;
    }
}

void StampStore::KeepOne() {
    const std::int32_t oldest = (*this)[0];
    while (m_chunks.size() > 1)
        m_chunks.pop_back();
    m_head = 0;
    m_size = 1;
    m_chunks.front().first = oldest;
    m_chunks.front().Set(0, oldest);
}

void StampStore::Clear() {
    m_chunks.clear(); // without shrink_to_fit, which would allocate memory
    m_head = m_size = 0;
}

} // namespace kavlix

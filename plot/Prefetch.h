// SPDX-License-Identifier: MIT
// Asks the processor for memory that is soon read.
#pragma once

#include <cstddef>

#if defined(__SSE2__) || defined(_M_X64)
#define KAVLIX_CAN_PREFETCH
#include <emmintrin.h>
#endif

namespace kavlix {

/// Prefetches the memory from `begin` to before `end`. Does nothing on a processor without such an instruction.
inline void PrefetchMemory([[maybe_unused]] const void* begin, [[maybe_unused]] const void* end) {
#ifdef KAVLIX_CAN_PREFETCH
    constexpr std::ptrdiff_t kLine = 64; // bytes of a cache line
    for (auto at = static_cast<const char*>(begin); at < end; at += kLine)
        _mm_prefetch(at, _MM_HINT_T0);
#endif
}

} // namespace kavlix

// SPDX-License-Identifier: MIT
// Random numbers for tests.
#pragma once

#include <cstdint>

namespace testkit {

/// A random sequence that is the same on every machine and in every run (xorshift).
class Numbers {
public:
    explicit Numbers(std::uint32_t seed) : m_state(seed) {}
    std::uint32_t Next() {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        return m_state;
    }
    int Below(int bound) { return static_cast<int>(Next() % static_cast<std::uint32_t>(bound)); }
    bool OneIn(int count) { return Below(count) == 0; }

private:
    std::uint32_t m_state;
};

} // namespace testkit

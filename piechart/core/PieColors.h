// SPDX-License-Identifier: MIT
// Contrast and similarity of colours. Colours are 0x00BBGGRR.
#pragma once

#include <cstdint>

namespace kavlix {

/// The colour `text` if it is legible on `back`, otherwise black or white.
std::uint32_t LegibleOn(std::uint32_t back, std::uint32_t text);

/// Whether areas filled with these colours are hard to tell apart.
bool LookAlike(std::uint32_t a, std::uint32_t b);

} // namespace kavlix

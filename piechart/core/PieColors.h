// Which colours of a pie can be told apart. Colours are 0x00BBGGRR.
#pragma once

#include <cstdint>

namespace kavlix {

/// `text` where it is legible on `back`, else black or white.
std::uint32_t LegibleOn(std::uint32_t back, std::uint32_t text);

/// Whether two filled areas look alike.
bool LookAlike(std::uint32_t a, std::uint32_t b);

} // namespace kavlix

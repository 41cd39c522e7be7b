// SPDX-License-Identifier: MIT
// Contrast by relative luminance, similarity by channel differences.
#include "piechart/core/PieColors.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kavlix {
namespace {

int Channel(std::uint32_t color, int shift) {
    return static_cast<int>((color >> shift) & 0xFF);
}

/// Relative luminance as WCAG defines it, 0 to 1.
double Luminance(std::uint32_t color) {
    const auto linear = [&](int shift) {
        const double part = Channel(color, shift) / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
}

/// Contrast ratio as WCAG defines it, 1 to 21.
double Contrast(std::uint32_t a, std::uint32_t b) {
    constexpr double kGlare = 0.05; // luminance that the screen reflects
    const double first = Luminance(a) + kGlare;
    const double second = Luminance(b) + kGlare;
    return std::max(first, second) / std::min(first, second);
}

} // namespace

std::uint32_t LegibleOn(std::uint32_t back, std::uint32_t text) {
    constexpr double kLegible = 3.0; // least contrast ratio
    constexpr std::uint32_t kBlack = 0x000000;
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    if (Contrast(back, text) >= kLegible)
        return text & kWhite;
    return Contrast(back, kBlack) >= Contrast(back, kWhite) ? kBlack : kWhite;
}

bool LookAlike(std::uint32_t a, std::uint32_t b) {
    constexpr int kHardlyDifferent = 128; // sum of the three channels' differences; smaller sums look alike
    int difference = 0;
    for (const int shift : {0, 8, 16})
        difference += std::abs(Channel(a, shift) - Channel(b, shift));
    return difference < kHardlyDifferent;
}

} // namespace kavlix

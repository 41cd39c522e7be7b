// SPDX-License-Identifier: MIT
// Shortens UTF-8 text until it fits.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kavlix::recording {

/// Whether a character begins at byte `at` of UTF-8 text; true at the ends of the text. A character is what a
/// reader takes for one: a code point with its combining marks, variation selectors and skin tones, code
/// points that are linked by zero-width joiners, and the two letters of a flag.
bool BeginsCharacter(std::string_view text, std::size_t at);

/// Length in bytes of the longest beginning of `text` that has at most `bytes` bytes and ends with a whole
/// character.
std::size_t WholeCharacters(std::string_view text, std::size_t bytes);

/// The text, or the longest beginning of it that fits with `...` behind it; empty or only `...` when not even
/// one character fits. `fits` returns whether there is room for a text; a shorter text must not need more
/// room.
template <class Fits> std::string CutToFit(const std::string& text, Fits fits) {
    if (fits(text))
        return text;
    std::size_t good = 0;
    std::size_t bad = text.size();
    const auto cut = [&text](std::size_t bytes) {
        return text.substr(0, WholeCharacters(text, bytes)) + "...";
    };
    while (bad - good > 1) {
        const std::size_t half = good + (bad - good) / 2;
        (fits(cut(half)) ? good : bad) = half;
    }
    return good == 0 ? std::string() : cut(good);
}

} // namespace kavlix::recording

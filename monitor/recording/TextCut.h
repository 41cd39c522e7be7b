// Shortens UTF-8 text until it fits.
#pragma once

#include <algorithm>
#include <string>

namespace kavlix::recording {

/// Length in bytes of the longest beginning of `text` that has at most `bytes` bytes and ends with a whole
/// UTF-8 character.
inline std::size_t WholeCharacters(const std::string& text, std::size_t bytes) {
    bytes = std::min(bytes, text.size());
    while (bytes > 0 && bytes < text.size() && (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80)
        --bytes;
    return bytes;
}

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

// SPDX-License-Identifier: MIT
// Finds the characters of UTF-8 text.

#include "monitor/recording/TextCut.h"

#include <kavlix/Characters.h>

#include <algorithm>

namespace kavlix::recording {
namespace {

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// The code point whose first byte is at `at`.
char32_t CodePointAt(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    char32_t value = lead < 0x80   ? lead
                     : lead < 0xE0 ? lead & 0x1Fu
                     : lead < 0xF0 ? lead & 0x0Fu
                                   : lead & 0x07u;
    while (++at < text.size() && IsContinuation(text[at]))
        value = value << 6 | (static_cast<unsigned char>(text[at]) & 0x3Fu);
    return value;
}

} // namespace

bool BeginsCharacter(std::string_view text, std::size_t at) {
    if (at == 0 || at >= text.size())
        return true;
    if (IsContinuation(text[at]))
        return false;
    std::size_t before = at - 1;
    while (before > 0 && IsContinuation(text[before]))
        --before;
    return !ContinuesCharacter(CodePointAt(text, before), CodePointAt(text, at));
}

std::size_t WholeCharacters(std::string_view text, std::size_t bytes) {
    bytes = std::min(bytes, text.size());
    while (!BeginsCharacter(text, bytes))
        --bytes;
    return bytes;
}

} // namespace kavlix::recording

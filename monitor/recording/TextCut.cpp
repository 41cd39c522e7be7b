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

/// Where the code point in front of `at` begins.
std::size_t CodePointBefore(std::string_view text, std::size_t at) {
    while (--at > 0 && IsContinuation(text[at]))
        ;
    return at;
}

} // namespace

bool BeginsCharacter(std::string_view text, std::size_t at) {
    if (at == 0 || at >= text.size())
        return true;
    if (IsContinuation(text[at]))
        return false;
    const std::size_t before = CodePointBefore(text, at);
    const char32_t value = CodePointAt(text, at);
    if (ContinuesCharacter(CodePointAt(text, before), value))
        return false;
    bool isSecondOfFlag = false;
    for (std::size_t i = at; IsRegionalIndicator(value) && i > 0; isSecondOfFlag = !isSecondOfFlag) {
        i = CodePointBefore(text, i);
        if (!IsRegionalIndicator(CodePointAt(text, i)))
            break;
    }
    return !isSecondOfFlag;
}

std::size_t WholeCharacters(std::string_view text, std::size_t bytes) {
    bytes = std::min(bytes, text.size());
    while (!BeginsCharacter(text, bytes))
        --bytes;
    return bytes;
}

} // namespace kavlix::recording

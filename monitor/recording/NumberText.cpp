// SPDX-License-Identifier: MIT
// Reads and writes numbers; makes text safe for messages and for UTF-8.

#include "monitor/recording/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "monitor/recording/TextCut.h"

namespace kavlix::recording {
namespace {

constexpr unsigned char kDelete = 0x7F;

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool IsControl(unsigned char c) {
    return c < 0x20 || c == kDelete;
}

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualsLower(std::string_view text, std::string_view lower) {
    return text.size() == lower.size() &&
           std::equal(
               text.begin(), text.end(), lower.begin(), [](char a, char b) { return Lower(a) == b; });
}

bool IsAbsent(std::string_view text) {
    static constexpr std::string_view kWords[] = {"nan", "-nan", "+nan", "na", "n/a", "null"};
    return text.empty() || std::any_of(std::begin(kWords), std::end(kWords),
                                       [&](std::string_view word) { return EqualsLower(text, word); });
}

/// Whether a number outside the range of a double is too small, not too large.
bool IsUnderflow(std::string_view digits) {
    constexpr long long kFar = 1'000'000'000; // larger exponents are cut to this
    const std::size_t mark = digits.find_first_of("eE");
    const std::string_view mantissa = digits.substr(0, mark);
    long long exponent = 0;
    if (mark != std::string_view::npos) {
        std::string_view text = digits.substr(mark + 1);
        const bool negative = !text.empty() && text.front() == '-';
        text.remove_prefix(!text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0);
        if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc() ||
            exponent > kFar)
            exponent = kFar;
        exponent = negative ? -exponent : exponent;
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    return static_cast<long long>(point) - static_cast<long long>(first) + exponent < 0;
}

NumberKind ParsePlain(std::string_view text, double& value) {
    const bool negative = text.front() == '-';
    std::string_view digits = text;
    if (negative || text.front() == '+')
        digits.remove_prefix(1);
    // A number begins with a digit or a point. from_chars would also accept "inf", "nan(...)" and a
    // second sign.
    if (digits.empty() || !((digits.front() >= '0' && digits.front() <= '9') || digits.front() == '.'))
        return NumberKind::Bad;
    double read = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, read);
    if (result.ptr != end || (result.ec != std::errc() && result.ec != std::errc::result_out_of_range))
        return NumberKind::Bad;
    if (result.ec == std::errc::result_out_of_range || !std::isfinite(read)) {
        if (!IsUnderflow(digits))
            return NumberKind::Bad;
        read = 0;
    }
    value = negative ? -read : read;
    return NumberKind::Value;
}

/// Length of the UTF-8 sequence at the front of the text in bytes; 0 when the text begins with none.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    // Reject overlong forms, surrogates, and numbers above the last code point.
    if ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F) ||
        (lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F))
        return 0;
    return length;
}

} // namespace

NumberKind ParseNumber(std::string_view text, double& value, bool decimalComma) {
    value = std::numeric_limits<double>::quiet_NaN();
    const std::string_view trimmed = TrimBlanks(text);
    if (trimmed.empty())
        return NumberKind::Absent;
    if (ParsePlain(trimmed, value) == NumberKind::Value)
        return NumberKind::Value;
    if (IsAbsent(trimmed))
        return NumberKind::Absent;
    if (decimalComma && trimmed.find('.') == std::string_view::npos) {
        const std::size_t comma = trimmed.find(',');
        if (comma != std::string_view::npos) {
            std::string pointed(trimmed);
            pointed[comma] = '.';
            return ParsePlain(pointed, value);
        }
    }
    return NumberKind::Bad;
}

std::string FormatNumber(double value) {
    char buffer[32];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string FormatCount(std::uint64_t count) {
    std::string text = std::to_string(count);
    for (std::size_t at = text.size(); at > 3;) {
        at -= 3;
        text.insert(at, 1, ',');
    }
    return text;
}

std::string QuoteForMessage(std::string_view text, std::size_t limit) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string quoted = "\"";
    std::size_t whole = 0; // length of `quoted` up to the current character
    std::size_t at = 0;
    while (at < text.size()) {
        const unsigned char byte = static_cast<unsigned char>(text[at]);
        const std::size_t length = SequenceLength(text.substr(at));
        if (length == 0 || BeginsCharacter(text, at))
            whole = quoted.size();
        if (at + std::max<std::size_t>(length, 1) > limit)
            return quoted.substr(0, whole) + "\"...";
        if (length == 0 || IsControl(byte)) {
            quoted += "\\x";
            quoted += kHex[byte >> 4];
            quoted += kHex[byte & 15];
            ++at;
        } else {
            quoted.append(text.substr(at, length));
            at += length;
        }
    }
    return quoted + '"';
}

std::string ToValidUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const unsigned char byte = static_cast<unsigned char>(text[at]);
        const std::size_t length = SequenceLength(text.substr(at));
        if (length == 0) {
            valid += static_cast<char>(0xC0 | (byte >> 6));
            valid += static_cast<char>(0x80 | (byte & 0x3F));
            ++at;
        } else if (IsControl(byte)) {
            valid += ' ';
            ++at;
        } else {
            valid.append(text.substr(at, length));
            at += length;
        }
    }
    return valid;
}

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace kavlix::recording

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kavlix::recording {

/// What a cell holds.
enum class NumberKind {
    Value,  ///< a finite number
    Absent, ///< empty, `NaN`, `NA`, `N/A` or `null` in any case: a gap
    Bad     ///< anything else
};

/// Reads a cell, independent of the locale: an optional sign, digits with a decimal point, an optional
/// exponent. Blanks around it are ignored. Infinities and numbers beyond the range of a double are bad;
/// numbers too small for one are 0.
/// @param value receives the number, or NaN unless the result is NumberKind::Value.
/// @param decimalComma also takes a comma for the decimal point, as files with semicolons between cells have
/// it.
NumberKind ParseNumber(std::string_view text, double& value, bool decimalComma = false);

/// What ParseNumber expects, in words for a message.
inline constexpr const char* kNumberExpectation = "a number or nothing";

/// The shortest text that reads back as the same number, with a decimal point in every locale.
std::string FormatNumber(double value);

/// A count with commas between groups of three digits: `22,695`.
std::string FormatCount(std::uint64_t count);

/// Text for a message: quoted, bytes that cannot be shown written as \xNN, and cut with `...` after `limit`
/// bytes.
std::string QuoteForMessage(std::string_view text, std::size_t limit = 40);

/// Text as valid UTF-8: bytes that are not part of a UTF-8 sequence are taken as Latin-1, control characters
/// become blanks.
std::string ToValidUtf8(std::string_view text);

/// The text without blanks (space, tab) at both ends.
std::string_view TrimBlanks(std::string_view text);

} // namespace kavlix::recording

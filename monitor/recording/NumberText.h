// SPDX-License-Identifier: MIT
// Numbers as text and back, independent of the locale; text made safe for messages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kavlix::recording {

/// What a cell holds.
enum class NumberKind {
    Value,  ///< a finite number
    Absent, ///< empty, `NaN` (also signed), `NA`, `N/A` or `null`, in any case: a gap
    Bad     ///< anything else
};

/// Reads a cell: an optional sign, digits, an optional decimal point, an optional exponent. Blanks around the
/// text are ignored. Infinities and numbers beyond the range of a double are Bad. A number too small for a
/// double is read as 0. `value` receives the number; NaN if the result is not Value. With `decimalComma` the
/// decimal point may also be a comma, as in files whose separator is the semicolon.
NumberKind ParseNumber(std::string_view text, double& value, bool decimalComma = false);

/// What ParseNumber expects, in words for a message.
inline constexpr const char* kNumberExpectation = "a number or nothing";

/// The shortest text that ParseNumber reads as the same finite number, with a decimal point in every locale.
std::string FormatNumber(double value);

/// A count with a comma between groups of three digits: `22,695`.
std::string FormatCount(std::uint64_t count);

/// The text in quotes for a message. ASCII control characters and bytes that are no UTF-8 are written as
/// \xNN. Text beyond `limit` bytes is cut after a whole character, and `...` follows the closing quote.
std::string QuoteForMessage(std::string_view text, std::size_t limit = 40);

/// The text as valid UTF-8. A byte outside UTF-8 sequences is read as Latin-1; an ASCII control character
/// becomes a blank.
std::string ToValidUtf8(std::string_view text);

/// The text without blanks (space, tab) at both ends.
std::string_view TrimBlanks(std::string_view text);

} // namespace kavlix::recording

// SPDX-License-Identifier: MIT
// Texts of numbers: fixed decimals, powers of ten, and engineering prefixes.
#pragma once

#include <string>

namespace kavlix {

constexpr int kMostDecimals = 12; ///< of steps

/// `value` / 10^`exponent`, without overflow on the way. Rounded once for exponents from -300 to 300.
double Scaled(double value, int exponent);
/// The exponent of the first digit of `value`; 0 for 0.
int ExponentOf(double value);

/// `value` with `decimals` decimals, limited to 0 to 15. Never "-0": a value that rounds to 0 has no
/// sign. "inf", "-inf" and "nan" for what is no number.
std::string FixedText(double value, int decimals);
/// `value` with up to `digits` significant digits (1 to 15) and without trailing zeros: "12.5". With an exponent
/// as in "2e-7" where that is shorter.
std::string ShortText(double value, int digits);
/// `value` with a power of ten and without trailing zeros: "2.5e9"; "0" for 0. `lastDigit` is the exponent of the
/// last digit: -2 rounds to hundredths. At most 16 digits.
std::string PowerText(double value, int lastDigit);
/// The number of decimals that the multiples of `step` need, at most kMostDecimals.
int DecimalsOfStep(double step);

/// A length of time as a reader counts it: "0.25 s", "2:05.5 min", "3:02:05 h", "12 d 6:00:00 h"; parts of a second with
/// up to `digits` significant digits of the whole, 1 to 15.
std::string DurationText(double seconds, int digits);

/// The exponent of the prefix with which `value` is 1 to below 1000: a multiple of 3, limited to -24 to 24. 0
/// for 0 and for what is no number.
int PrefixExponent(double value);
/// The prefix of an exponent that PrefixExponent gives: "k", "M", "m"; empty for 0. Micro is "u".
std::string PrefixText(int exponent);

} // namespace kavlix

// SPDX-License-Identifier: MIT
// Numbers as text, in the form of the C locale.
#include "plot/NumberFormat.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace kavlix {
namespace {

constexpr int kLargestPrefix = 24;

/// Removes the sign of "-0", "-0.00".
std::string WithoutNegativeZero(std::string text) {
    if (!text.empty() && text[0] == '-' && text.find_first_not_of("-0.") == std::string::npos)
        text.erase(0, 1);
    return text;
}

} // namespace

double Scaled(double value, int exponent) {
    constexpr int kSafe = 300;
    if (exponent > kSafe)
        return value / std::pow(10.0, kSafe) / std::pow(10.0, exponent - kSafe);
    // A negative power of ten is not exact in a double: divide by the positive power instead.
    return exponent > 0 ? value / std::pow(10.0, exponent) : value * std::pow(10.0, -exponent);
}

int ExponentOf(double value) {
    return value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::abs(value))));
}

std::string FixedText(double value, int decimals) {
    constexpr int kMost = 15;
    char text[400]; // 309 digits before the decimal point
    std::snprintf(text, sizeof text, "%.*f", std::clamp(decimals, 0, kMost), value);
    return WithoutNegativeZero(text);
}

std::string ShortText(double value, int digits) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*g", std::clamp(digits, 1, 15), value);
    std::string result = text;
    // The exponent without sign "+" and leading zeros: "1e-07" becomes "1e-7".
    if (const std::size_t e = result.find('e'); e != std::string::npos)
        result.replace(e + 1, std::string::npos, std::to_string(std::atoi(text + e + 1)));
    return WithoutNegativeZero(result);
}

std::string PowerText(double value, int lastDigit) {
    if (value == 0)
        return "0";
    int exponent = ExponentOf(value);
    constexpr int kMostDigits = 15;
    const int digits = std::clamp(exponent - lastDigit, 0, kMostDigits);
    const auto mantissaText = [&] {
        char text[40];
        std::snprintf(text, sizeof text, "%.*f", digits, Scaled(value, exponent));
        return std::string(text);
    };
    std::string mantissa = mantissaText();
    // Rounding can turn 9.99 into 10.0, which becomes 1 with the next exponent.
    if (mantissa.substr(0, mantissa.find('.')).find("10") != std::string::npos) {
        ++exponent;
        mantissa = mantissaText();
    }
    if (mantissa.find('.') != std::string::npos) {
        mantissa.erase(mantissa.find_last_not_of('0') + 1);
        if (mantissa.back() == '.')
            mantissa.pop_back();
    }
    return mantissa + "e" + std::to_string(exponent);
}

int DecimalsOfStep(double step) {
    constexpr double kRounding = 1e-9; // relative
    double shifted = std::abs(step);
    int decimals = 0;
    for (; decimals < kMostDecimals; ++decimals, shifted = Scaled(std::abs(step), -decimals))
        if (std::abs(shifted - std::round(shifted)) <= shifted * kRounding)
            break;
    return decimals;
}

std::string DurationText(double seconds, int digits) {
    constexpr double kMinute = 60, kHour = 3600, kDay = 86400;
    const double length = std::abs(seconds);
    if (!(length >= kMinute) || length > kDay * 1e9)
        return ShortText(seconds, digits) + " s";
    const int decimals = std::clamp(digits - 1 - ExponentOf(length), 0, kMostDecimals);
    const double unit = std::pow(10.0, decimals);
    const double whole = std::round(length * unit) / unit; // so that no part shows 60
    const double days = std::floor(whole / kDay);
    const double hours = std::floor((whole - days * kDay) / kHour);
    const double minutes = std::floor((whole - days * kDay - hours * kHour) / kMinute);
    std::string part = FixedText(whole - days * kDay - hours * kHour - minutes * kMinute, decimals);
    if (decimals > 0)
        part.erase(part.find_last_not_of('0') + 1);
    if (!part.empty() && part.back() == '.')
        part.pop_back();
    if (part.size() == 1 || part[1] == '.')
        part.insert(0, 1, '0');
    char text[64];
    const bool hasHours = whole >= kHour;
    const int used = days > 0 ? std::snprintf(text, sizeof text, "%.0f d %.0f:%02.0f:", days, hours, minutes)
                     : hasHours ? std::snprintf(text, sizeof text, "%.0f:%02.0f:", hours, minutes)
                                : std::snprintf(text, sizeof text, "%.0f:", minutes);
    return (seconds < 0 ? "-" : "") + std::string(text, static_cast<std::size_t>(used)) + part +
           (hasHours ? " h" : " min");
}

int PrefixExponent(double value) {
    if (value == 0 || !std::isfinite(value))
        return 0;
    int exponent = static_cast<int>(std::floor(std::log10(std::abs(value)) / 3)) * 3;
    // The logarithm of a value just below a power of 1000 can be rounded up, and the value itself to 1000.
    constexpr double kNearly1000 = 1000 * (1 - 1e-12);
    if (std::abs(Scaled(value, exponent)) >= kNearly1000)
        exponent += 3;
    return std::clamp(exponent, -kLargestPrefix, kLargestPrefix);
}

std::string PrefixText(int exponent) {
    constexpr char kPrefixes[] = "yzafpnum kMGTPEZY";
    return exponent == 0 ? std::string() : std::string(1, kPrefixes[(exponent + kLargestPrefix) / 3]);
}

} // namespace kavlix

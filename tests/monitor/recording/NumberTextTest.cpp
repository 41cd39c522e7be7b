// SPDX-License-Identifier: MIT
// Reading and writing numbers, and texts for messages.

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstring>
#include <random>

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

TEST(ParseNumber, ReadsNumbersInEveryLocale) {
    const std::pair<std::string, double> cases[] = {{"+1.5", 1.5},
                                                    {".5", 0.5},
                                                    {"5.", 5.0},
                                                    {"\t2 ", 2.0},
                                                    {"1E+3", 1000.0},
                                                    {"1e-400", 0.0},
                                                    {"0e999999999999999999999", 0.0},
                                                    {"1" + std::string(1000, '0') + "e-1000", 1.0}};
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "de_DE.UTF-8", "German"}) {
        std::setlocale(LC_ALL, locale); // one that is not installed changes nothing
        for (const auto& [text, expected] : cases) {
            double value = 99;
            EXPECT_EQ(ParseNumber(text, value), NumberKind::Value) << text;
            EXPECT_EQ(value, expected) << text;
        }
        EXPECT_EQ(FormatNumber(0.5), "0.5");
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(ParseNumber, TellsGapsFromGarbage) {
    for (const char* text : {"", "\t ", "NaN", "-NaN", "na", "N/A", "null"}) {
        double value = 1;
        EXPECT_EQ(ParseNumber(text, value), NumberKind::Absent) << text;
        EXPECT_TRUE(std::isnan(value)) << text;
    }
    double value = 1;
    for (const char* text :
         {"12abc", "1e999", "-inf", "1,5", "1.2.3", "0x10", "1e", "e5", "-", ".", "+-1", "1 2", "\"1\""})
        EXPECT_EQ(ParseNumber(text, value), NumberKind::Bad) << text;
    EXPECT_EQ(ParseNumber(std::string_view("1\0", 2), value), NumberKind::Bad);
}

TEST(ParseNumber, TakesADecimalCommaOnlyWhereAskedFor) {
    double value = 0;
    EXPECT_EQ(ParseNumber("-73,5", value, true), NumberKind::Value);
    EXPECT_EQ(value, -73.5);
    EXPECT_EQ(ParseNumber("73.5", value, true), NumberKind::Value);
    EXPECT_EQ(value, 73.5);
    EXPECT_EQ(ParseNumber("1.234,5", value, true), NumberKind::Bad);
}

TEST(FormatNumber, ReadsBackAsTheSameBits) {
    std::mt19937_64 random(2);
    for (int i = 0; i < 20'000; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        double read = 0;
        ASSERT_TRUE(!std::isfinite(value) || ParseNumber(FormatNumber(value), read) == NumberKind::Value);
        ASSERT_TRUE(!std::isfinite(value) || read == value) << FormatNumber(value);
    }
}

TEST(FormatCount, GroupsDigits) {
    EXPECT_EQ(FormatCount(999), "999");
    EXPECT_EQ(FormatCount(1'022'695), "1,022,695");
}

TEST(MessageText, ShowsEveryByteAndIsCut) {
    EXPECT_EQ(QuoteForMessage(std::string_view("a\0\x7F\xFF", 4)), "\"a\\x00\\x7F\\xFF\"");
    EXPECT_EQ(QuoteForMessage("ab\xC3\xA4", 3), "\"ab\"..."); // a character is not cut through
    EXPECT_EQ(QuoteForMessage("abe\u0301", 4), "\"ab\"...");  // nor its mark cut off
    EXPECT_LT(QuoteForMessage(std::string(1'000'000, '\0')).size(), 200u);
}

TEST(ToValidUtf8, KeepsUtf8AndTakesTheRestAsLatin1) {
    const std::pair<const char*, const char*> cases[] = {
        {"\xC2\xB0-", "\xC2\xB0-"},                               // already UTF-8
        {"\xB0-", "\xC2\xB0-"},                                   // Latin-1
        {"\xC3", "\xC3\x83"},                                     // cut sequence
        {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},                 // beyond 16 bits
        {"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xC2\x80\xC2\x80"}, // beyond the last code point
        {"a\nb\x7F", "a b "},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(ToValidUtf8(text), expected);
}

} // namespace
} // namespace kavlix::recording

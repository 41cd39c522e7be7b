// SPDX-License-Identifier: MIT
// Round scales: ticks and labels of chosen and of fixed ranges.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <random>
#include <string>

#include "plot/RoundScale.h"

namespace kavlix {
namespace {

/// The labels of all ticks, separated by blanks.
std::string Labels(const RoundScale& scale) {
    std::string text;
    for (int i = 0; i < scale.TickCount(); ++i)
        text += (i > 0 ? " " : "") + scale.Label(i);
    return text;
}

std::string Around(double min, double max, int most) {
    return Labels(RoundScale::Around({min, max}, most));
}

std::string Fixed(double min, double max, double step, int most) {
    return Labels(RoundScale::Fixed(min, max, step, most));
}

TEST(RoundScaleTest, TicksAreRoundAndLabelsHaveTheDigitsTheyNeed) {
    EXPECT_EQ(Around(0.3, 9.7, 10), "0 1 2 3 4 5 6 7 8 9 10");
    EXPECT_EQ(Around(0.3, 9.7, 4), "0.0 2.5 5.0 7.5 10.0");
    EXPECT_EQ(Around(-1, 1, 1), "-1 0 1") << "a range across 0 takes two";
    EXPECT_EQ(Around(0, 0.3, 3), "0.0 0.1 0.2 0.3") << "0.1 three times is a little more than 0.3";
    EXPECT_EQ(Around(9.99e8, 1.001e9, 4), "9.99e8 9.995e8 1e9 1.0005e9 1.001e9");
    EXPECT_EQ(Around(1700000000, 1700000300, 4), "1700000000 1700000100 1700000200 1700000300");
    EXPECT_EQ(Around(-3e-7, 0, 3), "-3e-7 -2e-7 -1e-7 0");
    EXPECT_EQ(Around(8, 8, 4), "4 6 8 10 12");
    EXPECT_EQ(Around(0, 0, 4), "-1.0 -0.5 0.0 0.5 1.0");
}

TEST(RoundScaleTest, AHostsRangeIsKept) {
    EXPECT_EQ(Fixed(2, 8, 0.75, 4), "3.0 4.5 6.0 7.5") << "every second one";
    EXPECT_EQ(Fixed(0.5, 4.2, 0, 4), "1 2 3 4");
    EXPECT_EQ(Fixed(1, 2, 5, 4), "") << "none";
    EXPECT_EQ(Fixed(0.1, 0.3, 0.1, 4), "0.1 0.2 0.3") << "the ends count in spite of rounding";
}

TEST(RoundScaleTest, AnyRangeGivesFiniteDistinctTicksWithinIt) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> exponent(-320, 308), mantissa(-10, 10);
    const auto any = [&] { return mantissa(random) * std::pow(10.0, exponent(random)); };
    for (int round = 0; round < 5000; ++round) {
        double a = any(), b = round % 3 == 0 ? std::nextafter(a, DBL_MAX) : any();
        if (round == 0)
            a = -DBL_MAX, b = DBL_MAX;
        else if (round == 1)
            a = b = DBL_MIN / 4;
        else if (round == 2)
            a = b = DBL_MAX;
        const ValueBounds values{std::min(a, b), std::max(a, b)};
        const int most = 1 + static_cast<int>(random() % 30);
        const double step = round % 2 == 0 ? 0 : std::abs(any());
        for (const bool fixed : {false, true}) {
            if (fixed && !(values.min < values.max))
                continue;
            const RoundScale scale = fixed ? RoundScale::Fixed(values.min, values.max, step, most)
                                           : RoundScale::Around(values, most);
            SCOPED_TRACE(testing::Message() << values.min << " to " << values.max << " step " << step);
            ASSERT_TRUE(std::isfinite(scale.Min()) && std::isfinite(scale.Max()) && scale.Step() > 0);
            ASSERT_LT(scale.Min(), scale.Max());
            ASSERT_TRUE(std::isfinite(scale.Max() - scale.Min()));
            // Of a few last digits of the numbers themselves, and of the rounding at a range's ends.
            const double slack = (scale.Max() - scale.Min()) * 1e-6 + scale.Step() * 1e-6 +
                                 std::max(std::abs(scale.Min()), std::abs(scale.Max())) * 1e-15;
            if (!fixed) {
                ASSERT_GE(scale.TickCount(), 2);
                ASSERT_LE(scale.Min(), std::max(values.min, -1e300) + slack);
                ASSERT_GE(scale.Max(), std::min(values.max, 1e300) - slack);
                const double digit = scale.Step() / std::pow(10, std::floor(std::log10(scale.Step()) + 1e-9));
                ASSERT_LT(std::min({std::abs(digit - 1), std::abs(digit - 2), std::abs(digit - 2.5),
                                    std::abs(digit - 5)}),
                          1e-6)
                    << digit;
            }
            ASSERT_LE(scale.TickCount(), std::max(most, 2) + 1);
            for (int i = 0; i < scale.TickCount(); ++i) {
                ASSERT_GE(scale.Tick(i), scale.Min() - slack);
                ASSERT_LE(scale.Tick(i), scale.Max() + slack);
                ASSERT_TRUE(i == 0 || fixed || scale.Tick(i - 1) < scale.Tick(i));
            }
        }
    }
}

} // namespace
} // namespace kavlix

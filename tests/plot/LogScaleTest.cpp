// SPDX-License-Identifier: MIT
// Ticks of logarithmic axes, and texts of numbers.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "plot/LogScale.h"
#include "plot/NumberFormat.h"

namespace kavlix {
namespace {

std::string Labels(double min, double max, int length) {
    const LogScale scale(min, max, length, 40);
    std::string text;
    for (std::size_t i = 0; i < scale.Ticks().size(); ++i)
        text += (i > 0 ? " " : "") + scale.Label(static_cast<int>(i));
    return text;
}

TEST(LogScaleTest, LabelsAreAsDenseAsTheLengthAllows) {
    EXPECT_EQ(Labels(0.1, 1000, 600), "0.1 0.2 0.5 1 2 5 10 20 50 100 200 500 1000");
    EXPECT_EQ(Labels(0.1, 1000, 300), "0.1 1 10 100 1000");
    EXPECT_EQ(Labels(1e-12, 1000, 300), "1e-12 1e-10 1e-8 1e-6 1e-4 1e-2 1e0 1e2");
    EXPECT_EQ(Labels(2.1, 4.9, 400), "2.5 3.0 3.5 4.0 4.5") << "no tick of 1, 2, 5 in the range";
    EXPECT_EQ(Labels(0.0002, 500, 40), "0.001 100");
    EXPECT_EQ(Labels(3, 3, 300), "");
    EXPECT_EQ(Labels(0, 3, 300), "");
}

TEST(LogScaleTest, AnyRangeHasAscendingTicksWithRoomForTheirLabels) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> start(-280, 290), decades(-3, 2.5);
    for (int round = 0; round < 5000; ++round) {
        const double min = std::pow(10.0, start(random));
        const double max = min * std::pow(10.0, std::pow(10.0, decades(random)));
        if (!std::isfinite(max) || !(max > min * (1 + 1e-6)))
            continue;
        const int length = 100 + static_cast<int>(random() % 900);
        SCOPED_TRACE(::testing::Message()
                     << "round " << round << ": " << min << " to " << max << ", " << length);
        const LogScale scale(min, max, length, 30);
        ASSERT_GE(scale.Ticks().size(), length >= 300 ? 2u : 0u);
        const double pixels = length / std::log10(max / min);
        for (std::size_t i = 0; i < scale.Ticks().size(); ++i) {
            const double tick = scale.Ticks()[i];
            ASSERT_TRUE(tick >= min * (1 - 1e-8) && tick <= max * (1 + 1e-8));
            if (i > 0) {
                ASSERT_GE(std::log10(tick / scale.Ticks()[i - 1]) * pixels, 29.9);
            }
            const double labelled = std::strtod(scale.Label(static_cast<int>(i)).c_str(), nullptr);
            ASSERT_NEAR(labelled, tick, tick * 1e-9);
        }
        for (std::size_t i = 1; i < scale.MinorTicks().size(); ++i)
            ASSERT_GE(std::log10(scale.MinorTicks()[i] / scale.MinorTicks()[i - 1]) * pixels,
                      LogScale::kMinorTickRoom * 0.999);
    }
}

TEST(NumberFormatTest, TextsOfNumbers) {
    EXPECT_EQ(FixedText(-0.004, 2), "0.00");
    EXPECT_EQ(FixedText(-0.006, 2), "-0.01");
    EXPECT_EQ(FixedText(2.5, -3), "2");
    EXPECT_EQ(ShortText(-0.0, 3), "0");
    EXPECT_EQ(ShortText(12.5, 6), "12.5");
    EXPECT_EQ(ShortText(1e-7, 3), "1e-7");
    EXPECT_EQ(PowerText(9.996e5, 3), "1e6");
    EXPECT_EQ(PowerText(-2.5e-9, -10), "-2.5e-9");
    EXPECT_EQ(DecimalsOfStep(2.5e-3), 4);
    EXPECT_EQ(DecimalsOfStep(50), 0);
    EXPECT_EQ(DurationText(2.5e-6, 6), "2.5e-6 s");
    EXPECT_EQ(DurationText(125.5, 6), "2:05.5 min");
    EXPECT_EQ(DurationText(-119.99999, 6), "-2:00 min");
    EXPECT_EQ(DurationText(259200, 6), "3 d 0:00:00 h");
}

TEST(NumberFormatTest, PrefixesScaleToOneToAThousand) {
    EXPECT_EQ(PrefixText(PrefixExponent(4.7e-6)) + PrefixText(PrefixExponent(-999)) +
                  PrefixText(PrefixExponent(1000)) + PrefixText(PrefixExponent(3e30)),
              "ukY");
    EXPECT_EQ(PrefixExponent(0), 0);
    EXPECT_EQ(PrefixExponent(HUGE_VAL), 0);
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> exponent(-24, 26.9);
    for (int round = 0; round < 2000; ++round) {
        const double value =
            round % 3 == 0 ? std::pow(10.0, std::floor(exponent(random))) : std::pow(10.0, exponent(random));
        const double scaled = Scaled(value, PrefixExponent(value));
        ASSERT_TRUE(scaled >= 1 - 1e-9 && scaled < 1000 * (1 - 1e-12)) << value;
    }
}

} // namespace
} // namespace kavlix

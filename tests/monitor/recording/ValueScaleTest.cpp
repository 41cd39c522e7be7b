// SPDX-License-Identifier: MIT
// Ranges and labels of value axes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>
#include <set>

#include "monitor/recording/ValueScale.h"

namespace kavlix::recording {
namespace {

ValueSpan Span(double min, double max) {
    ValueSpan span;
    span.Take(min);
    span.Take(max);
    return span;
}

std::string Joined(const ValueScale& scale) {
    std::string text;
    for (const std::string& label : ValueLabels(scale))
        text += label + ' ';
    return text + '[' + scale.unit + ']';
}

/// What must hold for any values and any tick count.
void ExpectSound(const ValueScale& scale, double min, double max) {
    const std::string about = "values " + std::to_string(min) + " to " + std::to_string(max) + ", ticks " +
                              std::to_string(scale.ticks) + ": " + Joined(scale);
    ASSERT_TRUE(scale.step > 0 && scale.min <= min && scale.max >= max) << about;
    ASSERT_EQ(scale.unit.empty(), scale.unitExponent == 0) << about;

    const std::vector<std::string> labels = ValueLabels(scale);
    const double power = std::pow(10.0, scale.unitExponent);
    std::set<std::string> distinct;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        distinct.insert(labels[i]);
        // The label tells the tick's value, not a rounded one.
        const double told = std::strtod(labels[i].c_str(), nullptr) * power;
        ASSERT_FALSE(labels[i].front() == '-' && told == 0) << about;
        const double value = scale.min + static_cast<double>(i) * scale.step;
        const double slack = scale.step * 1e-6 + (std::abs(scale.min) + std::abs(scale.max)) * 1e-13;
        ASSERT_NEAR(told, value, slack) << about;
    }
    ASSERT_EQ(distinct.size(), labels.size()) << about;
}

TEST(ValueScale, ChoosesRoundLabels) {
    const struct {
        double min;
        double max;
        int ticks;
        const char* labels;
    } cases[] = {
        {2.08, 108.5, 5, "0 30 60 90 120 []"},
        {2.08, 108.5, 13, "0 10 20 30 40 50 60 70 80 90 100 110 120 []"},
        {-1, 1, 5, "-1.0 -0.5 0.0 0.5 1.0 []"},
        {-100, -10, 5, "-100 -75 -50 -25 0 []"},
        {38516.6, 245126000, 6, "0 50 100 150 200 250 [M]"},
        {0, 0.0004, 5, "0 100 200 300 400 [u]"},
        {-3e27, 5e27, 3, "-5 0 5 [10^27]"},
        {1e6, 1e6 + 4, 5, "1000000 1000001 1000002 1000003 1000004 []"}, // a unit would need more decimals
        {50, 50, 3, "45 50 55 []"},
        {0, 0, 3, "0.0 0.5 1.0 []"},
        {10 - 1e-10, 20 + 1e-10, 5, "10.0 12.5 15.0 17.5 20.0 []"}, // a hair beyond round ones: no other step
    };
    for (const auto& one : cases) {
        const ValueScale scale = ChooseValueScale(Span(one.min, one.max), one.ticks);
        EXPECT_EQ(Joined(scale), one.labels);
        ExpectSound(scale, one.min, one.max);
    }
}

TEST(ValueScale, CoversEveryRangeWithRoundLabelsAndUsesMostOfThePlot) {
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> exponent(-12, 12);
    std::uniform_real_distribution<double> unit(-1, 1);
    for (int round = 0; round < 8000; ++round) {
        const double size = std::pow(10.0, exponent(random));
        double min = unit(random) * size;
        // Also nearly constant values, and whole numbers.
        const double share = round % 7 == 0 ? 1e-13 : round % 3 == 0 ? 1e-4 : 1.0;
        double max = min + std::abs(unit(random)) * size * share;
        if (round % 5 == 0) {
            min = std::round(min);
            max = std::round(max) + 1;
        }
        const int ticks = 2 + static_cast<int>(random() % 39);
        const ValueScale scale = ChooseValueScale(Span(min, max), ticks);
        ASSERT_NO_FATAL_FAILURE(ExpectSound(scale, min, max));
        ASSERT_TRUE(min < 0 || scale.min >= 0) << Joined(scale);
        const double farthest = std::max(std::abs(min), std::abs(max));
        const double shown = max - min > farthest * 1e-9
                                 ? (scale.max == 0 ? 0 : max) - (scale.min == 0 ? 0 : min)
                                 : 0.2 * farthest;
        // The next smaller step is at most 1.5 times smaller, and rounding both ends outwards costs up to
        // two steps.
        ASSERT_TRUE(ticks < 5 || shown > (scale.max - scale.min - 2 * scale.step) / 1.67) << Joined(scale);
    }
}

TEST(FollowValues, StaysWhileTheValuesFit) {
    ValueScale scale = ChooseValueScale(Span(0, 95), 5);
    EXPECT_FALSE(FollowValues(scale, Span(0, 100), 5));
    EXPECT_FALSE(FollowValues(scale, Span(0, 60), 5));
    EXPECT_TRUE(FollowValues(scale, Span(0, 101), 5));
    EXPECT_GE(scale.max, 101);
    EXPECT_TRUE(FollowValues(scale, Span(0, 10), 5)) << "a tenth of the plot says nothing";
    EXPECT_LE(scale.max, 12);
    EXPECT_TRUE(FollowValues(scale, Span(0, 10), 6)) << "labels are round for one tick count only";
}

} // namespace
} // namespace kavlix::recording

// SPDX-License-Identifier: MIT
// Texts and panes of the status bar, and the sample under the pointer.

#include <gtest/gtest.h>

#include <cmath>

#include "monitor/recording/NearestPoint.h"
#include "monitor/recording/PaneWidths.h"
#include "monitor/recording/SampleText.h"

namespace kavlix::recording {
namespace {

TEST(SampleTexts, HaveTimeAndEverySeriesThatHasAValueInShorterAndShorterForms) {
    const Time time = FromCivil({2013, 12, 2, 21, 15, 0, 0});
    const auto longest = [](Time at, const std::vector<NamedValue>& values, ValueDigits digits) {
        return SampleTexts(at, values, digits).front();
    };
    EXPECT_EQ(longest(time, {{"a", 73.96732207}, {"b", NAN}, {"c", -2}}, ValueDigits::AsRead),
              "2013-12-02 21:15:00   a: 73.96732207   c: -2");
    EXPECT_EQ(longest(time + 250'000, {{"a", 100.0 / 3}}, ValueDigits::Computed),
              "2013-12-02 21:15:00.250   a: 33.3333");
    const NamedValue earlier{"a", 1, time - kMicrosPerMinute};
    EXPECT_EQ(longest(time, {earlier, {"b", 2, time}}, ValueDigits::AsRead),
              "2013-12-02 21:15:00   a: 1 (21:14:00)   b: 2");
    EXPECT_EQ(longest(time, {{"a", 1, time - kMicrosPerDay}}, ValueDigits::AsRead),
              "2013-12-02 21:15:00   a: 1 (2013-12-01 21:15:00)");

    const std::string name = "\xC3\xA4" + std::string(300, 'n');
    const std::vector<std::string> expected = {
        "2013-12-02 21:15:00   " + name.substr(0, 29) + "...: 6.0360000000000005",
        "2013-12-02 21:15:00   " + name.substr(0, 7) + "...: 6.0360000000000005",
        "2013-12-02 21:15:00   6.036"};
    EXPECT_EQ(SampleTexts(time, {{name, 6.0360000000000005}}, ValueDigits::AsRead), expected);
}

TEST(NearestPoint, TakesTheLeastDistanceOnEachAxis) {
    EXPECT_DOUBLE_EQ(AxisDistance(25, {100, 0}, 0.5), 0.25);
    EXPECT_TRUE(std::isnan(AxisDistance(NAN, {0, 100}, 0.5)));
    EXPECT_EQ(Nearest({NAN, 0.5, 0.2, 0.2}), 2u);

    const double values[] = {1, NAN, NAN, NAN, 5, NAN};
    EXPECT_EQ(NearestValue(values, 6, 2, 1), std::nullopt);
    EXPECT_EQ(NearestValue(values, 6, 2, 2), 0u);
    EXPECT_EQ(NearestValue(values, 6, 3, 9), 4u);
    EXPECT_EQ(NearestValue(values, 6, 5, 9), 4u);
}

TEST(PaneWidths, NoPaneIsCutWithoutNeedAndTheSummaryGivesWayFirst) {
    struct {
        int width;
        PaneWidths wanted;
        PaneWidths given;
    } const cases[] = {{1000, {300, 200, 150}, {650, 200, 150}},
                       {600, {300, 200, 150}, {300, 200, 100}},
                       {560, {300, 200, 150}, {360, 200, 0}},
                       {400, {100, 390, 150}, {100, 300, 0}},
                       {400, {900, 900, 900}, {200, 200, 0}}};
    for (const auto& given : cases) {
        const PaneWidths widths = SharePanes(given.width, given.wanted);
        const auto listed = [](const PaneWidths& of) { return std::vector{of.text, of.pointer, of.summary}; };
        EXPECT_EQ(listed(widths), listed(given.given)) << given.width << " for " << given.wanted.text;
    }
}

} // namespace
} // namespace kavlix::recording

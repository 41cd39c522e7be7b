// SPDX-License-Identifier: MIT
// Labels of the time axis in zones with changes of the clock.
#include "scrollgraph/core/TimeTicks.h"

#include "monitor/recording/TimeText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kavlix {
namespace {

/// A zone with one change of the clock.
class ZoneClock : public LocalClock {
public:
    ZoneClock(int east, std::int64_t changeAt = 0, int eastAfter = 0)
        : m_east(east), m_changeAt(changeAt), m_eastAfter(changeAt == 0 ? east : eastAfter) {}
    CalendarTime ToLocal(std::int64_t time) const override {
        // Not gmtime: some C libraries know no time before 1970.
        const std::int64_t shown = time + (time < m_changeAt ? m_east : m_eastAfter);
        const recording::CivilTime local = recording::ToCivil(shown * recording::kMicrosPerSecond);
        return {local.year, local.month, local.day, local.hour, local.minute, local.second};
    }

private:
    int m_east;
    std::int64_t m_changeAt;
    int m_eastAfter;
};

constexpr int kHeight = 300;

std::vector<std::string> Texts(const LocalClock& clock, std::int64_t start, int step, int count,
                               int spacing = kHeight * 2) {
    std::vector<std::string> texts;
    for (TimeTicks ticks(clock, start, step, spacing, kHeight); count > 0; --count, ticks.Next())
        texts.push_back((ticks.ShowsDate() ? ticks.Date() + " " : "") + ticks.Clock());
    return texts;
}

using Lines = std::vector<std::string>;

TEST(TimeTicksTest, DatesStandAtTheFirstTickAndAfterMidnight) {
    const ZoneClock utc(0);
    EXPECT_EQ(Texts(utc, 951868793, 3600, 3), (Lines{"2000/03/01 00:00:00", "01:00:00", "02:00:00"}))
        << "29 February 23:59:53";
    EXPECT_EQ(Texts(utc, 951782400 - 5, 5, 3),
              (Lines{"2000/02/28 23:59:55", "2000/02/29 00:00:00", "00:00:05"}));
    EXPECT_EQ(Texts(utc, 2147483647, 5, 2), (Lines{"2038/01/19 03:14:10", "03:14:15"}));
    const ZoneClock kathmandu(5 * 3600 + 45 * 60);
    EXPECT_EQ(Texts(kathmandu, 1767204000, 900, 3),
              (Lines{"2025/12/31 23:45:00", "2026/01/01 00:00:00", "00:15:00"}));
}

TEST(TimeTicksTest, AChangeOfTheClockRepeatsOrSkipsAnHourAndNothingStandsStill) {
    constexpr int est = -5 * 3600;
    constexpr int edt = -4 * 3600;
    constexpr std::int64_t springForward = 1772953200; // 2026-03-08 07:00 UTC
    constexpr std::int64_t fallBack = 1793512800;      // 2026-11-01 06:00 UTC
    EXPECT_EQ(Texts(ZoneClock(est, springForward, edt), springForward - 3600, 1800, 4),
              (Lines{"2026/03/08 01:00:00", "01:30:00", "03:00:00", "03:30:00"}));
    EXPECT_EQ(Texts(ZoneClock(edt, fallBack, est), fallBack - 3600, 1800, 6),
              (Lines{"2026/11/01 01:00:00", "01:30:00", "01:00:00", "01:30:00", "02:00:00", "02:30:00"}));
    // Half an hour: the hours go on off the full hour.
    constexpr std::int64_t lordHowe = 1775314800; // 2026-04-04 15:00 UTC, 02:00 local
    EXPECT_EQ(Texts(ZoneClock(11 * 3600, lordHowe, 10 * 3600 + 1800), lordHowe - 3600, 3600, 4),
              (Lines{"2026/04/05 01:00:00", "01:30:00", "02:30:00", "03:30:00"}));
    // A change shortly after midnight leads back into the day before, and its date.
    EXPECT_EQ(
        Texts(ZoneClock(3600, 86400 - 1800, 0), 86400 - 5400, 1800, 4),
        (Lines{"1970/01/01 23:30:00", "1970/01/02 00:00:00", "1970/01/01 23:30:00", "1970/01/02 00:00:00"}));
}

TEST(TimeTicksTest, LabelsThatWouldTouchStandAtLongerRoundTimes) {
    const ZoneClock utc(0);
    constexpr std::int64_t start = 1699978400; // 2023-11-14 16:13:20
    const ZoneClock autumn(7200, start + 200000, 3600);
    const ZoneClock spring(3600, start + 200000, 7200);
    const struct {
        int step, spacing;
        std::int64_t firstTick;
        Lines labels;
    } cases[] = {
        {10800, 420, 0, {"2023/11/14 18:00:00", "21:00:00", "2023/11/15 00:00:00"}},
        {10800, 419, 0, {"2023/11/14 18:00:00", "2023/11/15 00:00:00", "06:00:00", "12:00:00"}},
        {10800, 209, 2, {"2023/11/15 00:00:00", "12:00:00", "2023/11/16 00:00:00"}},
        {10800, 76, 2, {"2023/11/15 00:00:00", "2023/11/16 00:00:00"}},
        {10800, 6, 2, {"2023/11/15 00:00:00", "2023/11/29 00:00:00", "2023/12/13 00:00:00"}},
        {10800, 1, 2, {"2023/11/15 00:00:00", "2024/03/06 00:00:00"}},
        {10800, 0, 0, {"2023/11/14 18:00:00"}},
        {20, 299, 2, {"2023/11/14 16:14:00", "16:15:00"}},
    };
    for (const auto& each : cases) {
        const int count = static_cast<int>(each.labels.size());
        EXPECT_EQ(Texts(utc, start, each.step, count, each.spacing), each.labels) << each.spacing;
        EXPECT_EQ(TimeTicks(utc, start, each.step, each.spacing, kHeight).Tick(), each.firstTick);
        for (const ZoneClock* clock : {&utc, &autumn, &spring}) {
            TimeTicks ticks(*clock, start, each.step, each.spacing, kHeight);
            for (std::int64_t tick = 0; tick < 600 && each.spacing > 0; ++tick) {
                while (ticks.Tick() < tick)
                    ticks.Next();
                TimeTicks there(*clock, start, each.step, each.spacing, kHeight);
                there.GoTo(tick);
                ASSERT_EQ(there.Tick(), ticks.Tick()) << each.step << " s in " << each.spacing;
                ASSERT_EQ(there.Text(), ticks.Text());
                ASSERT_EQ(there.ShowsDate(), ticks.ShowsDate());
            }
        }
    }
    // Each day has its label, at the first of its ticks.
    EXPECT_EQ(Texts(autumn, start, 10800, 4, 76), (Lines{"2023/11/15 00:00:00", "2023/11/16 00:00:00",
                                                         "2023/11/17 00:00:00", "2023/11/18 02:00:00"}));
    EXPECT_EQ(Texts(spring, start, 10800, 4, 76), (Lines{"2023/11/15 00:00:00", "2023/11/16 00:00:00",
                                                         "2023/11/17 00:00:00", "2023/11/18 01:00:00"}));
}

} // namespace
} // namespace kavlix

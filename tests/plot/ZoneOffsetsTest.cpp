// SPDX-License-Identifier: MIT
// Offsets of zones against a clock that is set by hand, minute by minute.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/plot/Zones.h"

namespace kavlix {
namespace {

using namespace kavlix::zones;

constexpr std::int64_t kMinute = 60;

std::int64_t At(int year, int month, int day, int hour = 0, int minute = 0) {
    return SecondsOf({year, month, day, hour, minute, 0});
}

/// A clock that is set once.
struct Night {
    std::string name;
    ZoneOffsets zone;
    std::int64_t begin; ///< local time at which the walk begins, before any change
    int offset;         ///< at this time
    std::int64_t shows; ///< the local time at which the clock is set
    int change;         ///< by which it is set, seconds
};

TEST(ZoneOffsetsTest, AWalkThroughTheNightsOfTheChangesFindsEveryInstant) {
    const Night nights[] = {
        {"Berlin forward", Berlin(), At(2026, 3, 28, 12), kHour, At(2026, 3, 29, 2), kHour},
        {"Berlin back", Berlin(), At(2026, 10, 24, 12), 2 * kHour, At(2026, 10, 25, 3), -kHour},
        {"Berlin 1901", Berlin(), At(1901, 10, 26, 12), 2 * kHour, At(1901, 10, 27, 3), -kHour},
        {"New York 2099", NewYork(), At(2099, 3, 7, 12), -5 * kHour, At(2099, 3, 8, 2), kHour},
        {"New York back", NewYork(), At(2026, 10, 31, 12), -4 * kHour, At(2026, 11, 1, 2), -kHour},
        {"Lord Howe forward", LordHowe(), At(2026, 10, 3, 12), 21 * kHour / 2, At(2026, 10, 4, 2), kHour / 2},
        {"Lord Howe back", LordHowe(), At(2026, 4, 4, 12), 11 * kHour, At(2026, 4, 5, 2), -kHour / 2},
        {"midnight forward", SaoPaulo(), At(2016, 10, 15, 12), -3 * kHour, At(2016, 10, 16, 0), kHour},
        {"midnight back", SaoPaulo(), At(2017, 2, 18, 12), -2 * kHour, At(2017, 2, 19, 0), -kHour},
        {"a day is missing", Samoa(), At(2011, 12, 29, 12), -10 * kHour, At(2011, 12, 30, 0), 24 * kHour},
        {"year without a border", Borders(), At(2013, 12, 31, 12), 4 * kHour, At(2016, 1, 1), 0},
        {"new standard time", Borders(), At(2014, 12, 31, 12), 4 * kHour, At(2015, 1, 1), -2 * kHour},
    };
    for (const Night& night : nights) {
        SCOPED_TRACE(night.name);
        std::int64_t local = night.begin;
        bool isSet = false;
        std::map<std::int64_t, std::int64_t> firstInstants; // of local times
        std::int64_t changedAt = 0;
        const std::int64_t begin = night.begin - night.offset;
        for (std::int64_t time = begin; time < begin + 3 * kSecondsPerDay;
             time += kMinute, local += kMinute) {
            if (!isSet && local == night.shows) {
                isSet = true;
                local += night.change;
                changedAt = time;
            }
            firstInstants.emplace(local, time);
            ASSERT_EQ(time + night.zone.At(time), local) << "minute " << (time - begin) / 60;
        }
        for (std::int64_t wanted = night.begin; wanted < night.begin + 2 * kSecondsPerDay; wanted += kMinute)
            ASSERT_EQ(night.zone.FirstInstant(wanted), firstInstants.lower_bound(wanted)->second);
        const auto changes = night.zone.Changes(begin, begin + 3 * kSecondsPerDay);
        ASSERT_EQ(changes.size(), night.change != 0 ? 1u : 0u);
        for (const OffsetChange& change : changes)
            EXPECT_EQ(change.time, changedAt);
    }
}

TEST(ZoneOffsetsTest, TwoChangesAYear) {
    EXPECT_EQ(Berlin().Changes(At(1901, 1, 1), At(2100, 1, 1)).size(), 2u * 199);
    EXPECT_EQ(LordHowe().Changes(At(1901, 1, 1), At(2100, 1, 1)).size(), 2u * 199);
    EXPECT_TRUE(ZoneOffsets().Changes(At(1901, 1, 1), At(2100, 1, 1)).empty());
    EXPECT_EQ(ZoneOffsets().At(At(2026, 7, 1)), 0);
}

} // namespace
} // namespace kavlix

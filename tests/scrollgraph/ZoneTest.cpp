// SPDX-License-Identifier: MIT
// Labels in the zones of real places, written by hand from the places' own rules. In a process whose
// environment names the place (TZ; CTest starts some) Wine tells the zone's rules by itself, as the system does
// for users there; elsewhere they are asked of the system by the zone's name.

#include "tests/scrollgraph/FixedZone.h"
#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/UnderWine.h"
#include "tests/support/Utf8.h"

#include <cstdlib>

namespace {

struct Axis {
    const char* name;
    long start;     ///< UTC, where the axis begins
    double minutes; ///< in view
    Strings labels;
};

constexpr double kHours = 360; // six hours, an hour a step
constexpr double kHalfHours = 180;
constexpr double kSeconds = 1; // ten seconds a step
constexpr int kTicks = 5;

} // namespace

class ScrollZoneTest : public ScrollTest {
protected:
    void LiveIn(const char* place, const wchar_t* zone) {
        const char* own = std::getenv("TZ");
        if (!testkit::UnderWine() || own == nullptr || std::string(own) != place) {
            m_zone = std::make_unique<FixedZone>(zone);
            ASSERT_TRUE(m_zone->Works());
        }
    }
    void Check(std::initializer_list<Axis> axes) {
        Record(); // lays out
        for (const Axis& axis : axes)
            EXPECT_EQ(LabelsFrom(axis.start, axis.minutes, kTicks), axis.labels) << axis.name;
    }
    std::string FullTime(long time) {
        graph.InitData();
        Stamp({time});
        CString text, day, clock;
        graph.GetFullTime(0, text);
        graph.GetXData(0, day, clock);
        EXPECT_EQ(text.Mid(5), day + " " + clock);
        return testkit::Utf8(text);
    }
    /// What GetNextTickTime makes of "YYYY/MM/DD hh:mm:ss".
    std::string Next(const char* text, int step) {
        CString date = CString(text).Left(10), time = CString(text).Mid(11);
        return testkit::Utf8(graph.GetNextTickTime(step, date, time));
    }

private:
    std::unique_ptr<FixedZone> m_zone;
};

TEST_F(ScrollZoneTest, UTC) {
    LiveIn("UTC", L"UTC");
    Check({
        {"before 1970",
         -7200,
         kHours,
         {"12/31 22:00:00", "23:00:00", "01/01 00:00:00", "01:00:00", "02:00:00", "03:00:00", "04:00:00"}},
        {"the last second",
         2147483647,
         kSeconds,
         {"01/19 03:14:10", "03:14:20", "03:14:30", "03:14:40", "03:14:50", "03:15:00"}},
    });
    EXPECT_EQ(FullTime(2147483647), "2038/01/19 03:14:07");
    EXPECT_EQ(FullTime(-1), "1969/12/31 23:59:59");
}

TEST_F(ScrollZoneTest, NewYork) {
    LiveIn("America/New_York", L"Eastern Standard Time");
    Check({
        {"spring, hours",
         1772953200 - 9000,
         kHours,
         {"03/08 00:00:00", "01:00:00", "03:00:00", "04:00:00", "05:00:00", "06:00:00"}},
        {"autumn, hours",
         1793512800 - 7200,
         kHours,
         {"11/01 00:00:00", "01:00:00", "01:00:00", "02:00:00", "03:00:00", "04:00:00", "05:00:00"}},
    });
    EXPECT_EQ(FullTime(1772953199), "2026/03/08 01:59:59");
    EXPECT_EQ(FullTime(1772953200), "2026/03/08 03:00:00");
    EXPECT_EQ(FullTime(1793512799), "2026/11/01 01:59:59");
    EXPECT_EQ(FullTime(1793512800), "2026/11/01 01:00:00");
    EXPECT_EQ(FullTime(1162101600), "2006/10/29 01:00:00");
    EXPECT_EQ(Next("2026/03/08 01:00:00", 3600), "2026/03/08 03:00:00");
    EXPECT_EQ(Next("2026/11/01 00:30:00", 3600), "2026/11/01 01:30:00");
}

TEST_F(ScrollZoneTest, Kathmandu) {
    LiveIn("Asia/Kathmandu", L"Nepal Standard Time");
    Check({
        {"New Year, hours",
         1767225600 - 22500,
         kHours, // 17:45 UTC is 23:30
         {"01/01 00:00:00", "01:00:00", "02:00:00", "03:00:00", "04:00:00", "05:00:00"}},
    });
    EXPECT_EQ(FullTime(1767204900), "2026/01/01 00:00:00");
    EXPECT_EQ(Next("2025/12/31 23:59:55", 5), "2026/01/01 00:00:00");
}

TEST_F(ScrollZoneTest, AnotherZoneIsSeenAtOnceAndNoYearIsAskedForTwice) {
    FixedZone zone(L"Eastern Standard Time");
    ASSERT_TRUE(zone.Works());
    const long newYear = 1767225600;
    for (int i = 0; i < 3; ++i)
        Check({{"New York",
                newYear + 4 * 3600,
                kHalfHours,
                {"12/31 23:00:00", "23:30:00", "01/01 00:00:00", "00:30:00", "01:00:00", "01:30:00",
                 "02:00:00"}}});
    EXPECT_EQ(FullTime(newYear), "2025/12/31 19:00:00");
    EXPECT_EQ(Next("2026/01/01 00:00:00", 3600), "2026/01/01 01:00:00");
    EXPECT_EQ(zone.Asked(), 2) << "two years";
    zone.Change(L"Nepal Standard Time");
    EXPECT_EQ(FullTime(newYear), "2026/01/01 05:45:00");
    zone.Change(L"Eastern Standard Time");
    EXPECT_EQ(FullTime(newYear), "2025/12/31 19:00:00");
}

// SPDX-License-Identifier: MIT
// The time axis, in UTC whatever the machine's zone is.

#include "tests/scrollgraph/FixedZone.h"
#include "tests/scrollgraph/ScrollTest.h"

#include <climits>

namespace {

const std::string kAxisPen = "solid 0 B9DDC1";

const Strings kAxisLine{Stroke(2200, 3800, kPlotRight, 3800, kAxisPen)};

} // namespace

class ScrollTimeAxisTest : public ScrollTest {
protected:
    void SetUp() override {
        ScrollTest::SetUp();
        ASSERT_TRUE(m_zone.Works());
        Record(); // lays out
    }
    Strings Axis(int ticks) { return RecordXAxis(ticks)->Lines(testkit::kAll); }

private:
    FixedZone m_zone;
};

TEST_F(ScrollTimeAxisTest, WhereThereIsNothingToLabel) {
    EXPECT_EQ(Axis(4), kAxisLine) << "no sample";
    Stamp({kSomeTime});
    ASSERT_EQ(graph.AddDataForOffline(1, 1, nullptr), 1);
    EXPECT_EQ(Axis(4), kAxisLine) << "dataset 0 has none";
    ASSERT_EQ(graph.AddDataForOffline(0, 1, nullptr), 1);
    EXPECT_EQ(Axis(4).size(), 1 + 4 + 3 * 2 - 1u);
    for (const int few : {1, -5})
        EXPECT_EQ(Axis(few), kAxisLine);
    graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
    EXPECT_EQ(Axis(4), kAxisLine);
}

TEST_F(ScrollTimeAxisTest, FirstTicksOfTwelveThirtyFourFiftySix) {
    Load(1, 1699965296); // 2023-11-14 12:34:56
    const double perSecond = kPlotWidth / 60.0;
    const struct {
        int step, delta;
        LPCTSTR text;
    } cases[] = {{5, 4, _T("2023/11/14 12:35:00")},
                 {900, 604, _T("2023/11/14 12:45:00")},
                 {7200, 5104, _T("2023/11/14 14:00:00")}};
    for (const auto& each : cases) {
        int spacing = 0;
        CString text;
        EXPECT_EQ(graph.ComputeFirstTickPos(0, each.step, spacing, text),
                  static_cast<int>(perSecond * each.delta));
        EXPECT_STREQ(text, each.text) << each.step;
        EXPECT_EQ(spacing, static_cast<int>(each.step * perSecond)) << each.step;
    }
    CString second, minute, hour;
    EXPECT_EQ(graph.MinuteTickPos(0, 5, minute), static_cast<int>(perSecond * 4));
    EXPECT_EQ(graph.HourTickPos(0, 5, hour), static_cast<int>(perSecond * (2.0 * 3600 + 1504)));
    EXPECT_STREQ(minute, _T("2023/11/14 12:35:00"));
    EXPECT_STREQ(hour, _T("2023/11/14 15:00:00"));
    EXPECT_EQ(graph.SecondTickPos(0, 0, second), 0) << "a step of 0 leads nowhere";
}

TEST_F(ScrollTimeAxisTest, NextTickTime) {
    const struct {
        LPCTSTR date, time;
        int step;
        LPCTSTR next;
    } cases[] = {
        {_T("2023/12/31"), _T("23:59:55"), 5, _T("2024/01/01 00:00:00")},
        {_T("2024/2/28"), _T("22:0:0"), 7200, _T("2024/02/29 00:00:00")},
        {_T(""), _T(""), 10, _T(" ")},
        {_T("2023/11/14"), _T("noon"), 10, _T("2023/11/14 noon")},
        {_T("2023/02/30"), _T("00:00:00"), 10, _T("2023/02/30 00:00:00")},
    };
    for (const auto& each : cases) {
        CString date = each.date, time = each.time;
        EXPECT_STREQ(graph.GetNextTickTime(each.step, date, time), each.next);
    }
}

TEST_F(ScrollTimeAxisTest, TextsOfSamples) {
    Stamp({1700006380, 1709208000, INT32_MAX});
    const struct {
        int index;
        LPCTSTR date, time, full;
    } cases[] = {{0, _T("11/14"), _T("23:59:40"), _T("2023/11/14 23:59:40")},
                 {1, _T("02/29"), _T("12:00:00"), _T("2024/02/29 12:00:00")},
                 {2, _T("01/19"), _T("03:14:07"), _T("2038/01/19 03:14:07")}};
    CGraphCtrl& base = graph;
    for (const auto& each : cases) {
        CString date, time, full;
        EXPECT_TRUE(base.GetXData(each.index, date, time)); // the base's texts are times too
        EXPECT_TRUE(graph.GetFullTime(each.index, full));
        EXPECT_STREQ(date, each.date);
        EXPECT_STREQ(time, each.time);
        EXPECT_STREQ(full, each.full);
    }
    EXPECT_EQ(graph.GetTimeInfo(1), 1709208000);
    EXPECT_EQ(graph.GetXOffset(1), 1709208000 - 1700006380);
    for (const int outside : {-1, 3, INT32_MAX, INT32_MIN}) {
        CString date = "d", time = "t", full = "f";
        EXPECT_FALSE(graph.GetXData(outside, date, time));
        EXPECT_FALSE(graph.GetFullTime(outside, full));
        EXPECT_EQ(date + time + full, CString("dtf"));
        EXPECT_EQ(graph.GetTimeInfo(outside), 0);
        EXPECT_EQ(graph.GetXOffset(outside), 0);
    }
}

TEST_F(ScrollTimeAxisTest, NothingIsDrawnBesideTheWindow) {
    Load(1, 1699978400); // 16:13:20
    graph.SetHorzRange(1440);
    graph.SetLegendWidth(INT_MIN);
    graph.SetYTickLabelWidth(-1000000000);
    Record();
    EXPECT_LT(RecordXAxis(INT_MAX)->Records().size(), 400u);
}

// The time axis, in UTC whatever the machine's zone is.

#include "tests/scrollgraph/FixedZone.h"
#include "tests/scrollgraph/ScrollTest.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

const std::string kAxisPen = "solid 0 B9DDC1";
const std::string kGridPen = "dot 0 B9DDC1";

std::string Label(int x, const char* align, const std::string& text) {
    return "text " + std::to_string(x) + ",4000 right|" + align + " 3F7F4D Arial 300 @900 \"" + text + "\"";
}

/// The records of a tick with a clock time, and with a date where there is one.
Strings Tick(int x, const std::string& date, const std::string& clock, bool grid = false) {
    Strings lines{Stroke(x, 3900, x, 3800, kAxisPen)};
    if (grid)
        lines.push_back(Stroke(x, 3800, x, kPlotTop, kGridPen));
    if (date.empty()) {
        lines.push_back(Label(x - 110, "top", clock));
    } else {
        lines.push_back(Label(x + 70, "bottom", date));
        lines.push_back(Label(x, "top", clock));
    }
    return lines;
}

Strings operator+(Strings a, const Strings& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

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

TEST_F(ScrollTimeAxisTest, TicksAndLabelsInOrder) {
    Load(60); // from 22:13:20 on
    EXPECT_EQ(Axis(4), kAxisLine + Tick(2230, "11/14", "22:13:20") + Tick(3353, "", "22:13:40") +
                           Tick(4476, "", "22:14:00") + Tick(5599, "", "22:14:20"));
    const auto picture = RecordXAxis(4);
    EXPECT_EQ(picture->FinalState().pen, "null");
    EXPECT_EQ(picture->FinalState().font, "stock");
    EXPECT_EQ(picture->ObjectFaults({"Arial 300 @900"}), "");

    graph.SetGrid(TRUE, FALSE);
    EXPECT_EQ(Axis(4), kAxisLine + Tick(2230, "11/14", "22:13:20", true) + Tick(3353, "", "22:13:40", true) +
                           Tick(4476, "", "22:14:00", true) + Tick(5599, "", "22:14:20", true));
    EXPECT_EQ(RecordXAxis(4)->ObjectFaults({"Arial 300 @900"}), "");

    // The control asks for as many ticks as its plot has room for: 3370 / 800.
    graph.calls.clear();
    Strings whole = Record()->Texts();
    EXPECT_NE(std::find(graph.calls.begin(), graph.calls.end(), "xaxis 4"), graph.calls.end());
    EXPECT_EQ(std::count(whole.begin(), whole.end(), "22:14:20"), 1);
}

TEST_F(ScrollTimeAxisTest, TheFirstSampleInViewStandsForTheEdge) {
    Load(200);
    graph.m_dScrollPos = 30; // sample 2, 22:13:22, is the first from there on: 18 s to the next round time
    EXPECT_EQ(Axis(4), kAxisLine + Tick(3241, "11/14", "22:13:40") + Tick(4364, "", "22:14:00") +
                           Tick(5487, "", "22:14:20"));
}

TEST_F(ScrollTimeAxisTest, TheDateComesBackAfterMidnight) {
    Load(1, 1700006380); // 23:59:40
    EXPECT_EQ(Axis(4), kAxisLine + Tick(2230, "11/14", "23:59:40") + Tick(3353, "11/15", "00:00:00") +
                           Tick(4476, "", "00:00:20") + Tick(5599, "", "00:00:40"));
    EXPECT_EQ(LabelsFrom(1700006390, 1, 4), (Strings{"11/15 00:00:00", "00:00:20", "00:00:40"}));
    EXPECT_EQ(LabelsFrom(1709164800 - 3 * 3600, 24 * 60, 7),
              (Strings{"02/28 21:00:00", "02/29 00:00:00", "03:00:00", "06:00:00", "09:00:00", "12:00:00",
                       "15:00:00", "18:00:00", "21:00:00"}))
        << "a leap year";
}

TEST_F(ScrollTimeAxisTest, WhereThereIsNothingToLabel) {
    EXPECT_EQ(Axis(4), kAxisLine) << "no sample";
    Stamp({kSomeTime});
    ASSERT_EQ(graph.AddDataForOffline(1, 1, nullptr), 1);
    EXPECT_EQ(Axis(4), kAxisLine) << "dataset 0 has none";
    ASSERT_EQ(graph.AddDataForOffline(0, 1, nullptr), 1);
    EXPECT_EQ(Axis(4).size(), 1 + 4 + 3 * 2 - 1u);
    for (const int few : {1, 0, -5}) {
        EXPECT_EQ(Axis(few), kAxisLine) << few;
        EXPECT_EQ(RecordXAxis(few)->FinalState().pen, "null");
        EXPECT_EQ(RecordXAxis(few)->ObjectFaults({"Arial 300 @900"}), "");
    }
    for (const int style : {1, 3}) {
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
        EXPECT_EQ(Axis(4), kAxisLine) << "style " << style;
        EXPECT_EQ(RecordXAxis(4)->ObjectFaults({"Arial 300 @900"}), "");
    }
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    EXPECT_GT(Axis(4).size(), 1u);
}

TEST_F(ScrollTimeAxisTest, StepsAndTheirSpacing) {
    const struct {
        double minutes;
        int ticks, step;
    } cases[] = {
        {1, 11, 5},
        {15, 9, 120},
        {360, 11, 1800},
        {10080, 9, 10800},
    };
    for (const auto& each : cases) {
        graph.SetHorzRange(each.minutes);
        double spacing = 0;
        EXPECT_EQ(graph.SelectTickUnit(each.ticks, spacing), each.step) << each.minutes;
        EXPECT_DOUBLE_EQ(spacing, each.step * 20.0 * kPlotWidth / (each.minutes * 1200)) << each.minutes;
    }
}

TEST_F(ScrollTimeAxisTest, FirstTicksOfTwelveThirtyFourFiftySix) {
    Load(1, 1699965296); // 2023-11-14 12:34:56
    const double perSecond = kPlotWidth / 60.0;
    const struct {
        int step, delta;
        const char* text;
    } cases[] = {{5, 4, "2023/11/14 12:35:00"},      {10, 4, "2023/11/14 12:35:00"},
                 {60, 4, "2023/11/14 12:35:00"},     {300, 4, "2023/11/14 12:35:00"},
                 {900, 604, "2023/11/14 12:45:00"},  {3600, 1504, "2023/11/14 13:00:00"},
                 {7200, 5104, "2023/11/14 14:00:00"}};
    for (const auto& each : cases) {
        int spacing = 0;
        CString text;
        EXPECT_EQ(graph.ComputeFirstTickPos(0, each.step, spacing, text),
                  static_cast<int>(perSecond * each.delta));
        EXPECT_STREQ(text, each.text) << each.step;
        EXPECT_EQ(spacing, static_cast<int>(each.step * perSecond)) << each.step;
    }
    CString second, minute, hour;
    EXPECT_EQ(graph.SecondTickPos(0, 7, second), 0) << "56 is a multiple";
    EXPECT_EQ(graph.MinuteTickPos(0, 5, minute), static_cast<int>(perSecond * 4));
    EXPECT_EQ(graph.HourTickPos(0, 5, hour), static_cast<int>(perSecond * (2.0 * 3600 + 1504)));
    EXPECT_STREQ(second, "2023/11/14 12:34:56");
    EXPECT_STREQ(minute, "2023/11/14 12:35:00");
    EXPECT_STREQ(hour, "2023/11/14 15:00:00");
    EXPECT_EQ(graph.HourTickPos(-1, 1, hour), 0);
    EXPECT_STREQ(hour, "1970/01/01 00:00:00") << "no such sample";
    EXPECT_EQ(graph.SecondTickPos(0, 0, second), 0) << "a step of 0 leads nowhere";
}

TEST_F(ScrollTimeAxisTest, NextTickTime) {
    const struct {
        const char *date, *time;
        int step;
        const char* next;
    } cases[] = {
        {"2023/11/14", "12:34:56", 10, "2023/11/14 12:35:06"},
        {"2023/12/31", "23:59:55", 5, "2024/01/01 00:00:00"},
        {"2024/2/28", "22:0:0", 7200, "2024/02/29 00:00:00"},
        {"2023/02/28", "22:00:00", 10800, "2023/03/01 01:00:00"},
        {"1969/12/31", "23:59:59", 1, "1970/01/01 00:00:00"},
        {"2038/01/19", "03:14:07", 1, "2038/01/19 03:14:08"},
        {"", "", 10, " "},
        {"2023/11/14", "noon", 10, "2023/11/14 noon"},
        {"2023/02/30", "00:00:00", 10, "2023/02/30 00:00:00"},
        {"2023/13/01", "00:00:00", 10, "2023/13/01 00:00:00"},
        {"99999/01/01", "00:00:00", 10, "99999/01/01 00:00:00"},
        {"2023/11/14", "24:00:00", 10, "2023/11/14 24:00:00"},
    };
    for (const auto& each : cases) {
        CString date = each.date, time = each.time;
        EXPECT_STREQ(graph.GetNextTickTime(each.step, date, time), each.next);
    }
}

TEST_F(ScrollTimeAxisTest, TextsOfSamples) {
    Stamp({1700006380, 1709208000, -1, INT32_MIN, INT32_MAX});
    const struct {
        int index;
        const char *date, *time, *full;
    } cases[] = {{0, "11/14", "23:59:40", "2023/11/14 23:59:40"},
                 {1, "02/29", "12:00:00", "2024/02/29 12:00:00"},
                 {2, "12/31", "23:59:59", "1969/12/31 23:59:59"},
                 {3, "12/13", "20:45:52", "1901/12/13 20:45:52"},
                 {4, "01/19", "03:14:07", "2038/01/19 03:14:07"}};
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
    for (const int outside : {-1, 5, INT32_MAX, INT32_MIN}) {
        CString date = "d", time = "t", full = "f";
        EXPECT_FALSE(graph.GetXData(outside, date, time));
        EXPECT_FALSE(graph.GetFullTime(outside, full));
        EXPECT_EQ(date + time + full, CString("dtf"));
        EXPECT_EQ(graph.GetTimeInfo(outside), 0);
        EXPECT_EQ(graph.GetXOffset(outside), 0);
    }
}

TEST_F(ScrollTimeAxisTest, TicksInOneDeviceColumnAreOneAndLabelsDoNotTouch) {
    Load(1, 1699978400); // 16:13:20
    CDC pixels;
    pixels.CreateCompatibleDC(nullptr);
    graph.SetMapModeAnisotropic(pixels);
    const auto columnOf = [&](int x) {
        CPoint point(x, 0);
        pixels.LPtoDP(&point);
        return static_cast<int>(point.x);
    };
    // A step of 3 hours, from 18:00 on, takes 8 units in 50 days, 29 in 2 weeks, 407 in a day.
    const struct {
        double days;
        Strings labels;
    } views[] = {
        {50, {"11/15 00:00:00", "11/29 00:00:00", "12/13 00:00:00", "12/27 00:00:00"}},
        {14.2, {"11/15 00:00:00", "11/22 00:00:00"}},
        {1.03, {"11/14 18:00:00", "11/15 00:00:00", "06:00:00"}},
        {0.9, {"11/14 18:00:00", "21:00:00", "11/15 00:00:00", "03:00:00", "06:00:00", "09:00:00"}},
    };
    for (const auto& view : views) {
        graph.SetHorzRange(view.days * 1440);
        const double width = view.days * 86400;
        const int spacing = static_cast<int>(10800 * kPlotWidth / width);
        std::vector<int> expected, found;
        for (int x = 2230 + static_cast<int>((3600 + 46 * 60 + 40) * (kPlotWidth / width)); x <= kPlotRight;
             x += spacing)
            if (expected.empty() || columnOf(x) != columnOf(expected.back()))
                expected.push_back(x);
        const auto picture = RecordXAxis(4);
        for (const testkit::MetafileRecord& record : picture->Records())
            if (record.kind == testkit::kLine && record.points[0].y == 3900)
                found.push_back(record.points[0].x);
        EXPECT_EQ(found, expected) << view.days;
        Strings labels = Labels(4);
        labels.resize(std::min(labels.size(), view.labels.size()));
        EXPECT_EQ(labels, view.labels) << view.days;
    }
    graph.SetHorzRange(5e9); // a step has no width at all
    EXPECT_EQ(Labels(4).size(), 1u);

    // What lies beside the window is not drawn.
    Resize(300, 200);
    graph.SetHorzRange(1440);
    graph.SetLegendWidth(INT_MIN);
    graph.SetYTickLabelWidth(-1000000000);
    Record();
    EXPECT_LT(RecordXAxis(INT_MAX)->Records().size(), 400u);
}

// What samples and the host's calls do to the view.

#include "tests/scrollgraph/ScrollTest.h"

#include <climits>
#include <cmath>

class ScrollFollowTest : public ScrollTest {
protected:
    void SetUp() override {
        ScrollTest::SetUp();
        graph.RedrawData();
        m_dataRegion = testkit::Text(UpdateRect());
        Settle();
    }
    /// "", "data" or the rectangle, of what waits for repainting.
    std::string Repaints() {
        const std::string rect = testkit::Text(UpdateRect());
        return rect == "0,0,0,0" ? "" : rect == m_dataRegion ? "data" : rect;
    }
    void Add(int dataset, long time, double value) {
        ASSERT_EQ(graph.AddXTickLabel(time), 1);
        ASSERT_EQ(graph.AddData(dataset, value, nullptr), 1);
    }
    void SetView(double pos, double max, double min = 0, double width = 1200) {
        graph.m_dScrollPos = pos;
        graph.m_dScrollMax = max;
        graph.m_dScrollMin = min;
        graph.m_dViewWidth = width;
        graph.UpdateScrollInfo();
    }

private:
    std::string m_dataRegion;
};

TEST_F(ScrollFollowTest, TheFiftyFifthSampleIsFollowed) {
    double untouched = 7;
    for (int i = 0; i < 55; ++i) {
        Add(0, kSomeTime + i, 1);
        ASSERT_FALSE(graph.m_bFollowed) << i;
    }
    EXPECT_EQ(View(), "pos 0 max 1200 min 0 width 1200");
    ASSERT_EQ(graph.AddXTickLabel(kSomeTime + 55), 1);
    ASSERT_EQ(graph.AddData(0, 1, &untouched), 1);
    EXPECT_EQ(untouched, 7);
    EXPECT_TRUE(graph.m_bFollowed);
    EXPECT_EQ(View(), "pos 20 max 1220 min 0 width 1200");
    EXPECT_EQ(Bar(), "0..1200 page 1180 pos 19");
    for (int i = 56; i < 120; ++i)
        Add(0, kSomeTime + i, 1);
    EXPECT_EQ(View(), "pos 1300 max 2500 min 0 width 1200");
    EXPECT_EQ(Repaints(), "") << "the host repaints";
    EXPECT_EQ(graph.m_XVisibleMax, 100) << "the range of indices is not the view";
    EXPECT_EQ(graph.GetDatasetSize(0), 120);
    EXPECT_EQ(graph.GetCurDataIndex(), 120);

    // A second dataset of the same instants finds the view where it should be.
    for (int i = 0; i < 120; ++i)
        ASSERT_EQ(graph.AddData(12, 1, nullptr), 1);
    EXPECT_EQ(View(), "pos 1300 max 2500 min 0 width 1200");
    for (const int wrong : {-1, 13, INT_MAX, INT_MIN}) {
        graph.m_bFollowed = 5;
        EXPECT_EQ(graph.AddData(wrong, 1, nullptr), 0);
        EXPECT_EQ(graph.AddDataForOffline(wrong, 1, nullptr), 0);
        EXPECT_EQ(graph.m_bFollowed, 5);
    }
    ASSERT_EQ(graph.AddDataForOffline(0, 1, &untouched), 1);
    EXPECT_EQ(untouched, 7);
    EXPECT_FALSE(graph.m_bFollowed);
    EXPECT_EQ(View(), "pos 1300 max 2500 min 0 width 1200");
}

TEST_F(ScrollFollowTest, ScrolledBackTheViewStaysAndTheRangeGrows) {
    Load(100);
    SetView(100, 2000);
    Add(0, kSomeTime + 100, 1); // x 2000, not beyond the range
    EXPECT_EQ(View(), "pos 100 max 2000 min 0 width 1200");
    EXPECT_EQ(Bar(), "0..1200 page 720 pos 60");
    Add(0, kSomeTime + 101, 1);
    EXPECT_FALSE(graph.m_bFollowed);
    EXPECT_EQ(View(), "pos 100 max 2140 min 0 width 1200");
    EXPECT_EQ(Bar(), "0..1200 page 672 pos 56");
}

TEST_F(ScrollFollowTest, TheFirstSampleMovesOnlyTheMinimum) {
    SetView(80, 5000, 50);
    Add(0, kSomeTime + 500, 1);
    EXPECT_EQ(View(), "pos 80 max 5000 min 0 width 1200");
    // A sample before its time stamp counts as standing at the origin.
    ASSERT_EQ(graph.AddData(0, 1, nullptr), 1);
    EXPECT_EQ(View(), "pos 80 max 5000 min 0 width 1200");
    // Time that steps back lowers the minimum.
    Stamp({kSomeTime, kSomeTime + 490});
    ASSERT_EQ(graph.AddData(0, 1, nullptr), 1);
    EXPECT_EQ(View(), "pos 80 max 5000 min -200 width 1200");
}

TEST_F(ScrollFollowTest, ARangeIsSetInMinutes) {
    Load(200);
    ASSERT_EQ(graph.AddDataForOffline(5, 1, nullptr), 1); // the count of dataset 0 alone matters
    const struct {
        double minutes, min;
        const char* view;
    } cases[] = {
        {1, 0, "pos 2900 max 4100 min 0 width 1200"},
        {0.5, 0, "pos 3440 max 4040 min 0 width 600"},
        {5, 0, "pos 0 max 6000 min 0 width 6000"},
        {5, 100, "pos 100 max 6100 min 100 width 6000"}, // the minimum is kept
        {0.25, -500, "pos 3710 max 4010 min -500 width 300"},
    };
    for (const auto& each : cases) {
        SetView(77, 9999, each.min);
        Settle();
        graph.SetHorzRange(each.minutes);
        EXPECT_EQ(View(), each.view) << each.minutes;
        EXPECT_EQ(Repaints(), "data");
    }
    EXPECT_EQ(Bar(), "0..1200 page 79 pos 1120"); // 300, 4210 of 4510
}

TEST_F(ScrollFollowTest, WhatRewindsTheView) {
    const auto prepare = [&] {
        graph.InitData();
        graph.ResetData(0);
        Load(100);
        SetView(300, 7000, 10);
        Settle();
    };
    const struct {
        const char* name;
        std::function<void(OpenScrollGraph&)> call;
        const char* view;
        const char* repaints;
        const char* bar;
    } cases[] = {
        {"SetScrollLastPos", [](OpenScrollGraph& g) { g.SetScrollLastPos(); },
         "pos 900 max 1200 min 10 width 1200", "", "0..1200 page 206 pos 49"},
        {"UpdateScrollByRemove", [](OpenScrollGraph& g) { g.UpdateScrollByRemove(); },
         "pos 900 max 2100 min 10 width 1200", "data", "0..1200 page 688 pos 511"},
        {"InitScrollInfo", [](OpenScrollGraph& g) { g.InitScrollInfo(); }, "pos 0 max 1200 min 0 width 1200",
         "", "0..1200 page 1197 pos 0"},
        {"Normalize", [](OpenScrollGraph& g) { g.Normalize(); }, "pos 300 max 7000 min 10 width 1200", "",
         "0..1200 page 206 pos 49"},
    };
    for (const auto& each : cases) {
        prepare();
        each.call(graph);
        EXPECT_EQ(View(), each.view) << each.name;
        EXPECT_EQ(Repaints(), each.repaints) << each.name;
        EXPECT_EQ(Bar(), each.bar) << each.name;
    }
    SetView(5, 1000, 10);
    graph.Normalize();
    EXPECT_EQ(View(), "pos 10 max 1210 min 10 width 1200");
}

TEST_F(ScrollFollowTest, RemovingTheHeadMovesTheOrigin) {
    Load(200);
    for (int i = 0; i < 30; ++i)
        ASSERT_EQ(graph.AddDataForOffline(3, i, nullptr), 1);
    graph.SetSelectionMarkPos(150);
    SetView(500, 9000);
    Settle();
    graph.RemoveHeadData(40);
    EXPECT_EQ(graph.GetDatasetSize(0), 160);
    EXPECT_EQ(graph.GetDatasetSize(3), 0) << "it had fewer";
    EXPECT_EQ(graph.GetCurDataIndex(), 160);
    double value = 0;
    ASSERT_TRUE(graph.GetYData(0, 0, value));
    EXPECT_EQ(value, 40);
    EXPECT_EQ(graph.GetTimeInfo(0), kSomeTime + 40);
    EXPECT_EQ(graph.GetXOffset(159), 159);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    EXPECT_EQ(View(), "pos 2100 max 3300 min 0 width 1200");
    EXPECT_EQ(Bar(), "0..1200 page 436 pos 763");
    EXPECT_EQ(Repaints(), "data");

    graph.RemoveHeadData(-5);
    EXPECT_EQ(graph.GetCurDataIndex(), 160) << "nothing is before the head";
    graph.SetSelectionMarkPos(3);
    graph.RemoveHeadData(100000);
    EXPECT_EQ(graph.GetDatasetSize(0), 0);
    EXPECT_EQ(graph.GetCurDataIndex(), 0);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    EXPECT_EQ(View(), "pos 0 max 1200 min 0 width 1200");
}

TEST_F(ScrollFollowTest, ArraysAreCutToOneElement) {
    for (const int growBy : {-1, 100, 0}) {
        graph.InitData();
        EXPECT_EQ(graph.GetCurDataIndex(), 0);
        graph.ResetData(0);
        Load(10, kSomeTime);
        graph.RemoveHeadData(1);
        graph.SetArraySize(growBy);
        EXPECT_EQ(graph.GetCurDataIndex(), 1);
        EXPECT_EQ(graph.GetTimeInfo(0), kSomeTime + 1);
        for (int i = 0; i < CGraphCtrl::DatasetCount; ++i) {
            double value = -1;
            EXPECT_EQ(graph.GetDatasetSize(i), 1);
            EXPECT_TRUE(graph.GetYData(i, 0, value));
            EXPECT_EQ(value, i == 0 ? 1 : 0);
        }
    }
    // The order of calls that hosts use: an empty start, the datasets keep their 0.
    graph.InitData();
    graph.SetArraySize(50);
    EXPECT_EQ(graph.GetTimeInfo(0), 0);
    graph.ResetXTickLabel();
    EXPECT_EQ(graph.GetCurDataIndex(), 0);
    EXPECT_EQ(graph.GetDatasetSize(7), 1);
}

TEST_F(ScrollFollowTest, WithoutAWindowEverythingButTheBarWorks) {
    OpenScrollGraph alone;
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(alone.AddXTickLabel(kSomeTime + i), 1);
        ASSERT_EQ(alone.AddData(0, i, nullptr), 1);
    }
    EXPECT_EQ(alone.m_dScrollPos, 900);
    alone.SetHorzRange(0.5);
    alone.ProcessMouseWheel(1);
    EXPECT_EQ(alone.m_dScrollPos, 1440 - 6);
    alone.SendScrollInfo(5);
    alone.SendSelectionMarkTime();
    alone.RemoveHeadData(10);
    alone.UpdateScrollInfo();
    EXPECT_EQ(alone.m_dScrollPos, 89 * 20 - 540);
    EXPECT_EQ(alone.LowerBound(201), 11);
    EXPECT_EQ(alone.UpperBound(11, -7), 40);
    EXPECT_EQ(alone.UpperBound(61, 0), 90) << "one past the last";
    EXPECT_EQ(alone.UpperBound(62, 0), 89);
}

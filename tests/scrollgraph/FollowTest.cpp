// SPDX-License-Identifier: MIT
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

private:
    std::string m_dataRegion;
};

TEST_F(ScrollFollowTest, WhatRepaintsAndWhatDoesNot) {
    const struct {
        std::function<void(OpenScrollGraph&)> call;
        const char* repaints;
    } cases[] = {
        {[](OpenScrollGraph& g) { g.AddXTickLabel(kSomeTime + 100), g.AddData(0, 1, nullptr); }, ""},
        {[](OpenScrollGraph& g) { g.SetScrollLastPos(), g.Normalize(), g.InitScrollInfo(); }, ""},
        {[](OpenScrollGraph& g) { g.SetHorzRange(3); }, "data"},
        {[](OpenScrollGraph& g) { g.UpdateScrollByRemove(); }, "data"},
        {[](OpenScrollGraph& g) { g.RemoveHeadData(1); }, "data"},
    };
    Load(100);
    for (const auto& each : cases) {
        Settle();
        each.call(graph);
        EXPECT_EQ(Repaints(), each.repaints) << &each - cases;
    }
}

TEST_F(ScrollFollowTest, RemovingTheHeadMovesTheOrigin) {
    Load(200);
    for (int i = 0; i < 30; ++i)
        ASSERT_EQ(graph.AddDataForOffline(3, i, nullptr), 1);
    graph.SetSelectionMarkPos(150);
    graph.RemoveHeadData(40);
    EXPECT_EQ(graph.GetDatasetSize(3), 0);
    double value = 0;
    ASSERT_TRUE(graph.GetYData(0, 0, value));
    EXPECT_EQ(value, 40);
    EXPECT_EQ(graph.GetTimeInfo(0), kSomeTime + 40);
    EXPECT_EQ(graph.GetXOffset(159), 159);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    graph.RemoveHeadData(-5);
    EXPECT_EQ(graph.GetCurDataIndex(), 160);
    for (const int wrong : {-1, 13, INT_MAX, INT_MIN})
        EXPECT_EQ(graph.AddData(wrong, 1, nullptr) + graph.AddDataForOffline(wrong, 1, nullptr), 0);
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

// SPDX-License-Identifier: MIT
// The elements of a chart and their texts, also long ones and in small windows.
#include "tests/chartdraw/ChartTest.h"

#include <algorithm>

class ChartElementTest : public ChartTest {};

TEST_F(ChartElementTest, EachMemberDrawsItsElementAndLeavesNothingBehind) {
    chart.SetTitle("Title");
    chart.SetXLabel("East");
    chart.SetYLabel("North");
    chart.SetXScale(0, 4, 2);
    chart.SetYScale(-1, 1, 1);
    const int dataset = chart.AddDataset();
    chart.SetColor(dataset, RGB(255, 0, 0));
    chart.AddData(dataset, 1, 0.5);
    chart.AddData(dataset, 3, -0.5);
    chart.CalcDatas();
    const CRect& plot = chart.m_rectPlot;
    const struct {
        const char* name;
        void (OpenChart::*draw)(CDC&);
        Strings texts;
        std::size_t lines;
    } cases[] = {{"bkgnd", &OpenChart::PaintBkGnd, {}, 0},
                 {"title", &OpenChart::DrawTitle, {"Title"}, 0},
                 {"grid", &OpenChart::DrawGrid, {}, 6},
                 {"datasets", &OpenChart::DrawDatasets, {}, 1},
                 {"axes", &OpenChart::DrawAxes, {"East", "North"}, 2},
                 {"yscale", &OpenChart::DrawYScale, {"-1", "0", "1"}, 3},
                 {"xscale", &OpenChart::DrawXScale, {"0", "2", "4"}, 3}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { (chart.*each.draw)(dc); });
        EXPECT_EQ(recorder.Texts(), each.texts);
        EXPECT_EQ(recorder.Lines(testkit::kLine).size(), each.lines);
        if (each.name == std::string("datasets")) {
            const Strings clips = recorder.Lines(testkit::kClip);
            ASSERT_FALSE(clips.empty());
            EXPECT_NE(clips.front().find(testkit::BoxText(plot)), std::string::npos) << clips.front();
        }
        EXPECT_EQ(recorder.ObjectFaults(), "");
        EXPECT_FALSE(recorder.FinalState().clipped);
    }
}

TEST_F(ChartElementTest, LongTextsEndInDotsInsideTheWindow) {
    const std::string text(120, 'n');
    chart.SetTitle(text.c_str());
    chart.SetXLabel(text.c_str());
    chart.SetYLabel(text.c_str());
    for (const auto& draw : {&OpenChart::DrawTitle, &OpenChart::DrawAxes}) {
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { (chart.*draw)(dc); });
        for (const std::string& shown : recorder.Texts()) {
            ASSERT_GT(shown.size(), 10u);
            EXPECT_EQ(shown, text.substr(0, shown.size() - 3) + "...");
        }
    }
    chart.SetYLabelColor(RGB(255, 0, 0));
    testkit::DibSurface surface(300, 200);
    PaintInto(surface);
    const RECT bounds = surface.Bounds(RGB(255, 0, 0));
    EXPECT_TRUE(bounds.top > 20 && bounds.bottom < 180) << "clear of title and X caption";
}

TEST_F(ChartElementTest, SmallWindowsLeaveOutWhatHasNoRoom) {
    chart.SetTitle("Title");
    chart.SetXLabel("East");
    chart.SetYLabel("North");
    Add({1, 2, 3});
    const struct {
        int width, height;
        bool captions, title, scales;
    } cases[] = {{300, 200, true, true, true},
                 {170, 130, false, true, true},
                 {60, 50, false, false, false},
                 {1, 1, false, false, false},
                 {0, 0, false, false, false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.width << " x " << each.height);
        Resize(each.width, each.height);
        chart.Redraw();
        chart.UpdateWindow();
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { chart.DrawChart(dc); });
        const Strings texts = recorder.Texts();
        const auto has = [&](const char* text) { return std::count(texts.begin(), texts.end(), text) > 0; };
        EXPECT_EQ(has("East") && has("North"), each.captions);
        EXPECT_EQ(has("Title"), each.title);
        EXPECT_EQ(texts.size() > 3, each.scales);
        EXPECT_EQ(recorder.ObjectFaults(), "");
    }
}

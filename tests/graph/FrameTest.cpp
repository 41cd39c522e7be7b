#include "tests/graph/MultiGraphTest.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

const testkit::MetafileRecord* Find(const testkit::MetafileRecorder& recorder, const std::string& text) {
    for (const testkit::MetafileRecord& record : recorder.Records())
        if (record.kind == testkit::kText && record.text == text)
            return &record;
    return nullptr;
}

int IndexOf(const testkit::MetafileRecorder& recorder, const std::string& start) {
    const Strings lines = recorder.Lines(testkit::kAll);
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].find(start) != std::string::npos)
            return static_cast<int>(i);
    return -1;
}

} // namespace

TEST_F(MultiGraphTest, TitleAndPlotStandWhereHostsExpectThem) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const auto metricsOf = [&](int height, int escapement) {
        CFont font;
        font.CreateFont(height, 0, escapement, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 16, "Arial");
        CFont* const before = dc.SelectObject(&font);
        TEXTMETRIC metrics{};
        dc.GetTextMetrics(&metrics);
        dc.SelectObject(before);
        return metrics;
    };
    const auto fit = [](int height, int length, int room) {
        while (height > 1 && height / 2 * length > room)
            height -= 2;
        return std::max(height, 1);
    };
    std::mt19937 random(5);
    for (int round = 0; round < 150; ++round) {
        const auto pick = [&](int low, int high) {
            return low + static_cast<int>(random() % (high - low + 1u));
        };
        const int type = kAllTypes[pick(0, 10)], w = pick(100, 900), h = pick(100, 700),
                  angle = pick(0, 1) * 45;
        const int title = pick(0, 60), x = pick(0, 12), y = pick(0, 80), max = pick(1, 20000),
                  chosen = pick(0, 6);
        const int yFont = pick(-3, 20), xFont = pick(-3, 20), key = pick(-1, 0), value = pick(-1, 0);
        Resize(w, h);
        Make(type).SetGraphAlignment(pick(0, 1));
        graph->SetGraphTitle(CString('t', title));
        graph->SetXAxisLabel(CString('x', x));
        graph->SetYAxisLabel(CString('y', y));
        graph->SetXTickFontSize(xFont);
        graph->SetYTickFontSize(yFont);
        graph->SetXAxisAlignment(angle);
        graph->SetTickLimits(0, max, 10);
        graph->SetGraphQuadType(chosen);
        Add("plain", {{0, 1}});
        Add("first", {{key, value}, {7, -9}});
        const auto recorder = Record();

        const int width = w - 5, height = h - 20, size = fit(24, title, width);
        EXPECT_EQ(recorder->Lines(testkit::kDrawing)[0], "rect 0,0," + std::to_string(w) + "," +
                                                             std::to_string(h) +
                                                             " pen solid 0 000000 brush FFFFFF");
        EXPECT_EQ(recorder->Lines(testkit::kDrawing)[1],
                  "text " + std::to_string(w / 2 - title / 2 * metricsOf(size, 0).tmAveCharWidth) +
                      ",10 left|top 090807 Arial " + std::to_string(size) + " bold \"" +
                      std::string(title, 't') + "\"");
        int left = 5, bottom = height - 5, plotWidth = width - 10, plotHeight = height - 50;
        if (type != 2 && type != 32) {
            const bool wide = height < width, values = graph->graphAlignment != 0;
            const TEXTMETRIC caption = metricsOf(fit(16, wide ? y : x, wide ? height : width), 900);
            left = x * caption.tmAveCharWidth + ((values ? y : x) > 0 ? caption.tmHeight + 10 : 0) + 5;
            bottom = height - caption.tmHeight - 15;
            if (values && type != 3) {
                left = std::max(yFont, 1) / 2 * static_cast<int>(std::to_string(max).size()) + 50;
                bottom = height - (angle == 0 ? 50 : std::max(xFont, 1) / 2 * x + 15);
            }
            plotHeight = bottom - 40;
            plotWidth = width - left - 5;
        }
        if (type == 0) {
            const int automatic = key < 0 ? (value < 0 ? 4 : 2) : value < 0 ? 3 : 1;
            const int shown = chosen >= 1 && chosen <= 4 ? chosen : automatic;
            EXPECT_EQ(graph->graphQuadType, shown);
            left += shown % 2 == 0 ? plotWidth / 2 : 0;
            bottom -= shown > 2 ? plotHeight / 2 : 0;
        }
        EXPECT_EQ(graph->xApexPoint, left) << round;
        EXPECT_EQ(graph->yApexPoint, bottom) << round;
        EXPECT_EQ(graph->xAxisWidth, plotWidth) << round;
        EXPECT_EQ(graph->yAxisHeight, plotHeight) << round;
    }
}

TEST_F(MultiGraphTest, LegendRowsStandForGroupsAndHoldWholeTexts) {
    const char* const texts[] = {"CPU", "WWWWWW", "MM"}; // some wider than their number of characters tells
    const char* const fills[] = {"C80000", "00C800", "0000C8"};
    for (const bool bySeries : {false, true})
        for (const int type : kAllTypes) {
            Make(0).SetLegendBySeries(bySeries);
            for (const char* text : texts)
                graph->SetLegend(0, text);
            graph->SetGraphType(type);
            Fill({{1, 2, 3}, {4}});
            const auto recorder = Record();
            const int rows = bySeries && (type == 3 || type == 4 || type == 21) ? 2 : 3;
            const int right = 495 - 5, height = rows * 18 + 26, left = right - 6 * 7 - 25;
            const int top = 380 / 2 - height / 2, swatch = left + 10 + 6 * 6;
            const auto box = [](int l, int t, int r, int b) {
                return "rect " + testkit::BoxText({l, t, r, b}) + " pen solid 0 000000 brush ";
            };
            EXPECT_GE(IndexOf(*recorder, box(left, top, right, top + height) + "FFFFFF"), 0) << type;
            EXPECT_EQ(graph->legendWidth, right - left);
            EXPECT_EQ(graph->xAxisWidth, left - graph->xApexPoint - 10) << type;
            for (int i = 0; i < rows; ++i) {
                const int y = top + 25 + 18 * i;
                EXPECT_GE(IndexOf(*recorder, box(swatch, y, right - 5, y + 12) + fills[i]), 0) << type << i;
                const auto* const text = Find(*recorder, texts[i]);
                ASSERT_NE(text, nullptr) << type << texts[i];
                EXPECT_EQ(text->points.front().x, left + 5);
                EXPECT_EQ(text->points.front().y, y);
                EXPECT_EQ(text->state.font, "Arial 12 bold");
            }
            EXPECT_EQ(Find(*recorder, "Legend")->state.font, "Arial 16 bold");
            const int axes = IndexOf(*recorder, "\"100\"");
            EXPECT_TRUE(axes < 0 || IndexOf(*recorder, "\"Legend\"") < axes) << "legend before axes";
            for (const auto& record : recorder->Records()) {
                const bool share = record.text.find('%') != std::string::npos;
                EXPECT_TRUE(share || record.kind != testkit::kText || record.state.textColor == kInk)
                    << type << record.text << ": the DC's own colour";
            }
        }
}

TEST_F(MultiGraphTest, AxisTicksNumbersGridAndLabels) {
    Make(1).SetTickLimits(-40, 80, 20);
    graph->SetGridLines(TRUE);
    graph->SetXAxisLabel("below");
    graph->SetYAxisLabel("beside");
    Fill({{1}, {2}, {3}});
    const auto recorder = Record();
    const Strings grid = recorder->Strokes("solid 1 808080");
    EXPECT_EQ(grid.size(), 7u);
    for (int value = -40; value <= 80; value += 20) {
        const int y = Pixel(At(value));
        const int left = graph->xApexPoint;
        const std::string line = "line " + std::to_string(left) + "," + std::to_string(y) + " " +
                                 std::to_string(left + graph->xAxisWidth) + "," + std::to_string(y) + " ";
        EXPECT_TRUE(std::any_of(grid.begin(), grid.end(), [&](const std::string& g) {
            return g.find(line) == 0;
        })) << line;
        EXPECT_NE(Find(*recorder, std::to_string(value)), nullptr) << value;
    }
    for (const char* text : {"s0", "s1", "s2"})
        EXPECT_GT(Find(*recorder, text)->points.front().y, 330);
    EXPECT_EQ(Find(*recorder, "beside")->state.font, "Arial 16 bold @900");
    EXPECT_EQ(Find(*recorder, "below")->state.font, "Arial 16 bold");
    const auto surface = Paint();
    EXPECT_EQ(surface->At(graph->xApexPoint + 1, Pixel(At(0))), RGB(0, 0, 0)) << "zero line";
    EXPECT_EQ(surface->At(graph->xApexPoint + 1, Pixel(At(20))), RGB(128, 128, 128));
}

TEST_F(MultiGraphTest, LabelsStayBesideThePlotAndOffTheYCaption) {
    for (const int type : {0, 3, 21, 30})
        for (const int alignment : {1, 0})
            for (const int angle : {0, 45, 90}) {
                Make(type).SetTickLimits(-2000000, 100, 500000);
                graph->SetGraphAlignment(alignment);
                graph->SetXAxisAlignment(angle);
                graph->SetYAxisLabel("beside");
                for (int s = 0; s < 5; ++s)
                    Add("label of a series", {{0, 60}, {1, 40}});
                const auto recorder = Record();
                for (const auto& record : recorder->Records())
                    if (record.kind == testkit::kText && !record.text.empty() && record.text != "beside") {
                        const POINT at = record.points.front();
                        const bool below = alignment == 0 && at.y > graph->yApexPoint;
                        EXPECT_TRUE(at.x >= 16 + 7 || below) << type << record.Line();
                        EXPECT_GE(std::stoi(record.state.font.substr(6)), 10) << type << record.Line();
                    }
                if (graph->xApexPoint < 16) {
                    const auto caption = static_cast<std::size_t>(IndexOf(*recorder, "\"beside\""));
                    const std::string plate = recorder->Lines(testkit::kAll)[caption - 1];
                    EXPECT_EQ(plate.substr(plate.size() - 12), "brush FFFFFF") << "no series covers it";
                }
            }
    Make(0).SetYTickFontSize(8);
    EXPECT_EQ(Find(*Record(), "100")->state.font, "Arial 8") << "the host's own choice";

    Make(0).SetGraphAlignment(0);
    graph->SetXAxisAlignment(90);
    graph->SetXAxisLabel("caption");
    for (int s = 0; s < 60; ++s)
        Add("a label that is long", {{0, 5}});
    const auto surface = Paint();
    const RECT above = {2, 2, graph->xApexPoint, 38};
    EXPECT_EQ(surface->Count(RGB(255, 255, 255), above), (above.right - 2) * 36) << "none reaches the title";
}

TEST_F(MultiGraphTest, LabelsAreStaggeredShortenedThinnedOrTurned) {
    struct Case {
        int series, angle;
        const char* label;
        std::size_t drawn;
        std::size_t rows;
        bool cut;
    };
    const Case cases[] = {
        {3, 0, "Monday", 3, 1, false},           {9, 0, "Wednesday", 9, 2, false},
        {9, 0, "Wednesday evening", 9, 2, true}, {60, 0, "Wednesday", 0, 1, true},
        {12, 90, "May", 12, 1, false},
    };
    for (const Case& c : cases) {
        Make(0).SetXAxisAlignment(c.angle);
        for (int s = 0; s < c.series; ++s)
            Add(c.label, {{0, 5}});
        std::vector<int> rows;
        std::size_t drawn = 0;
        std::vector<double> ends(2000, -1e9);
        const auto recorder = Record();
        for (const auto& record : recorder->Records()) {
            if (record.kind != testkit::kText || record.text.empty() || record.text[0] != c.label[0])
                continue;
            ++drawn;
            const POINT at = record.points.front();
            if (std::find(rows.begin(), rows.end(), at.y) == rows.end())
                rows.push_back(at.y);
            if (c.angle == 0) {
                EXPECT_GT(at.x, ends[static_cast<std::size_t>(at.y)]) << "labels of a row keep clear";
                ends[static_cast<std::size_t>(at.y)] = at.x + 3.0 * static_cast<double>(record.text.size());
            }
        }
        if (c.drawn != 0) {
            EXPECT_EQ(drawn, c.drawn) << c.label;
        } else {
            EXPECT_TRUE(drawn > 2 && drawn < 20) << drawn;
        }
        EXPECT_EQ(rows.size(), c.rows) << c.label;
        EXPECT_EQ(graph->axisLabelsCut != 0, c.cut) << c.label << c.series;
    }
}

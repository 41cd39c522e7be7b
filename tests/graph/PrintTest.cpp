// SPDX-License-Identifier: MIT
// Printing against the picture on the screen.
#include "tests/graph/MultiGraphTest.h"

#include <afxdlgs.h>
#include <afxext.h>

#include <algorithm>

class GraphPrintTest : public MultiGraphTest {
protected:
    void PrintInto(HDC target) {
        CDC dc;
        dc.Attach(target);
        graph->PrintGraph(&dc, nullptr);
        dc.Detach();
    }
};

TEST_F(GraphPrintTest, TheSamePictureInTwipsForEveryType) {
    // 500 x 384 pixels on the screen are 7500 x 5760 twips: four inches high.
    Resize(500, 384);
    for (const int type : kAllTypes) {
        Make(type).SetGraphTitle("Title");
        graph->SetXAxisLabel("across");
        graph->SetYAxisLabel("beside");
        graph->SetLegend(0, "row");
        Fill({{40, 30, 20}, {20, 60, 80}});
        graph->SetMargins(-700, -15000, 1440, 1440 + 7500, -720);
        const auto screen = Record();
        testkit::MetafileRecorder paper;
        PrintInto(paper.Dc());
        paper.Close();
        EXPECT_EQ(paper.ObjectFaults(), "") << type;
        EXPECT_EQ(graph->printBottom, -720 - 5760);
        // Text is measured anew at the finer resolution, so shapes are compared; they agree to a
        // pixel or two.
        const auto shapes = [](const testkit::MetafileRecorder& recorder) {
            std::vector<testkit::MetafileRecord> found;
            for (const auto& record : recorder.Records())
                if ((record.kind & (testkit::kRectangle | testkit::kEllipse | testkit::kPolygon)) != 0)
                    found.push_back(record);
            return found;
        };
        // The margin of a scatter graph is six characters of average width, which is a whole number of units.
        const int tolerance = type == 3 ? 40 + 6 * 15 : 40;
        const auto a = shapes(*screen);
        const auto b = shapes(paper);
        ASSERT_EQ(a.size(), b.size()) << type;
        for (std::size_t i = 0; i < a.size(); ++i) {
            ASSERT_EQ(a[i].kind, b[i].kind) << i;
            EXPECT_EQ(a[i].state.brush, b[i].state.brush) << type << " " << i;
            EXPECT_EQ(b[i].state.mapMode, MM_TWIPS);
            if (a[i].kind == testkit::kPolygon)
                continue;
            EXPECT_NEAR(b[i].box.left, 1440 + 15 * a[i].box.left, tolerance) << type << " " << i;
            EXPECT_NEAR(std::max(b[i].box.top, b[i].box.bottom), -720 - 15 * a[i].box.top, 40)
                << type << " " << i;
        }
        EXPECT_EQ(paper.Texts().front(), "Title");
        // A turned text is recorded with y growing downwards.
        const auto caption = [](const testkit::MetafileRecorder& recorder) {
            for (const auto& record : recorder.Records())
                if (record.text == "beside")
                    return record.points.front();
            return POINT{0, 0};
        };
        if (type != 2 && type != 32) {
            EXPECT_NEAR(caption(paper).x, 1440 + 15 * caption(*screen).x, 40) << type;
            EXPECT_NEAR(caption(paper).y, 720 + 15 * caption(*screen).y, 60) << type;
        }
    }
}

TEST_F(GraphPrintTest, AtAPrintersResolutionBarsStandWhereTheirValuesAre) {
    Make(0).SetTickLimits(0, 100, 10);
    Fill({{33}});
    graph->SetMargins(0, -14400, 1440, 8640, -1440);
    testkit::MetafileRecorder paper;
    PrintInto(paper.Dc());
    paper.Close();
    const int base = graph->yApexPoint; // on the page, y upwards
    EXPECT_EQ(base, -1440 - (5760 - 70 * 15));
    EXPECT_EQ(graph->xApexPoint, 1440 + 68 * 15);
    int top = INT_MIN;
    for (const auto& record : paper.Records())
        if (record.kind == testkit::kRectangle && record.state.brush == "C80000")
            top = std::max<int>(record.box.top, record.box.bottom);
    EXPECT_NEAR(top, base + 0.33 * graph->yAxisHeight, 2) << "finer than a pixel";
}

TEST_F(GraphPrintTest, MarginsAndPageCutThePicture) {
    Make(0);
    graph->SetMargins(0, -3000, 100, 5000, -1000);
    EXPECT_EQ(graph->printBottom, -3000) << "the bottom margin is higher than four inches";
    graph->SetMargins(0, -14400, 100, 5000, -1000);

    testkit::DibSurface surface(400, 400);
    CDC dc;
    dc.Attach(surface.Dc());
    CPrintInfo info;
    info.m_rectDraw = CRect(0, 0, 400, 200); // a short page: 200 pixels are 3000 twips
    dc.SetTextColor(RGB(1, 2, 3));
    graph->PrintGraph(&dc, &info);
    EXPECT_NEAR(graph->printBottom, -3000, 15);
    EXPECT_EQ(dc.GetMapMode(), MM_TEXT);
    EXPECT_EQ(dc.GetTextColor(), RGB(1, 2, 3));
    graph->PrintGraph(&dc, nullptr);
    EXPECT_EQ(graph->printBottom, -6760) << "measured anew each time";
    dc.Detach();
}

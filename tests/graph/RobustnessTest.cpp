// SPDX-License-Identifier: MIT
// Extreme settings, sizes and numbers of series, and device contexts of all kinds.
#include "tests/graph/MultiGraphTest.h"

#include "tests/support/GdiCounter.h"

#include <climits>
#include <cmath>

TEST_F(MultiGraphTest, AnAttributeDcChangesNoPixel) {
    // Such a DC gets every shape and text by plain calls, measured where the host says.
    for (const int type : kAllTypes)
        for (const int groups : {3, 40}) {
            Make(type).SetTickLimits(-50, 100, 10);
            graph->SetXAxisLabel("across");
            graph->SetLegend(0, "row");
            std::vector<std::vector<int>> values(6);
            for (int i = 0; i < 6 * groups; ++i)
                values[static_cast<std::size_t>(i % 6)].push_back(i * 37 % 140 - 40);
            Fill(values);
            testkit::DibSurface surface(500, 400, RGB(255, 0, 255)), asked(500, 400);
            CDC dc;
            dc.Attach(surface.Dc());
            dc.SetAttribDC(asked.Dc());
            graph->DrawGraph(&dc);
            dc.ReleaseAttribDC();
            dc.Detach();
            EXPECT_TRUE(surface.IsSameAs(*Paint())) << type << " " << groups;
            ::IntersectClipRect(surface.Dc(), 30, 60, 200, 90);
            DrawInto(surface.Dc());
            EXPECT_TRUE(surface.IsSameAs(*Paint())) << type << " a part of it anew";
        }
}

TEST_F(MultiGraphTest, ExtremeSettingsAreDrawnInEveryTypeAndSize) {
    struct Limits {
        int min, max, step;
    };
    const Limits limits[] = {{0, 100, 10},   {0, 0, 1},       {100, 0, 10},          {100, 0, -10},
                             {0, 10, 1000},  {0, 1000000, 1}, {INT_MIN, INT_MAX, 1}, {INT_MAX, INT_MIN, -1},
                             {5, 5, INT_MIN}};
    const double ratios[] = {0.05, -1, 1e300, std::nan(""), HUGE_VAL};
    const int sizes[] = {12, 0, -5, 1, INT_MAX, INT_MIN};
    for (const CSize window : {CSize(320, 240), CSize(1, 1), CSize(90, 60)}) {
        Resize(window.cx, window.cy);
        for (const int type : kAllTypes)
            for (std::size_t i = 0; i < std::size(limits); ++i) {
                Make(type).SetTickLimits(limits[i].min, limits[i].max, limits[i].step);
                graph->Set3DDepthRatio(ratios[i % std::size(ratios)]);
                graph->SetYTickFontSize(sizes[(i + 2) % std::size(sizes)]);
                graph->SetXTickFontSize(sizes[(i + 1) % std::size(sizes)]);
                graph->SetLegendFontSize(sizes[i % std::size(sizes)]);
                graph->SetXAxisAlignment(i % 3 == 0 ? INT_MIN : static_cast<int>(i) * 47);
                graph->Set3DLineBase(i % 2 == 0 ? INT_MAX : -3, static_cast<int>(i));
                graph->SetGraphAlignment(static_cast<int>(i + 1) % 2);
                graph->SetGridLines(TRUE);
                graph->SetGraphTitle(CString('W', 200));
                graph->SetXAxisLabel(i % 2 == 0 ? CString('x', 300) : CString());
                graph->SetYAxisLabel(CString('y', 300));
                if (i % 4 != 0)
                    graph->SetLegend(0, CString('l', 50));
                Add("", {});
                Add("whole range", {{INT_MIN, INT_MAX}, {0, INT_MIN}, {1, INT_MAX}, {INT_MAX, 0}, {2, -1}});
                Fill({{INT_MAX, INT_MAX, INT_MIN, 7}});
                const auto surface = Paint();
                EXPECT_TRUE(window.cx == 1 || surface->At(0, 0) != RGB(255, 0, 255)) << "painted";
                EXPECT_LE(Record()->Lines(testkit::kLine | testkit::kText).size(),
                          static_cast<std::size_t>(window.cx + window.cy) + 60)
                    << type << " " << i;
            }
    }
}

TEST_F(MultiGraphTest, EmptyAndLargeGraphsAreQuickAndKeepInside) {
    for (const int type : kAllTypes) {
        Make(type);
        Paint(); // no series
        Fill({{50}});
        Paint();
        graph->RemoveAllData();
        Paint(); // groups, and no series
        for (int s = 0; s < 1000; ++s) {
            std::vector<std::pair<int, int>> values;
            for (int j = 0; j < 13; ++j)
                values.emplace_back(j, (s * 31 + j * 17) % 400 - 100);
            Add("series", values);
        }
        graph->SetColor(0, RGB(1, 200, 3));
        graph->SetLegend(0, "all");
        graph->SetGraphTitle("Title");
        const auto surface = Paint();
        const testkit::ObjectCounts before = testkit::CountObjects();
        DrawInto(surface->Dc());
        EXPECT_EQ(testkit::CountObjects(), before) << type;
        const RECT title = {1, 1, 499, 36};
        EXPECT_EQ(surface->Count(RGB(1, 200, 3), title), 0) << type;
    }
}

// SPDX-License-Identifier: MIT
// What the tests of CGraph share: a graph in a window, and its drawings.
#pragma once

#include <kavlix/Graph.h>

#include "tests/support/DibSurface.h"
#include "tests/support/MetafileRecorder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

using Strings = std::vector<std::string>;

/// A graph whose state can be read.
class OpenMultiGraph : public CGraph {
public:
    using CGraph::axisLabelsCut, CGraph::CGraph, CGraph::colorList, CGraph::graphAlignment,
        CGraph::graphHasLegend, CGraph::graphLegend, CGraph::graphQuadType, CGraph::legendMaxText,
        CGraph::legendWidth, CGraph::maxTick, CGraph::minTick, CGraph::numTicks, CGraph::printBottom,
        CGraph::quadSetManually, CGraph::seriesList, CGraph::seriesSize, CGraph::tickSpace,
        CGraph::xApexPoint, CGraph::xAxisWidth, CGraph::yApexPoint, CGraph::yAxisHeight;
};

/// Every type of graph.
inline constexpr int kAllTypes[] = {0, 1, 2, 3, 4, 20, 21, 30, 31, 32, 320};

/// Group colours without equals in frame, text or shade.
inline constexpr COLORREF kColours[] = {RGB(200, 0, 0), RGB(0, 200, 0), RGB(0, 0, 200), RGB(200, 200, 0)};

/// The text colour of the recorded DC.
inline constexpr COLORREF kInk = RGB(9, 8, 7);

/// A graph and the window whose size it fills.
class MultiGraphTest : public testing::Test {
protected:
    void SetUp() override { Resize(500, 400); }
    void TearDown() override { window.DestroyWindow(); }

    void Resize(int width, int height) {
        window.DestroyWindow();
        window.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, width, height, nullptr, nullptr);
        size = CSize(width, height);
    }
    /// A new graph of a type, with the four colours.
    OpenMultiGraph& Make(int type) {
        graph = std::make_unique<OpenMultiGraph>(type);
        graph->parentWindow = &window;
        for (int i = 0; i < 4; ++i)
            graph->SetColor(i, kColours[i]);
        return *graph;
    }
    CGraphSeries* Add(const char* label, const std::vector<std::pair<int, int>>& values) {
        auto* const series = new CGraphSeries;
        series->SetLabel(label);
        for (const auto& [key, value] : values)
            series->SetData(key, value);
        graph->AddSeries(series);
        return series;
    }
    /// Series "s0", "s1" ... with the values of groups 0, 1 ...
    void Fill(const std::vector<std::vector<int>>& series) {
        for (std::size_t s = 0; s < series.size(); ++s) {
            std::vector<std::pair<int, int>> values;
            for (std::size_t j = 0; j < series[s].size(); ++j)
                values.emplace_back(static_cast<int>(j), series[s][j]);
            Add(("s" + std::to_string(s)).c_str(), values);
        }
    }
    void DrawInto(HDC target) {
        CDC dc;
        dc.Attach(target);
        graph->DrawGraph(&dc);
        dc.Detach();
    }
    std::unique_ptr<testkit::DibSurface> Paint() {
        auto surface = std::make_unique<testkit::DibSurface>(size.cx, size.cy, RGB(255, 0, 255));
        DrawInto(surface->Dc());
        return surface;
    }
    std::unique_ptr<testkit::MetafileRecorder> Record() {
        auto recorder = std::make_unique<testkit::MetafileRecorder>();
        ::SetTextColor(recorder->Dc(), kInk);
        DrawInto(recorder->Dc());
        recorder->Close();
        return recorder;
    }
    CWnd window;
    CSize size;
    std::unique_ptr<OpenMultiGraph> graph;
};

// SPDX-License-Identifier: MIT
// The fixture of the chart's tests: a chart in a visible parent.
#pragma once

#include <afxwin.h>

#include <kavlix/ChartDraw.h>

#include "tests/support/DibSurface.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/ImportHook.h"
#include "tests/support/MetafileRecorder.h"
#include "tests/support/RecordingParent.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

using Strings = std::vector<std::string>;

/// The chart with its protected members made public. It records the calls of the drawing members. The member
/// that `replaced` names only fills a small rectangle.
class OpenChart : public CChartDraw {
public:
    using CChartDraw::CalcDatas;
    using CChartDraw::m_rectChart;
    using CChartDraw::m_rectPlot;

    Strings calls;
    std::string replaced;

    void PaintBkGnd(CDC& dc) override {
        Step("bkgnd", dc, [&] { CChartDraw::PaintBkGnd(dc); });
    }
    void DrawTitle(CDC& dc) override {
        Step("title", dc, [&] { CChartDraw::DrawTitle(dc); });
    }
    void DrawGrid(CDC& dc) override {
        Step("grid", dc, [&] { CChartDraw::DrawGrid(dc); });
    }
    void DrawDatasets(CDC& dc) override {
        Step("datasets", dc, [&] { CChartDraw::DrawDatasets(dc); });
    }
    void DrawAxes(CDC& dc) override {
        Step("axes", dc, [&] { CChartDraw::DrawAxes(dc); });
    }
    void DrawYScale(CDC& dc) override {
        Step("yscale", dc, [&] { CChartDraw::DrawYScale(dc); });
    }
    void DrawXScale(CDC& dc) override {
        Step("xscale", dc, [&] { CChartDraw::DrawXScale(dc); });
    }

private:
    template <class Base> void Step(const char* name, CDC& dc, Base base) {
        calls.push_back(name);
        if (replaced == name)
            dc.FillSolidRect(1, 2, 3, 4, RGB(1, 2, 3));
        else
            base();
    }
};

/// The order of the drawing members in every picture.
inline const Strings kSequence = {"bkgnd", "title", "grid", "datasets", "axes", "yscale", "xscale"};

/// A chart of 300 x 200 pixels in a visible parent.
class ChartTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(parent.CreateVisible(420, 320));
        ASSERT_TRUE(chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 5));
    }
    void TearDown() override { parent.DestroyWindow(); }

    /// Adds a dataset with these values of y; x is the index. Returns the dataset.
    int Add(const std::vector<double>& values) {
        const int dataset = chart.AddDataset();
        chart.SetData(dataset, nullptr, values.data(), static_cast<int>(values.size()));
        return dataset;
    }
    void Resize(int width, int height) {
        chart.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    }
    /// Makes all texts white, as the background.
    void HideTexts() {
        for (auto set : {&CChartDraw::SetTitleColor, &CChartDraw::SetXLabelColor, &CChartDraw::SetYLabelColor,
                         &CChartDraw::SetXTickLabelColor, &CChartDraw::SetYTickLabelColor})
            (chart.*set)(RGB(255, 255, 255));
    }
    /// Draws the chart into `surface`.
    void PaintInto(testkit::DibSurface& surface) {
        chart.CalcDatas();
        CDC dc;
        dc.Attach(surface.Dc());
        chart.DrawChart(dc);
        dc.Detach();
    }
    /// Records what `draw` draws.
    template <class Draw> void Record(testkit::MetafileRecorder& recorder, Draw draw) {
        chart.CalcDatas();
        CDC dc;
        dc.Attach(recorder.Dc());
        draw(dc);
        dc.Detach();
        recorder.Close();
    }

    testkit::RecordingParent parent;
    OpenChart chart;
};

/// A temporary folder that lists its files.
class TempFolder : public testkit::TempFolder {
public:
    /// The names of the files, sorted.
    Strings Names() const;
};

/// A bitmap of 1 to 32 bits per pixel whose rows lie in memory, the top row first. An 8-bit pixel holds three
/// bits of red, three of green and two of blue, except 255, which is white.
class DibBitmap {
public:
    DibBitmap(int width, int height, int bits);

    CBitmap bitmap;
    /// Copies bytes to the beginning of a row.
    void SetRow(int y, const std::vector<unsigned char>& bytes);

private:
    int m_stride;
    unsigned char* m_rows = nullptr;
};

/// All bytes of a file; empty when it cannot be read.
std::vector<unsigned char> FileBytes(const std::string& path);
/// The number of handles that this process has open.
DWORD OpenHandles();

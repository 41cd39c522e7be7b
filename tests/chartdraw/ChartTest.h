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

#include <string>
#include <vector>

using Strings = std::vector<std::string>;

/// The chart as a derived class sees it. It notes the drawing members' calls, and replaces the one that
/// `replaced` names by a rectangle with a null pen and a brush of its own.
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

/// The order in which every picture is drawn.
inline const Strings kSequence = {"bkgnd", "title", "grid", "datasets", "axes", "yscale", "xscale"};

/// A chart of 300 x 200 pixels in a visible parent.
class ChartTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(parent.CreateVisible(420, 320));
        ASSERT_TRUE(chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 5));
    }
    void TearDown() override { parent.DestroyWindow(); }

    /// A dataset with these points, X being the index.
    int Add(const std::vector<double>& values) {
        const int dataset = chart.AddDataset();
        chart.SetData(dataset, nullptr, values.data(), static_cast<int>(values.size()));
        return dataset;
    }
    void Resize(int width, int height) {
        chart.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    }
    /// Texts as white as the background.
    void HideTexts() {
        for (auto set : {&CChartDraw::SetTitleColor, &CChartDraw::SetXLabelColor, &CChartDraw::SetYLabelColor,
                         &CChartDraw::SetXTickLabelColor, &CChartDraw::SetYTickLabelColor})
            (chart.*set)(RGB(255, 255, 255));
    }
    /// The chart as pixels.
    void PaintInto(testkit::DibSurface& surface) {
        chart.CalcDatas();
        CDC dc;
        dc.Attach(surface.Dc());
        chart.DrawChart(dc);
        dc.Detach();
    }
    /// What one member draws, as records.
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

/// A folder for the files of a test.
class TempFolder : public testkit::TempFolder {
public:
    /// The names of its files, sorted.
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

/// All bytes of a file; none when it cannot be read.
std::vector<unsigned char> FileBytes(const std::string& path);
/// Handles that this process has open.
DWORD OpenHandles();

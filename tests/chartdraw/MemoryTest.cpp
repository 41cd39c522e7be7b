// SPDX-License-Identifier: MIT
// Every operation of the chart when each of its allocations fails.

#include "tests/chartdraw/ChartTest.h"
#include "tests/support/MemoryRule.h"

namespace {

using testkit::OnFailure;

std::string g_path;
constexpr LPCTSTR kLongText = _T("A text that needs memory of its own, wherever it is kept");

/// A chart after CalcDatas. The next point of its first dataset completes a box on two levels.
struct FedChart {
    FedChart() {
        parent.CreateVisible(120, 100);
        chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 80), &parent, 5);
        chart.AddDataset();
        chart.AddDataset();
        for (int i = 0; i < 1023; ++i)
            chart.AddData(0, i, 1e7 + i);
        chart.SetTitle(kLongText);
        chart.CalcDatas();
    }
    ~FedChart() { parent.DestroyWindow(); }

    std::string State() {
        double x = 0, y = 0, step = 0;
        chart.GetXScale(x, y, step);
        std::string state = testkit::BoxText(chart.m_rectPlot) + " to " + std::to_string(y);
        for (int dataset = 0; dataset < chart.GetDatasetCount(); ++dataset, state += " |")
            for (int i = 0; chart.GetData(dataset, i, x, y); ++i)
                state += " " + std::to_string(x) + "," + std::to_string(y);
        return state;
    }

    /// A CString made beforehand, so that the name needs no allocation during the operation.
    CString NextPath() { return std::move(m_paths[--m_left]); }

    testkit::RecordingParent parent;
    struct : CChartDraw {
        using CChartDraw::CalcDatas;
        using CChartDraw::m_rectPlot;
    } chart;
    CChartDraw other;

private:
    CString m_paths[2] = {g_path.c_str(), g_path.c_str()};
    int m_left = 2;
};

} // namespace

TEST(ChartMemoryTest, EveryOperationHappensWholeOrNotAtAll) {
    static const std::vector<double> values(1500, 2.5);
    const TempFolder folder;
    g_path = folder.Path("picture.png");
    const int failures = testkit::ExpectMemoryRule<FedChart>({
        {"AddDataset", OnFailure::Reports, [](FedChart& s) { return s.chart.AddDataset() >= 0; }},
        {"AddData", OnFailure::Reports, [](FedChart& s) { return s.chart.AddData(0, 1, 2) != 0; }},
        {"AddData to none", OnFailure::Reports, [](FedChart& s) { return s.chart.AddData(1, 1, 2) != 0; }},
        {"SetData", OnFailure::Reports,
         [](FedChart& s) { return s.chart.SetData(0, nullptr, values.data(), 1500) != 0; }},
        {"InsertData", OnFailure::Reports, [](FedChart& s) { return s.chart.InsertData(0, 3.5, 2) != 0; }},
        {"AddEvenData", OnFailure::Reports, [](FedChart& s) { return s.chart.AddEvenData(1, 2) != 0; }},
        {"SetGapFactor", OnFailure::Reports, [](FedChart& s) { return s.chart.SetGapFactor(0, 3) != 0; }},
        {"PostData", OnFailure::False, [](FedChart& s) { return s.chart.PostData(0, 1, 2) != 0; }},
        {"LinkView", OnFailure::False, [](FedChart& s) { return s.chart.LinkView(&s.other) != 0; }},
        {"ResetData", OnFailure::Never, [](FedChart& s) { return s.chart.ResetData(0) != 0; }},
        {"RemoveDataset", OnFailure::Never, [](FedChart& s) { return s.chart.RemoveDataset(0) != 0; }},
        {"RemoveAllDatasets", OnFailure::Never,
         [](FedChart& s) { return s.chart.RemoveAllDatasets(), true; }},
        {"SetTextFont", OnFailure::Throws,
         [](FedChart& s) { return s.chart.SetTextFont(200, kLongText), true; }},
        {"CalcDatas", OnFailure::Throws,
         [](FedChart& s) { return s.chart.SetXScale(0, 1e9 + 1), s.chart.CalcDatas(), true; }},
        {"WM_PAINT", OnFailure::Message,
         [](FedChart& s) { return s.chart.Redraw(), s.chart.UpdateWindow(), true; }},
        {"CopyToClipboard", OnFailure::False, [](FedChart& s) { return s.chart.CopyToClipboard(); }},
        {"CopyToFile", OnFailure::False, [](FedChart& s) { return s.chart.CopyToFile(s.NextPath()); }},
        {"SaveData", OnFailure::False, [](FedChart& s) { return s.chart.SaveData(s.NextPath(), FALSE); }},
        {"SaveImage", OnFailure::False, [](FedChart& s) { return s.chart.SaveImage(s.NextPath()); }},
    });
    EXPECT_GT(failures, 100);
}

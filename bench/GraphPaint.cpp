// SPDX-License-Identifier: MIT
// Repaints of the whole graph control, and copies to the clipboard, with 13 series.

#include "bench/GraphSeries.h"

namespace bench {

namespace {

constexpr COLORREF kColors[kSeries] = {
    RGB(200, 0, 0),    RGB(0, 120, 0),   RGB(0, 0, 200),   RGB(180, 120, 0), RGB(150, 0, 150),
    RGB(0, 140, 140),  RGB(80, 80, 80),  RGB(220, 90, 20), RGB(60, 150, 30), RGB(30, 110, 220),
    RGB(230, 30, 120), RGB(110, 60, 20), RGB(0, 0, 0)};
constexpr int kStored = 1000000;
constexpr int kInView = 1000;
constexpr int kCopies = 5;

} // namespace

double BarValue(int series, int group) {
    Randoms randoms(99u + 131u * static_cast<unsigned>(series) + 7u * static_cast<unsigned>(group));
    return 0.1 + 0.9 * std::fabs(randoms.Next());
}

GraphStage::GraphStage() : m_stage(kWidth, kHeight), m_picture(kWidth, kHeight) {
    m_graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_stage, 1);
    for (int i = 0; i < kSeries; ++i) {
        m_graph.SetColor(i, kColors[i]);
        CString name;
        name.Format("Series %d", i + 1);
        m_graph.SetLegend(i, name);
    }
    m_graph.SetGrid(TRUE, TRUE);
    m_graph.SetYVisibleMin(kYMin);
    m_graph.SetYVisibleMax(kYMax);
    m_graph.SetYTickLabelScale(1);
    Pump();
}

void GraphStage::Fill(int count) {
    for (int i = 0; i < kSeries; ++i)
        WalkSeries(i, count, [&](int, double value) { m_graph.AddData(i, value, nullptr); });
    CString text;
    for (int i = 0; i < count; ++i) {
        text.Format("%d", i);
        m_graph.AddXTickLabel(text, "");
    }
}

void GraphPaint(int count) {
    GraphStage stage;
    stage.Fill(count);
    Row row("graph_paint");
    row.Add("samples", count);
    AddPaints(row, stage.Graph()).Print();
}

void GraphCopy(int count) {
    GraphStage stage;
    stage.Fill(count);
    CGraphCtrl& graph = stage.Graph();
    Row row("graph_copy");
    row.Add("samples", count);
    AddSpread(row, "us", Time(kCopies, 1, [&] { graph.CopyToClipboard(); }));
    if (graph.OpenClipboard()) {
        const auto picture = static_cast<HENHMETAFILE>(::GetClipboardData(CF_ENHMETAFILE));
        row.Add("bytes", static_cast<int>(::GetEnhMetaFileBits(picture, 0, nullptr)));
        ::CloseClipboard();
    }
    row.Print();
}

void GraphWindow() {
    Row row("graph_window");
    row.Add("stored", kStored).Add("in_view", kInView);
    const auto measure = [&](int stored, const char* name) {
        GraphStage stage;
        stage.Fill(stored);
        stage.Graph().SetXVisibleMin(stored - kInView);
        stage.Graph().SetXVisibleMax(stored - 1);
        AddPaints(row, stage.Graph(), name);
    };
    measure(kInView, "alone_");
    measure(kStored, "");
    row.Print();
}

// Lines that go up and down across the view. Their height is `beyond` times the height of the view.
void GraphFar() {
    constexpr int kSamples = 1000;
    constexpr int kWide = 60;
    constexpr double kSwing = 50;
    for (const int pen : {0, kWide})
        for (const double beyond : {0.9, 10.0, 30.0, 100.0, 1e3, 1e5, 1e8}) {
            GraphStage stage;
            CGraphCtrl& graph = stage.Graph();
            for (int i = 0; i < kSeries; ++i) {
                graph.SetLineSize(i, pen);
                for (int k = 0; k < kSamples; ++k)
                    graph.AddData(i, (k % 2 == 0 ? kSwing : -kSwing) + i, nullptr);
            }
            graph.SetYVisibleMin(-kSwing / beyond);
            graph.SetYVisibleMax(kSwing / beyond);
            Row row("graph_far");
            row.Add("pen", pen).Add("beyond", beyond);
            AddSpread(row, "us", Time(kCopies, 1, [&] { stage.PaintIntoMemory(); })).Print();
        }
}

void GraphStage::FillBars(int groups) {
    m_graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
    CString text;
    for (int group = 0; group < groups; ++group) {
        for (int i = 0; i < kSeries; ++i)
            m_graph.AddData(i, BarValue(i, group), nullptr);
        text.Format("%d", group);
        m_graph.AddXTickLabel(text, "");
    }
    m_graph.SetYVisibleMin(0);
    m_graph.SetYVisibleMax(1.2);
}

void GraphBars() {
    GraphStage stage;
    stage.FillBars(kGroups);
    Row row("graph_bars");
    row.Add("groups", kGroups);
    AddPaints(row, stage.Graph()).Print();
}

} // namespace bench

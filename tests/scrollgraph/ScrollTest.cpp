// SPDX-License-Identifier: MIT
// The fixture of the scrolling graph's tests.
#include "tests/scrollgraph/ScrollTest.h"

#include <sstream>

void ScrollTest::Stamp(std::initializer_list<long> times) {
    for (const long time : times)
        ASSERT_EQ(graph.AddXTickLabel(time), 1);
}

void ScrollTest::Load(int count, long start, int datasets) {
    for (int i = 0; i < count; ++i) {
        ASSERT_EQ(graph.AddXTickLabel(start + i), 1);
        for (int dataset = 0; dataset < datasets; ++dataset)
            ASSERT_EQ(graph.AddDataForOffline(dataset, i % 100, nullptr), 1);
    }
}

std::string ScrollTest::View() const {
    std::ostringstream text;
    text.precision(12);
    text << "pos " << graph.m_dScrollPos << " max " << graph.m_dScrollMax << " min " << graph.m_dScrollMin
         << " width " << graph.m_dViewWidth;
    return text.str();
}

std::string ScrollTest::Bar() {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    if (!::GetScrollInfo(graph.m_wndScrollBar.m_hWnd, SB_CTL, &info))
        return "none";
    std::ostringstream text;
    text << info.nMin << ".." << info.nMax << " page " << info.nPage << " pos " << info.nPos;
    return text.str();
}

std::unique_ptr<testkit::MetafileRecorder> ScrollTest::RecordXAxis(int ticks) {
    auto recorder = std::make_unique<testkit::MetafileRecorder>();
    CDC dc;
    dc.Attach(recorder->Dc());
    graph.SetMapModeAnisotropic(dc);
    graph.PaintXAxis(dc, ticks);
    dc.Detach();
    recorder->Close();
    return recorder;
}

Strings ScrollTest::Labels(int ticks) {
    Strings labels;
    std::string date;
    for (const std::string& text : RecordXAxis(ticks)->Texts()) {
        if (text.find('/') != std::string::npos) {
            date = text + " ";
        } else {
            labels.push_back(date + text);
            date.clear();
        }
    }
    return labels;
}

Strings ScrollTest::LabelsFrom(long start, double minutes, int ticks) {
    graph.InitData();
    graph.ResetData(0);
    Load(1, start);
    graph.SetHorzRange(minutes);
    return Labels(ticks);
}

CRect ScrollTest::BarUpdateRect() {
    CRect rect(0, 0, 0, 0);
    ::GetUpdateRect(graph.m_wndScrollBar.m_hWnd, &rect, FALSE);
    return rect;
}

std::string Stroke(int x1, int y1, int x2, int y2, const std::string& pen) {
    std::ostringstream text;
    text << "line " << x1 << "," << y1 << " " << x2 << "," << y2 << " pen " << pen;
    return text.str();
}

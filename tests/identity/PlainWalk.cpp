// SPDX-License-Identifier: MIT
// Which samples of a graph are drawn, and where.
#include "tests/identity/PlainWalk.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace plain {

template <class Control> testkit::PlainScale Graph<Control>::YScale(int dataset) const {
    const bool isY2 = m_GraphStyle == CGraphCtrl::GraphStyleTwoAxis && dataset == 1;
    return {isY2 ? m_Y2VisibleMin : m_YVisibleMin, isY2 ? m_Y2VisibleMax : m_YVisibleMax,
            static_cast<int>(m_rectPlot.bottom), -m_rectPlot.Height()};
}

template <class Control> void Graph<Control>::Walk(CDC& dc) {
    const bool twoAxis = m_GraphStyle == CGraphCtrl::GraphStyleTwoAxis;
    const HGDIOBJ brush = ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(NULL_BRUSH));
    for (int i = twoAxis ? 1 : CGraphCtrl::DatasetCount - 1; i >= 0; --i) {
        const CDataset& dataset = m_Datasets[i];
        if (!dataset.m_Visible)
            continue;
        int first = 0, last = 0;
        Range(dataset.GetSize(), first, last);
        const HPEN pen = ::CreatePen(PS_SOLID, dataset.GetLineSize(), dataset.GetColor());
        const HGDIOBJ before = ::SelectObject(dc.GetSafeHdc(), pen);
        std::vector<testkit::PlainSample> samples;
        for (int k = first; k <= last; ++k) {
            double value = 0;
            dataset.GetYData(k, value);
            samples.push_back(
                {PlaceOf(k), YScale(i).Place(value), k == m_SelectionMarkPos && !std::isnan(value)});
        }
        testkit::DrawPlainLine(dc.GetSafeHdc(), samples, dataset.GetMarkerType(), m_rectPlot,
                               this->m_LineCursorColor);
        ::SelectObject(dc.GetSafeHdc(), before);
        ::DeleteObject(pen);
    }
    ::SelectObject(dc.GetSafeHdc(), brush);
}

template <class Control> bool Graph<Control>::ReachesFarWithAWidePen() const {
    CRect close = m_rectPlot;
    close.InflateRect(900, 900);
    for (int i = 0; i < CGraphCtrl::DatasetCount; ++i) {
        const CDataset& dataset = m_Datasets[i];
        int first = 0, last = -1;
        if (dataset.m_Visible && dataset.GetLineSize() >= 45)
            Range(dataset.GetSize(), first, last);
        for (int k = first; k <= last; ++k) {
            double value = 0;
            dataset.GetYData(k, value);
            if (!close.PtInRect(
                    CPoint(PlaceOf(k).value_or(close.left), YScale(i).Place(value).value_or(close.top))))
                return true;
        }
    }
    return false;
}

template <> void Graph<CGraphCtrl>::Range(int size, int& first, int& last) const {
    first = 0;
    last = size - 1;
}
template <> std::optional<int> Graph<CGraphCtrl>::PlaceOf(int index) const {
    return testkit::PlainScale{m_XVisibleMin, m_XVisibleMax, static_cast<int>(m_rectPlot.left),
                               m_rectPlot.Width()}
        .Place(index);
}

template <> void Graph<CScrollGraphCtrl>::Range(int size, int& first, int& last) const {
    // The samples in view and one more on either side.
    const int end = GetCurDataIndex();
    const int begin = LowerBound(m_dScrollPos);
    first = std::max(begin - 1, 0);
    last = std::min({std::min(UpperBound(begin, 0), end - 1) + 1, end - 1, size - 1});
}
template <> std::optional<int> Graph<CScrollGraphCtrl>::PlaceOf(int index) const {
    const double x = static_cast<std::int32_t>(static_cast<std::uint32_t>(GetXOffset(index)) * 20u);
    return testkit::PlainScale{m_dScrollPos, m_dScrollPos + m_dViewWidth, static_cast<int>(m_rectPlot.left),
                               m_rectPlot.Width()}
        .Place(x);
}
template <> double& Graph<CScrollGraphCtrl>::ViewPos() {
    return m_dScrollPos;
}

template class Graph<CGraphCtrl>;
template class Graph<CScrollGraphCtrl>;

} // namespace plain

// SPDX-License-Identifier: MIT
// Painting of the samples in view, and hit tests against them.
#include <kavlix/ScrollGraphCtrl.h>

#include <algorithm>
#include <iterator>

#include "graphctrl/XPositions.h"
#include "scrollgraph/core/TimeLine.h"
#include "scrollgraph/core/TimeMap.h"

using namespace kavlix;

namespace {

/// X positions of samples by their time stamps.
class TimePositions : public XPositions {
public:
    explicit TimePositions(const TimeMap& map) : m_map(map) {}
    std::optional<int> At(int index) const override { return m_map.Position(index); }
    std::optional<int> RunEnd(IndexRange range) const override {
        return m_map.RunEnd(range.first, range.last);
    }

private:
    const TimeMap& m_map;
};

} // namespace

void CScrollGraphCtrl::OnPaint() {
    CGraphCtrl::OnPaint();
    RaiseScrollBar();
}

TimeMap CScrollGraphCtrl::GetTimeMap() const {
    return {*m_arrTime, m_dScrollPos, m_dViewWidth, static_cast<int>(m_rectPlot.left), m_rectPlot.Width()};
}

void CScrollGraphCtrl::DrawGraphData(CDC& dc) {
    if (m_GraphStyle != GraphStyleLine && m_GraphStyle != GraphStyleTwoAxis) {
        CGraphCtrl::DrawGraphData(dc);
        return;
    }
    // One more sample on either side, so that the lines continue beyond the plot's edges.
    const int first = m_arrTime->LowerBound(m_dScrollPos);
    const int end = m_arrTime->Size();
    m_nDrawLast = std::min(std::min(m_arrTime->UpperBound(first, m_dViewWidth), end - 1) + 1, end - 1);
    m_nDrawFirst = std::max(first - 1, 0);

    const TimeMap map = GetTimeMap();
    DrawLines(dc, TimePositions(map), [this](const CDataset& dataset) {
        return IndexRange{m_nDrawFirst, std::min(m_nDrawLast, dataset.GetSize() - 1)};
    });
}

int CScrollGraphCtrl::GetIndexFromPt(CPoint point) {
    if (m_GraphStyle != GraphStyleLine && m_GraphStyle != GraphStyleTwoAxis)
        return CGraphCtrl::GetIndexFromPt(point);
    if (!m_rectPlot.PtInRect(point))
        return -1;
    // The host may have removed samples since the last paint, and a time stamp can lack a sample.
    int sizes[DatasetCount];
    GetSizes(sizes);
    const int longest = *std::max_element(std::begin(sizes), std::end(sizes));
    const int last = std::min({m_nDrawLast, m_arrTime->Size() - 1, longest - 1});
    return GetTimeMap().Nearest(std::max(m_nDrawFirst, 0), last, static_cast<int>(point.x));
}

CPoint CScrollGraphCtrl::GetPtFromIndex(int nIndex) {
    if (m_GraphStyle == GraphStyleBar)
        return CGraphCtrl::GetPtFromIndex(nIndex);
    return PtOfSample(nIndex, m_arrTime->Has(nIndex) ? GetTimeMap().Position(nIndex) : std::nullopt);
}

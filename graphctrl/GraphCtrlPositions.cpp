// SPDX-License-Identifier: MIT
// CGraphCtrl: conversions between samples, values, logical units and client pixels.
#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <optional>

#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/core/HitTest.h"

using namespace kavlix;

LinearMap CGraphCtrl::XMap() const {
    return LinearMap(m_XVisibleMin, m_XVisibleMax, m_rectPlot.left, m_rectPlot.Width());
}

LinearMap CGraphCtrl::YMapOf(int nDataset) const {
    const bool isOnY2 = m_GraphStyle == GraphStyleTwoAxis && nDataset == 1;
    return LinearMap(isOnY2 ? m_Y2VisibleMin : m_YVisibleMin, isOnY2 ? m_Y2VisibleMax : m_YVisibleMax,
                     m_rectPlot.bottom, -m_rectPlot.Height());
}

CPoint CGraphCtrl::ToLogicalPoint(CPoint point) {
    return WindowUnits(m_hWnd).ToLogical(point);
}

CPoint CGraphCtrl::ToClientPoint(CPoint logical) {
    return WindowUnits(m_hWnd).ToDevice(logical);
}

int CGraphCtrl::GetIndexFromPt(CPoint point) {
    int sizes[DatasetCount];
    GetSizes(sizes);
    const Rect plot = ToRect(m_rectPlot);
    switch (m_GraphStyle) {
    case GraphStyleLine:
    case GraphStyleTwoAxis:
        return NearestIndex(XMap(), sizes, DatasetCount, point.x);
    case GraphStyleBar:
        return BarGroupAt(sizes, DatasetCount, m_XVisibleMin, m_XVisibleMax, plot, ToPoint(point));
    default:
        return -1;
    }
}

CPoint CGraphCtrl::GetPtFromIndex(int nIndex) {
    if (m_GraphStyle != GraphStyleBar)
        return PtOfSample(nIndex, XMap().Position(nIndex));
    int sizes[DatasetCount];
    GetSizes(sizes);
    return PtOfSample(nIndex, BarGroupMiddle(sizes, DatasetCount, m_XVisibleMin, m_XVisibleMax,
                                             ToRect(m_rectPlot), nIndex));
}

CPoint CGraphCtrl::PtOfSample(int nIndex, std::optional<int> x) {
    const CRect& plot = m_rectPlot;
    for (int i = 0; i < DatasetCount && x && nIndex >= 0; ++i) {
        double value = 0;
        if (!m_Datasets[i].m_Visible || !m_Datasets[i].GetYData(nIndex, value))
            continue;
        const std::optional<int> y = YMapOf(i).Position(value);
        if (y && !plot.IsRectEmpty())
            return CPoint(std::clamp<int>(*x, plot.left, plot.right),
                          std::clamp<int>(*y, plot.top, plot.bottom));
    }
    return plot.CenterPoint();
}

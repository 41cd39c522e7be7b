// SPDX-License-Identifier: MIT
// CChartDraw: the attributes of datasets.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "gdi/OutOfMemory.h"

using namespace kavlix;

BOOL CChartDraw::ChangeDataset(int nDataset, const std::function<void(Dataset&)>& change) {
    ASSERT(m_State->IsOwnerThread());
    if (!IsDataset(nDataset))
        return FALSE;
    change(m_State->Dataset(nDataset));
    m_Changed = true;
    return TRUE;
}

BOOL CChartDraw::SetColor(int nDataset, COLORREF color) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.color = color; });
}

BOOL CChartDraw::SetLineSize(int nDataset, int nSize) {
    constexpr int kWidestLine = 100;
    return ChangeDataset(nDataset,
                         [=](Dataset& dataset) { dataset.lineSize = std::clamp(nSize, 0, kWidestLine); });
}

BOOL CChartDraw::ShowLine(int nDataset, BOOL bShow) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.showLine = bShow != FALSE; });
}

BOOL CChartDraw::SetMarkerType(int nDataset, CDataset::MarkerType type) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.markerType = type; });
}

BOOL CChartDraw::ShowDataset(int nDataset, BOOL bShow) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.visible = bShow != FALSE; });
}

BOOL CChartDraw::IsDatasetShown(int nDataset) const {
    return IsDataset(nDataset) && m_State->Dataset(nDataset).visible;
}

BOOL CChartDraw::SetDrawStyle(int nDataset, DrawStyle style) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.style = style; });
}

BOOL CChartDraw::SetBarWidth(int nDataset, double dWidth) {
    return std::isfinite(dWidth) && dWidth >= 0 &&
           ChangeDataset(
               nDataset, [=](Dataset& dataset) { dataset.barWidth = dWidth; });
}

BOOL CChartDraw::SetBaseline(int nDataset, double dValue) {
    return std::isfinite(dValue) && ChangeDataset(
                                        nDataset, [=](Dataset& dataset) { dataset.baseline = dValue; });
}

BOOL CChartDraw::SetFillTo(int nDataset, int nOther) {
    if (nOther == nDataset || (nOther != -1 && !IsDataset(nOther)))
        return FALSE;
    const Dataset* const other = nOther == -1 ? nullptr : &m_State->Dataset(nOther);
    return ChangeDataset(nDataset, [=](Dataset& dataset) { dataset.fillTo = other; });
}

BOOL CChartDraw::SetFillColor(int nDataset, COLORREF color) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.fillColor = color; });
}

BOOL CChartDraw::SetDatasetName(int nDataset, CString name) {
    return ChangeDataset(
        nDataset, [&](Dataset& dataset) { dataset.name = std::move(name); });
}

CString CChartDraw::GetDatasetName(int nDataset) const {
    return IsDataset(nDataset) ? m_State->Dataset(nDataset).name : CString();
}

BOOL CChartDraw::UseSecondYAxis(int nDataset, BOOL bSecond) {
    return ChangeDataset(
        nDataset, [=](Dataset& dataset) { dataset.usesY2 = bSecond != FALSE; });
}

BOOL CChartDraw::SetDatasetOrigin(int nDataset, double dOrigin) {
    return std::isfinite(dOrigin) && ChangeDataset(
                                         nDataset, [=](Dataset& dataset) { dataset.origin = dOrigin; });
}

// SPDX-License-Identifier: MIT
// CChartDraw: datasets, their points and attributes.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawDataset.h"
#include "gdi/OutOfMemory.h"

using namespace kavlix;

namespace {

constexpr COLORREF kDatasetColors[] = {
    RGB(31, 110, 190), RGB(214, 69, 65),  RGB(39, 145, 84),   RGB(232, 140, 26), RGB(130, 84, 176),
    RGB(20, 150, 160), RGB(196, 72, 150), RGB(120, 120, 120), RGB(140, 110, 40), RGB(90, 60, 40)};

} // namespace

int CChartDraw::AddDataset() {
    const BOOL added = ReportingExhaustion([this] {
        auto dataset = std::make_unique<Dataset>();
        dataset->color = kDatasetColors[m_NextColor];
        m_Datasets.push_back(std::move(dataset));
    });
    if (!added)
        return -1;
    m_NextColor = (m_NextColor + 1) % std::size(kDatasetColors);
    m_Changed = true;
    return GetDatasetCount() - 1;
}

int CChartDraw::GetDatasetCount() const {
    return static_cast<int>(m_Datasets.size());
}

BOOL CChartDraw::RemoveDataset(int nDataset) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Datasets.erase(m_Datasets.begin() + nDataset);
    m_Changed = true;
    return TRUE;
}

void CChartDraw::RemoveAllDatasets() {
    m_Datasets.clear();
    m_NextColor = 0;
    m_Changed = true;
}

BOOL CChartDraw::ChangeDataset(int nDataset, const std::function<void(Dataset&)>& change) {
    if (!IsDataset(nDataset))
        return FALSE;
    change(*m_Datasets[static_cast<std::size_t>(nDataset)]);
    m_Changed = true;
    return TRUE;
}

BOOL CChartDraw::AddData(int nDataset, double x, double y) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Changed = true;
    return ReportingExhaustion([&] { m_Datasets[static_cast<std::size_t>(nDataset)]->points.Append(x, y); });
}

BOOL CChartDraw::SetData(int nDataset, const double* pX, const double* pY, int nCount) {
    if (nCount < 0 || (nCount > 0 && pY == nullptr) || !IsDataset(nDataset))
        return FALSE;
    m_Changed = true;
    return ReportingExhaustion(
        [&] { m_Datasets[static_cast<std::size_t>(nDataset)]->points.Assign(pX, pY, nCount); });
}

BOOL CChartDraw::ResetData(int nDataset) {
    return ChangeDataset(
        nDataset, [](Dataset& dataset) { dataset.points.Clear(); });
}

int CChartDraw::GetDatasetSize(int nDataset) const {
    return IsDataset(nDataset) ? m_Datasets[static_cast<std::size_t>(nDataset)]->points.Size() : -1;
}

BOOL CChartDraw::GetData(int nDataset, int nIndex, double& x, double& y) const {
    if (nIndex < 0 || nIndex >= GetDatasetSize(nDataset))
        return FALSE;
    const ChartSeries::Value value = m_Datasets[static_cast<std::size_t>(nDataset)]->points[nIndex];
    x = value.x;
    y = value.y;
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

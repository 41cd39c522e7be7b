// SPDX-License-Identifier: MIT
// CChartDraw: datasets and their points. ChartDrawAttributes has the attributes of datasets.
#include <kavlix/ChartDraw.h>

#include <cmath>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartPost.h"
#include "chartdraw/core/StatisticsBetween.h"
#include "gdi/OutOfMemory.h"

using namespace kavlix;

namespace {

constexpr COLORREF kDatasetColors[] = {
    RGB(31, 110, 190), RGB(214, 69, 65),  RGB(39, 145, 84),   RGB(232, 140, 26), RGB(130, 84, 176),
    RGB(20, 150, 160), RGB(196, 72, 150), RGB(120, 120, 120), RGB(140, 110, 40), RGB(90, 60, 40)};

} // namespace

/// Calls `change` with the points of a dataset. Inlined in every caller: AddData runs millions of times a second.
template <class Change> BOOL ChartDrawState::ChangePoints(int nDataset, Change change) {
    ASSERT(IsOwnerThread());
    if (!chart.IsDataset(nDataset))
        return FALSE;
    Changed();
    const BOOL isDone = ReportingExhaustion([&] { change(Dataset(nDataset).points); });
    DataChanged();
    return isDone;
}

int CChartDraw::AddDataset() {
    ASSERT(m_State->IsOwnerThread());
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
    ASSERT(m_State->IsOwnerThread());
    if (!IsDataset(nDataset))
        return FALSE;
    const auto removed = m_Datasets.begin() + nDataset;
    for (const auto& dataset : m_Datasets)
        if (dataset->fillTo == removed->get())
            dataset->fillTo = nullptr;
    m_State->DatasetRemoved(nDataset);
    m_Datasets.erase(removed);
    m_State->posted->queue.RemoveDataset(nDataset);
    m_Changed = true;
    return TRUE;
}

void CChartDraw::RemoveAllDatasets() {
    ASSERT(m_State->IsOwnerThread());
    for (int i = GetDatasetCount() - 1; i >= 0; --i)
        m_State->DatasetRemoved(i);
    m_Datasets.clear();
    m_State->posted->queue.RemoveAllDatasets();
    m_NextColor = 0;
    m_Changed = true;
}

// ---- Points that come ----

BOOL CChartDraw::AddData(int nDataset, double x, double y) {
    return m_State->ChangePoints(
        nDataset, [=](ChartSeries& points) { points.Append(x, y); });
}

BOOL CChartDraw::InsertData(int nDataset, double x, double y) {
    return m_State->ChangePoints(
        nDataset, [=](ChartSeries& points) { points.Insert(x, y); });
}

BOOL CChartDraw::AddEvenData(int nDataset, double y) {
    return m_State->ChangePoints(
        nDataset, [=](ChartSeries& points) { points.AppendEven(y); });
}

BOOL CChartDraw::SetData(int nDataset, const double* pX, const double* pY, int nCount) {
    if (nCount < 0 || (nCount > 0 && pY == nullptr))
        return FALSE;
    return m_State->ChangePoints(nDataset, [=](ChartSeries& points) { points.Assign(pX, pY, nCount); });
}

BOOL CChartDraw::ReplaceLastData(int nDataset, double y) {
    return GetDatasetSize(nDataset) > 0 && m_State->ChangePoints(
                                               nDataset, [=](ChartSeries& points) { points.ReplaceLast(y); });
}

BOOL CChartDraw::SetEvenX(int nDataset, double dStart, double dStep) {
    bool isSet = false;
    m_State->ChangePoints(nDataset, [&](ChartSeries& points) { isSet = points.SetEven(dStart, dStep); });
    return isSet;
}

// ---- Points that go ----

BOOL CChartDraw::ResetData(int nDataset) {
    return m_State->ChangePoints(
        nDataset, [](ChartSeries& points) { points.Clear(); });
}

BOOL CChartDraw::RemoveHeadData(int nDataset, int nCount) {
    return nCount >= 0 && m_State->ChangePoints(
                              nDataset, [=](ChartSeries& points) { points.RemoveHead(nCount); });
}

BOOL CChartDraw::SetHistory(int nDataset, int nMostPoints, double dSpan) {
    return nMostPoints >= 0 && dSpan >= 0 &&
           m_State->ChangePoints(
               nDataset, [=](ChartSeries& points) { points.SetLimit(nMostPoints, dSpan); });
}

BOOL CChartDraw::SetGapLimit(int nDataset, double dLimit) {
    return dLimit >= 0 && m_State->ChangePoints(
                              nDataset, [=](ChartSeries& points) { points.SetGapLimit(dLimit); });
}

BOOL CChartDraw::SetGapFactor(int nDataset, double dFactor) {
    return dFactor >= 0 && m_State->ChangePoints(
                               nDataset, [=](ChartSeries& points) { points.SetGapFactor(dFactor); });
}

// ---- Points that are there ----

int CChartDraw::GetDatasetSize(int nDataset) const {
    return IsDataset(nDataset) ? m_State->Dataset(nDataset).points.Size() : -1;
}

BOOL CChartDraw::GetData(int nDataset, int nIndex, double& x, double& y) const {
    if (nIndex < 0 || nIndex >= GetDatasetSize(nDataset))
        return FALSE;
    const ChartPoint point = m_State->Dataset(nDataset).points[nIndex];
    x = point.x;
    y = point.y;
    return TRUE;
}

int CChartDraw::FindData(int nDataset, double x) const {
    if (!IsDataset(nDataset) || std::isnan(x))
        return -1;
    const Dataset& dataset = m_State->Dataset(nDataset);
    return dataset.points.NearestInX(m_State->ToDataset(dataset, x));
}

BOOL CChartDraw::GetStatistics(int nDataset, double dFrom, double dTo, ChartStatistics& statistics) const {
    if (!IsDataset(nDataset) || std::isnan(dFrom) || std::isnan(dTo))
        return FALSE;
    const Dataset& dataset = m_State->Dataset(nDataset);
    const SpanStatistics found = StatisticsBetween(dataset.points, m_State->ToDataset(dataset, dFrom),
                                                   m_State->ToDataset(dataset, dTo));
    statistics = {found.count, found.min, found.max, found.mean, found.first, found.last};
    return TRUE;
}

// SPDX-License-Identifier: MIT
// CGraphCtrl: samples and tick labels, added, read and removed.
#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <utility>

#include "gdi/OutOfMemory.h"

using namespace kavlix;

namespace {

// The automatic X range ends this far to the right of the newest sample, in sample indices, so that the
// sample lies inside.
constexpr double kBehindNewest = 0.001;

void RemoveLabels(LabelStore& labels, int count) {
    const INT_PTR removed = std::min<INT_PTR>(count, labels.GetSize());
    if (removed > 0)
        labels.RemoveAt(0, removed);
}

} // namespace

BOOL CGraphCtrl::AddData(int nDataset, double y, double* pX) {
    double x = 0;
    if (!IsDataset(nDataset) || !m_Datasets[nDataset].AddData(y, &x))
        return FALSE;
    if (m_AutoXVisible)
        m_XVisibleMax = x + kBehindNewest;
    if (pX != nullptr)
        *pX = x;
    return TRUE;
}

BOOL CGraphCtrl::AddXTickLabel(CString up, CString down) {
    return ReportingExhaustion([&] {
        m_XTickLabelUp.Add(std::move(up));
        try {
            m_XTickLabelDown.Add(std::move(down));
        } catch (...) {
            m_XTickLabelUp.RemoveAt(m_XTickLabelUp.GetUpperBound());
            throw;
        }
    });
}

void CGraphCtrl::ClearSamples(CDataset& dataset) {
    dataset.RemoveAll();
    StoreSelectionMark(-1);
}

void CGraphCtrl::ResetData(int nDataset) {
    if (IsDataset(nDataset))
        ClearSamples(m_Datasets[nDataset]);
}

void CGraphCtrl::ResetAll() {
    // The texts may need memory, so they are made before anything changes.
    CString title(kDefaultTitle), xLabel(kDefaultXLabel), yLabel(kDefaultYLabel);
    for (CDataset& dataset : m_Datasets)
        ClearSamples(dataset);
    ResetXTickLabel();
    ResetLegend();
    SetTitle(std::move(title));
    SetXLabel(std::move(xLabel));
    SetYLabel(std::move(yLabel));
}

int CGraphCtrl::GetDatasetSize(int nDataset) const {
    return IsDataset(nDataset) ? m_Datasets[nDataset].GetSize() : -1;
}

void CGraphCtrl::GetSizes(int (&sizes)[DatasetCount]) const {
    for (int i = 0; i < DatasetCount; ++i)
        sizes[i] = m_Datasets[i].GetSize();
}

BOOL CGraphCtrl::GetYData(int nDataset, int nIndex, double& y) const {
    return IsDataset(nDataset) && m_Datasets[nDataset].GetYData(nIndex, y);
}

BOOL CGraphCtrl::GetXData(int nIndex, CString& up, CString& down) {
    if (nIndex >= 0 && nIndex < m_XTickLabelUp.GetSize())
        up = m_XTickLabelUp.GetAt(nIndex);
    if (nIndex >= 0 && nIndex < m_XTickLabelDown.GetSize())
        down = m_XTickLabelDown.GetAt(nIndex);
    return TRUE;
}

void CGraphCtrl::RemoveHeadData(int nCount) {
    const int count = std::max(nCount, 0);
    for (CDataset& dataset : m_Datasets)
        dataset.RemoveYData(0, count);
    RemoveLabels(m_XTickLabelUp, count);
    RemoveLabels(m_XTickLabelDown, count);
    StoreSelectionMark(-1);
    if (m_AutoXVisible)
        m_XVisibleMax = m_Datasets[0].GetSize() - 1 + kBehindNewest;
    RedrawData();
}

void CGraphCtrl::ResetXTickLabel() {
    m_XTickLabelUp.RemoveAll();
    m_XTickLabelDown.RemoveAll();
}

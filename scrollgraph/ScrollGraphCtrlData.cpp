// SPDX-License-Identifier: MIT
// Samples and time stamps: adding, removing, and their texts in local time.
#include <kavlix/ScrollGraphCtrl.h>

#include <algorithm>
#include <utility>

#include "gdi/OutOfMemory.h"
#include "scrollgraph/SystemClock.h"
#include "scrollgraph/core/TimeLine.h"
#include "scrollgraph/core/ViewWindow.h"

using namespace kavlix;

void CScrollGraphCtrl::InitData() {
    m_arrTime->Clear();
}

void CScrollGraphCtrl::ResetXTickLabel() {
    InitData();
}

int CScrollGraphCtrl::GetCurDataIndex() const {
    return m_arrTime->Size();
}

int CScrollGraphCtrl::AddXTickLabel(long time) {
    return ReportingExhaustion([&] { m_arrTime->Append(static_cast<std::int32_t>(time)); });
}

int CScrollGraphCtrl::AddData(int nDataset, double y, double*) {
    if (!IsDataset(nDataset))
        return 0;
    CDataset& dataset = m_Datasets[nDataset];
    const int size = dataset.GetSize();
    ViewWindow view = GetView();
    const ViewWindow::Arrival arrival =
        view.Arrive(size > 0, m_arrTime->X(size - 1), size > 0 ? m_arrTime->X(size) : 0);
    if (!dataset.AddYData(y))
        return 0;
    m_bFollowed = arrival.followed;
    if (arrival.changed)
        view.Normalize();
    SetView(view);
    if (arrival.changed) {
        // UpdateScrollInfo calls GetScrollInfo, which takes longer than storing 13 samples. So compare first
        // with the values that the scroll bar received last.
        if (view.BarPosition() != m_nToldPos || view.BarPage() != m_nToldPage)
            UpdateScrollInfo();
    }
    return 1;
}

int CScrollGraphCtrl::AddDataForOffline(int nDataset, double y, double*) {
    if (!IsDataset(nDataset))
        return 0;
    m_bFollowed = FALSE;
    return m_Datasets[nDataset].AddYData(y);
}

void CScrollGraphCtrl::SetArraySize(int) {
    // An empty dataset gets a single 0, which needs memory. Allocate this memory before samples are removed,
    // so that a failure removes none.
    const bool hadTime = m_arrTime->Size() > 0;
    int sizes[DatasetCount];
    GetSizes(sizes);
    bool isComplete = hadTime || AddXTickLabel(0);
    for (int i = 0; i < DatasetCount && isComplete; ++i)
        isComplete = sizes[i] > 0 || m_Datasets[i].AddYData(0);
    if (isComplete) {
        for (CDataset& dataset : m_Datasets)
            dataset.KeepOne();
        m_arrTime->KeepOne();
        return;
    }
    for (int i = 0; i < DatasetCount; ++i)
        m_Datasets[i].RemoveYData(sizes[i], m_Datasets[i].GetSize());
    if (!hadTime)
        m_arrTime->Clear();
}

void CScrollGraphCtrl::RemoveHeadData(int nCount) {
    const int count = std::max(nCount, 0);
    for (CDataset& dataset : m_Datasets)
        dataset.RemoveYData(0, count);
    m_arrTime->RemoveHead(count);
    StoreSelectionMark(-1);
    UpdateScrollByRemove();
    RedrawData();
}

BOOL CScrollGraphCtrl::GetXData(int nIndex, CString& date, CString& time) {
    if (!m_arrTime->Has(nIndex))
        return FALSE;
    return WithinResources([&] {
        const CalendarTime local = SystemClock(*m_zoneRules).ToLocal(m_arrTime->At(nIndex));
        CString day;
        CString clock;
        day.Format(_T("%02d/%02d"), local.month, local.day);
        clock.Format(_T("%02d:%02d:%02d"), local.hour, local.minute, local.second);
        date = std::move(day);
        time = std::move(clock);
    });
}

int CScrollGraphCtrl::GetFullTime(int nIndex, CString& text) const {
    if (!m_arrTime->Has(nIndex))
        return 0;
    return WithinResources([&] {
        CString full = FullTimeText(SystemClock(*m_zoneRules).ToLocal(m_arrTime->At(nIndex))).c_str();
        text = std::move(full);
    });
}

long CScrollGraphCtrl::GetXOffset(int nIndex) const {
    return m_arrTime->Offset(nIndex);
}

long CScrollGraphCtrl::GetTimeInfo(int nIndex) const {
    return m_arrTime->At(nIndex);
}

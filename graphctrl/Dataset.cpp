// SPDX-License-Identifier: MIT
// CDataset: the samples of a series.
#include <kavlix/Dataset.h>

#include "gdi/OutOfMemory.h"
#include "graphctrl/core/SampleStore.h"

CDataset::CDataset() : m_Samples(std::make_unique<kavlix::SampleStore>()) {
}

CDataset::~CDataset() = default;

BOOL CDataset::AddData(double y, double* pX) {
    if (!AddYData(y))
        return FALSE;
    if (pX != nullptr)
        *pX = GetSize() - 1;
    return TRUE;
}

BOOL CDataset::AddYData(double y) {
    return m_Samples->TryAppend(y) || AppendReporting(y);
}

BOOL CDataset::AppendReporting(double y) {
    return kavlix::ReportingExhaustion([&] { m_Samples->Append(y); });
}

BOOL CDataset::KeepOne() {
    if (GetSize() == 0)
        return AddYData(0);
    m_Samples->Remove(1, GetSize());
    return TRUE;
}

BOOL CDataset::GetData(int i, double& x, double& y) const {
    if (!GetYData(i, y))
        return FALSE;
    x = i;
    return TRUE;
}

BOOL CDataset::GetYData(int i, double& y) const {
    if (!m_Samples->Has(i))
        return FALSE;
    y = (*m_Samples)[i];
    return TRUE;
}

BOOL CDataset::RemoveYData(int i, int count) {
    if (!m_Samples->Has(i))
        return FALSE;
    m_Samples->Remove(i, count);
    return TRUE;
}

void CDataset::RemoveAll() {
    m_Samples->Clear();
}

int CDataset::GetSize() const {
    return m_Samples->Size();
}

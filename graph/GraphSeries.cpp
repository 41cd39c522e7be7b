// SPDX-License-Identifier: MIT
// The values of a series.
#include <kavlix/GraphSeries.h>

#include <memory>
#include <utility>

#include "graph/OwningList.h"

using namespace kavlix;

CGraphValue::~CGraphValue() = default;

CGraphSeries::CGraphSeries() : dataValues(new CObList(kListBlock)) {
}

CGraphSeries::~CGraphSeries() {
    DeleteAll(*dataValues);
    delete dataValues;
}

void CGraphSeries::SetData(int group, int value) {
    const auto found = firstRecords.find(group);
    if (found != firstRecords.end())
        found->second->value = value;
    else
        AddPoint(group, value);
}

void CGraphSeries::AddPoint(int x, int y) {
    auto record = std::make_unique<CGraphValue>(x, y);
    const auto [entry, isFirst] = firstRecords.try_emplace(x, record.get());
    try {
        Append(*dataValues, std::move(record));
    } catch (...) {
        if (isFirst)
            firstRecords.erase(entry);
        throw;
    }
}

int CGraphSeries::GetData(int group) const {
    const auto found = firstRecords.find(group);
    return found != firstRecords.end() ? found->second->value : 0;
}

int CGraphSeries::GetDataCount() const {
    return static_cast<int>(dataValues->GetCount());
}

#include <kavlix/GraphSeries.h>

#include <algorithm>
#include <limits>

#include "graph/GraphLists.h"

CGraphValue::~CGraphValue() = default;

CGraphSeries::CGraphSeries()
    : dataValues(new CObList(kavlix::kListBlock)), highestKey(std::numeric_limits<int>::min()) {
}

CGraphSeries::~CGraphSeries() {
    kavlix::DeleteAll(*dataValues);
    delete dataValues;
}

CGraphValue* CGraphSeries::Find(int group) const {
    if (dataValues->IsEmpty() || group > highestKey)
        return nullptr;
    for (POSITION position = dataValues->GetHeadPosition(); position != nullptr;) {
        auto* const record = static_cast<CGraphValue*>(dataValues->GetNext(position));
        if (record->key == group)
            return record;
    }
    return nullptr;
}

void CGraphSeries::SetData(int group, int value) {
    if (CGraphValue* const record = Find(group)) {
        record->value = value;
        return;
    }
    kavlix::Append(*dataValues, std::make_unique<CGraphValue>(group, value));
    highestKey = std::max(highestKey, group);
}

int CGraphSeries::GetData(int group) const {
    const CGraphValue* const record = Find(group);
    return record != nullptr ? record->value : 0;
}

int CGraphSeries::GetDataCount() const {
    return static_cast<int>(dataValues->GetCount());
}

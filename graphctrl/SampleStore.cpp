#include "graphctrl/SampleStore.h"

#include <algorithm>
#include <limits>
#include <new>

namespace kavlix {

void SampleStore::Append(double value) {
    if (m_values.size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    m_values.push_back(value);
}

void SampleStore::Remove(int first, int count) {
    const auto begin = m_values.begin() + first;
    m_values.erase(begin, begin + std::clamp(count, 0, Size() - first));
}

void SampleStore::KeepOne() {
    m_values.resize(1);
    m_values.shrink_to_fit();
}

void SampleStore::Clear() {
    m_values.clear();
    m_values.shrink_to_fit();
}

} // namespace kavlix

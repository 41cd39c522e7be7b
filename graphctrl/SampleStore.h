#pragma once

#include <deque>

namespace kavlix {

/// The values of a series in order of arrival. Appending never moves what is stored; dropping from the head
/// costs what is dropped. Positions along the X axis are the indices and take no storage.
class SampleStore {
public:
    /// Number of values; never above what an int counts.
    int Size() const { return static_cast<int>(m_values.size()); }
    /// Value `i`, which must exist.
    double operator[](int i) const { return m_values[static_cast<std::size_t>(i)]; }
    bool Has(int i) const { return i >= 0 && i < Size(); }

    /// Throws std::bad_alloc, changing nothing, when memory or the range of an int is exhausted.
    void Append(double value);
    /// Removes `count` values from value `first` on, which must exist; a count beyond the end removes up to
    /// the end, one below 1 none.
    void Remove(int first, int count);
    /// Keeps the first value alone, or a single 0 when there is none.
    void KeepOne();
    /// Removes all values and gives their memory back.
    void Clear();

private:
    std::deque<double> m_values;
};

} // namespace kavlix

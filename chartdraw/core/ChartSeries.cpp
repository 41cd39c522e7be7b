// SPDX-License-Identifier: MIT
// ChartSeries: points come and go, all or nothing. ChartSeriesQueries holds what is asked about them.
#include "chartdraw/core/ChartSeries.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <new>
#include <utility>

namespace kavlix {

void ChartSeries::CheckRoom() const {
    if (Size() == std::numeric_limits<int>::max())
        throw std::bad_alloc();
}

void ChartSeries::Append(double x, double y) {
    if (m_unsorted || StepsBack(x)) {
        AppendUnsorted(x, y);
        return;
    }
    CheckRoom();
    const double before = m_sorted.IsEmpty() ? x : m_sorted.LastX();
    PrepareStep(before, x);
    m_sorted.Append(x, y);
    CountStep(before, x, 1);
    FinishAppend(x, y);
}

void ChartSeries::AppendEven(double y) {
    const double x = m_even.At(0);
    if (m_unsorted || StepsBack(x)) {
        AppendUnsorted(x, y);
        ++m_even.offset;
        return;
    }
    CheckRoom();
    const double before = m_sorted.IsEmpty() ? x : m_sorted.LastX();
    PrepareStep(before, x);
    m_sorted.AppendEven(m_even, y);
    ++m_even.offset;
    CountStep(before, x, 1);
    FinishAppend(x, y);
}

void ChartSeries::AppendUnsorted(double x, double y) {
    CheckRoom();
    if (m_unsorted) {
        m_unsorted->Append(x, y);
    } else {
        auto points = std::make_unique<UnsortedPoints>();
        for (int i = 0; i < Size(); ++i)
            points->Append(m_sorted[i].x, m_sorted[i].y);
        points->Append(x, y);
        m_unsorted = std::move(points);
        m_sorted = SortedPoints();
        m_steps = StepHistogram();
        m_effectiveGapLimit.reset();
    }
    FinishAppend(x, y);
}

void ChartSeries::FinishAppend(double x, double y) {
    m_stamp = 0;
    AddToBounds(x, y);
    if (m_countLimit != 0 || m_spanLimit != 0)
        EnforceLimit();
}

int ChartSeries::Insert(double x, double y) {
    const std::int64_t dropped = m_dropped;
    int i = Size();
    if (m_unsorted || !(x >= -kInfinity) || !StepsBack(x)) {
        Append(x, y);
    } else {
        CheckRoom();
        i = m_sorted.UpperBound(x);
        const double next = m_sorted[i].x;
        const double before = i > 0 ? m_sorted[i - 1].x : x;
        PrepareStep(before, x);
        PrepareStep(x, next);
        m_sorted.Insert(i, x, y);
        if (i > 0)
            CountStep(before, next, -1);
        CountStep(before, x, 1);
        CountStep(x, next, 1);
        FinishAppend(x, y);
    }
    return static_cast<int>(std::max<std::int64_t>(i - (m_dropped - dropped), -1));
}

bool ChartSeries::ReplaceLast(double y) {
    if (Size() == 0)
        return false;
    m_stamp = 0;
    const ChartPoint last = (*this)[Size() - 1];
    ForgetBoundsOf(last);
    if (m_unsorted)
        m_unsorted->ReplaceLast(y);
    else
        m_sorted.ReplaceLast(y);
    AddToBounds(last.x, y);
    return true;
}

void ChartSeries::Assign(const double* pX, const double* pY, int count) {
    ChartSeries other;
    other.m_countLimit = m_countLimit;
    other.m_spanLimit = m_spanLimit;
    other.m_gapLimit = m_gapLimit;
    other.m_gapFactor = m_gapFactor;
    if (pX != nullptr)
        other.m_even = {m_even.start, m_even.step, 0};
    for (int i = 0; i < count; ++i)
        if (pX != nullptr)
            other.Append(pX[i], pY[i]);
        else
            other.AppendEven(pY[i]);
    other.m_dropped = 0;
    *this = std::move(other);
}

void ChartSeries::Clear() {
    m_sorted = SortedPoints();
    m_unsorted.reset();
    m_stamp = 0;
    m_dropped = 0;
    m_even.offset = 0;
    m_steps = StepHistogram();
    m_effectiveGapLimit.reset();
    m_bounds = PointBounds();
    m_isXKnown = m_isYKnown = true;
}

void ChartSeries::RemoveHead(int count) {
    constexpr int kFew = 64; // the bounds are searched again after larger removals
    count = std::clamp(count, 0, Size());
    if (count == 0)
        return;
    m_stamp = 0;
    m_isXKnown = false;
    if (count > kFew || m_unsorted)
        m_isYKnown = false;
    for (int i = 0; i < count && !m_unsorted && (m_isYKnown || m_gapFactor > 0); ++i) {
        const ChartPoint point = m_sorted[i];
        ForgetBoundsOf(point);
        if (m_gapFactor > 0 && i + 1 < Size())
            CountStep(point.x, m_sorted[i + 1].x, -1);
    }
    if (m_unsorted)
        m_unsorted->RemoveHead(count);
    else
        m_sorted.RemoveHead(count);
    m_dropped += count;
}

void ChartSeries::SetLimit(int count, double span) {
    m_countLimit = std::max(count, 0);
    m_spanLimit = span > 0 ? span : 0;
    EnforceLimit();
}

void ChartSeries::EnforceLimit() {
    int count = m_countLimit == 0 ? 0 : std::max(Size() - m_countLimit, 0);
    if (m_spanLimit != 0 && Size() > 0) {
        constexpr int kFew = 4; // points that are looked at one by one
        const double first = (*this)[Size() - 1].x - m_spanLimit;
        const int begin = count;
        while (count < Size() - 1 && (m_unsorted || count - begin < kFew) && (*this)[count].x < first)
            ++count;
        if (!m_unsorted && count - begin == kFew)
            count = std::max(count, m_sorted.LowerBound(first));
    }
    RemoveHead(count);
}

bool ChartSeries::SetEven(double start, double step) {
    if (Size() != 0 || !std::isfinite(start) || !std::isfinite(step) || step <= 0)
        return false;
    m_even = {start, step, 0};
    return true;
}

void ChartSeries::SetGapLimit(double dx) {
    m_stamp = 0;
    m_gapLimit = dx > 0 ? dx : 0;
    m_effectiveGapLimit.reset();
}

void ChartSeries::SetGapFactor(double k) {
    StepHistogram steps;
    const double factor = k > 0 ? k : 0;
    for (int i = 1; i < Size() && factor > 0 && !m_unsorted; ++i) {
        const double step = m_sorted[i].x - m_sorted[i - 1].x;
        steps.Prepare(step);
        steps.Add(step, 1);
    }
    m_stamp = 0;
    m_steps = std::move(steps);
    m_gapFactor = factor;
    m_effectiveGapLimit.reset();
}

void ChartSeries::CountStep(double from, double to, int count) {
    if (m_gapFactor <= 0)
        return;
    m_steps.Add(to - from, count);
    m_effectiveGapLimit.reset();
}

std::uint64_t ChartSeries::Stamp() const {
    static std::atomic<std::uint64_t> last{0};
    if (m_stamp == 0)
        m_stamp = ++last;
    return m_stamp;
}

double ChartSeries::GapLimit() const {
    if (!m_effectiveGapLimit) {
        double limit = kInfinity;
        if (m_gapLimit > 0)
            limit = m_gapLimit;
        if (m_gapFactor > 0)
            limit = std::min(limit, m_gapFactor * m_steps.Median());
        m_effectiveGapLimit = m_unsorted ? kInfinity : limit;
    }
    return *m_effectiveGapLimit;
}

} // namespace kavlix

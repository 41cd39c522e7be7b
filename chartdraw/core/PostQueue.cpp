// SPDX-License-Identifier: MIT
// PostQueue: two buffers that trade places, and the states of waking.
#include "chartdraw/core/PostQueue.h"

#include <algorithm>
#include <utility>

namespace kavlix {

void PostQueue::Open(Wake wake) {
    Close();
    const Lock lock(m_mutex);
    m_wake = std::move(wake);
}

void PostQueue::Close() {
    std::vector<PostedPoint> dropped; // freed after the lock
    const Lock lock(m_mutex);
    m_wake = nullptr;
    m_state = State::Waiting;
    m_points.swap(dropped);
}

bool PostQueue::IsWakingDue() const {
    switch (m_state) {
    case State::Waiting:
        return !m_points.empty();
    case State::Taken: // the owner is not ready, but points would be lost soon
        return m_points.size() >= (m_capacity + 1) / 2;
    default:
        return false;
    }
}

bool PostQueue::WakeIfDue() {
    if (!IsWakingDue() || !m_wake)
        return true;
    if (!m_wake())
        return false;
    m_state = State::Woken;
    return true;
}

int PostQueue::Push(int dataset, const double* pX, const double* pY, int count) {
    const Lock lock(m_mutex);
    const std::size_t size = m_points.size();
    if (!m_wake || size >= m_capacity || count <= 0)
        return 0;
    const std::size_t grown = std::min(m_capacity, size + static_cast<std::size_t>(count));
    if (grown > m_points.capacity())
        m_points.reserve(std::min(m_capacity, std::max(grown, 2 * size)));
    for (std::size_t i = 0; i < grown - size; ++i)
        m_points.push_back({pX[i], pY[i], dataset});
    if (!WakeIfDue()) {
        m_points.resize(size);
        return 0;
    }
    return static_cast<int>(grown - size);
}

int PostQueue::Count() const {
    const Lock lock(m_mutex);
    return static_cast<int>(m_points.size());
}

void PostQueue::SetCapacity(int capacity) {
    const Lock lock(m_mutex);
    m_capacity = static_cast<std::size_t>(std::clamp(capacity, 1, kLargestCapacity));
    WakeIfDue();
}

const std::vector<PostedPoint>& PostQueue::Take() {
    m_taken.clear();
    const Lock lock(m_mutex);
    m_points.swap(m_taken);
    m_state = State::Taken;
    return m_taken;
}

void PostQueue::Release() {
    constexpr std::size_t kKept = 4096;
    if (m_taken.capacity() > std::max(kKept, 4 * m_taken.size()))
        std::vector<PostedPoint>().swap(m_taken);
    m_taken.clear();
}

void PostQueue::Ready() {
    const Lock lock(m_mutex);
    if (m_state != State::Taken)
        return;
    m_state = State::Waiting;
    WakeIfDue();
}

bool PostQueue::ReadyIfEmpty() {
    const Lock lock(m_mutex);
    if (m_state != State::Taken)
        return true;
    if (!m_points.empty())
        return false;
    m_state = State::Waiting;
    return true;
}

void PostQueue::RemoveDataset(int dataset) {
    const Lock lock(m_mutex);
    for (PostedPoint& point : m_points)
        if (point.dataset == dataset)
            point.dataset = -1;
        else if (point.dataset > dataset)
            --point.dataset;
}

void PostQueue::RemoveAllDatasets() {
    const Lock lock(m_mutex);
    for (PostedPoint& point : m_points)
        point.dataset = -1;
}

} // namespace kavlix

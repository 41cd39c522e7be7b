// SPDX-License-Identifier: MIT
// PostQueue: points on their way from any thread to the thread of a chart.
#pragma once

#include <functional>
#include <mutex>
#include <vector>

namespace kavlix {

struct PostedPoint {
    double x;
    double y;
    int dataset;
};

/// A bounded queue of points. Any number of threads push, the owner's thread takes all queued points at once.
/// Push, Count and SetCapacity may be called on any thread, the other functions on the owner's thread.
///
/// The queue wakes the owner once, and then waits until the owner has taken the points and is ready for more: however
/// fast the points come, the owner can paint and handle input between two takings. Only when the queue is half full,
/// it wakes an owner that is not ready.
class PostQueue {
public:
    static constexpr int kDefaultCapacity = 1 << 20;
    static constexpr int kLargestCapacity = 1 << 27;
    /// Tells the owner to call Take. False when that is impossible. Called on the pushing thread, with the queue
    /// locked.
    using Wake = std::function<bool()>;

    /// Before Open and after Close nothing can be pushed.
    void Open(Wake wake);
    /// Drops the queued points and frees their memory.
    void Close();

    /// Queues the first of `count` points, as many as there is room for. The result is their number; 0 too when the
    /// queue is closed and when the owner cannot be woken. Throws what an allocation throws, with nothing queued.
    int Push(int dataset, const double* pX, const double* pY, int count);
    int Count() const;
    /// Limits the number of queued points, 1 to kLargestCapacity. Points beyond stay.
    void SetCapacity(int capacity);

    /// Takes all queued points in the order of Push. They exist until Release.
    const std::vector<PostedPoint>& Take();
    /// Frees what is far too large of the memory of the points taken.
    void Release();
    /// The owner is ready for more points: the queue wakes it now, or as soon as there are points.
    void Ready();
    /// The same, but false, with nothing changed, when there are points already.
    bool ReadyIfEmpty();

    /// Moves queued points with their datasets, whose indices decrease by one behind `dataset`. The points of
    /// `dataset` keep their place and belong to dataset -1.
    void RemoveDataset(int dataset);
    void RemoveAllDatasets(); ///< all queued points belong to dataset -1

private:
    enum class State { Waiting, Woken, Taken };
    using Lock = std::lock_guard<std::mutex>;

    bool IsWakingDue() const;
    bool WakeIfDue();

    mutable std::mutex m_mutex; ///< guards all members but m_taken
    Wake m_wake;                ///< empty while the queue is closed
    State m_state = State::Waiting;
    std::vector<PostedPoint> m_points;
    std::size_t m_capacity = kDefaultCapacity;
    std::vector<PostedPoint> m_taken; ///< the owner's; trades places with m_points
};

} // namespace kavlix

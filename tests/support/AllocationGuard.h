#pragma once

#include <cstddef>

namespace testkit {

/// The test program replaces `operator new`. While a guard lives, every block asked for by code that is
/// linked into the program itself gets guard bytes behind it, which are checked when the block is given back
/// and when the guard ends. Code inside a DLL has an `operator new` of its own and is not reached: link its
/// objects statically, or use FailingAllocations.
///
/// One guard at a time, on one thread.
class AllocationGuard {
public:
    AllocationGuard();
    AllocationGuard(const AllocationGuard&) = delete;
    AllocationGuard& operator=(const AllocationGuard&) = delete;
    ~AllocationGuard();

    /// Lets the n-th allocation from now on (1 = the next) fail, once: the new-handler throws, as in any
    /// host, CMemoryException*. 0 calls it off.
    void FailAt(int n);
    /// Whether the allocation that FailAt() named was reached.
    bool Failed() const;

    /// Allocations since the guard began.
    int Count() const;
    /// Blocks made since the guard began that are still alive.
    int Live() const;
    /// Blocks found with overwritten guard bytes so far, the living ones looked at now.
    int Damaged() const;
};

} // namespace testkit

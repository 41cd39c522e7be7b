// SPDX-License-Identifier: MIT
// Memory of the code under test: failing allocations, leaks, and writes behind a block.
#pragma once

#include "tests/support/ImportHook.h"

#include <list>

namespace testkit {

/// Watches the allocations of the test program, the C++ run-time library and the DLLs under test. The guard
/// replaces the C run time's allocation functions in their import tables. When an allocation fails, `new`
/// calls the new-handler, which throws CMemoryException*, as in any host.
///
/// Every block gets guard bytes behind it, which are checked when the block is freed.
///
/// Only one guard may exist at a time. Blocks of other threads than the guard's are not watched. MemoryRule.h
/// tries whole operations at every allocation.
class AllocationGuard {
public:
    /// With `failsInTest` false, `new` in the test program itself never fails. Texts of its long std::strings
    /// can fail all the same, because the C++ run-time library allocates them.
    explicit AllocationGuard(bool failsInTest = true);
    AllocationGuard(const AllocationGuard&) = delete;
    AllocationGuard& operator=(const AllocationGuard&) = delete;
    ~AllocationGuard();

    /// Whether the C++ run-time library's allocations are watched.
    bool Installed() const { return m_installed; }
    /// Lets the `n`-th allocation from now on fail (1: the next one), alone or, `forGood`, with all that
    /// follow. With 0 no allocation fails.
    void FailAt(int n, bool forGood = false);
    /// Allocations that have failed since the last call of FailAt.
    int Failed() const;

    /// Blocks allocated since the guard began, minus blocks freed since then.
    int Live() const;
    /// Blocks whose guard bytes were overwritten, existing ones and freed ones.
    int Damaged() const;

private:
    void Hook(const std::string& module, bool fails);

    std::list<ImportHook> m_hooks;
    bool m_installed = false;
};

} // namespace testkit

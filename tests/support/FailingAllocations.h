// Memory that runs out inside the DLLs under test, in the way that hosts meet it.
#pragma once

#include "tests/support/ImportHook.h"

#include <cstddef>
#include <list>

namespace testkit {

/// While it lives, the C runtime's `malloc` can be made to answer null for the C++ run-time library and the
/// DLLs under test. Their `new` then asks the new-handler, which throws CMemoryException*, as in any host.
/// The test program's own `new` is not reached; its long std::strings are, since the run-time library
/// allocates their text: make none while a failure is called for.
///
/// One at a time, on one thread. MemoryRule.h tries whole operations at every allocation.
class FailingAllocations {
public:
    FailingAllocations();
    FailingAllocations(const FailingAllocations&) = delete;
    FailingAllocations& operator=(const FailingAllocations&) = delete;
    ~FailingAllocations();

    /// Whether the allocations of the C++ run-time library pass through here.
    bool Installed() const { return m_installed; }
    /// Lets the allocation behind the next `successes` fail, alone or, `forGood`, with all that follow.
    /// Negative calls it off.
    void FailAfter(int successes, bool forGood = false);
    /// Allocations that have failed so far.
    int Refused() const;
    /// Blocks that exist beyond those at the beginning, the test program's own among them.
    int Live() const;

private:
    void Hook(const std::string& module, bool fails);

    std::list<ImportHook> m_hooks;
    bool m_installed = false;
};

} // namespace testkit

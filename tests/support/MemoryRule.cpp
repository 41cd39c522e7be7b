// SPDX-License-Identifier: MIT
// Runs the operations of a table with failing allocations, and checks each outcome.
#include "tests/support/MemoryRule.h"

#include "tests/support/AllocationGuard.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/RecordingParent.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace testkit {
namespace {

constexpr int kMostAllocations = 20000;

int boxes = 0;

int WINAPI CountedBox(HWND, LPCTSTR text, LPCTSTR, UINT type) {
    boxes += *text != 0 && (type & MB_TYPEMASK) == MB_OK;
    return IDOK;
}

struct Outcome {
    bool result = false;
    bool threw = false;
    bool refused = false;
};

/// Runs the operation with allocation `failAt` failing; with 0 none fails.
Outcome Run(MemoryTrial& trial, AllocationGuard& memory, int failAt, bool forGood) {
    Outcome outcome;
    const auto note = [&] {
        outcome.refused = memory.Failed() > 0;
        memory.FailAt(0);
    };
    boxes = 0;
    try {
        memory.FailAt(failAt, forGood);
        outcome.result = trial.Run();
        note();
    } catch (CException* exception) {
        note();
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CMemoryException)) ||
                    exception->IsKindOf(RUNTIME_CLASS(CResourceException)));
        exception->Delete();
        outcome.threw = true;
    } catch (...) {
        note();
        ADD_FAILURE() << "hosts catch only exceptions of the class library";
        outcome.threw = true;
    }
    return outcome;
}

/// Handles all messages and deletes the class library's temporary objects.
void Rest() {
    Pump();
    AfxGetThread()->OnIdle(0);
    AfxGetThread()->OnIdle(1);
}

/// The failures of the running test.
int Failures() {
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

void Check(MemoryTrial& trial, AllocationGuard& memory, const Outcome& outcome, OnFailure onFailure,
           const std::string& before, const std::string& done) {
    const bool failed = outcome.threw || !outcome.result;
    EXPECT_FALSE(failed && onFailure == OnFailure::Never)
        << (outcome.threw ? "it threw" : "it answers false");
    EXPECT_FALSE(outcome.threw && onFailure != OnFailure::Throws) << "an exception left the operation";
    const std::string after = trial.State();
    if (onFailure == OnFailure::Message) {
        EXPECT_EQ(after, after == before ? before : done);
    } else {
        EXPECT_EQ(boxes, failed && onFailure == OnFailure::Reports) << "message boxes";
        EXPECT_EQ(after, failed ? before : done);
    }
    if (!failed || onFailure == OnFailure::Message)
        return;
    EXPECT_TRUE(Run(trial, memory, 0, false).result) << "memory is back";
    EXPECT_EQ(trial.State(), done) << "memory is back";
}

} // namespace

int TryEveryAllocation(const char* name, OnFailure onFailure, bool keepsPart,
                       const std::function<std::unique_ptr<MemoryTrial>()>& make) {
    SCOPED_TRACE(name);
    const int failuresBefore = Failures();
    AllocationGuard memory(false);
    const ImportHook box("KavlixMfc.dll", "MessageBoxA", reinterpret_cast<void*>(&CountedBox));
    EXPECT_TRUE(memory.Installed() && box.Installed());
    std::string before, done;
    for (int warm = 0; warm < 2; ++warm) { // the first run makes objects that the system keeps
        const auto trial = make();
        before = trial->State();
        EXPECT_TRUE(Run(*trial, memory, 0, false).result) << "with memory";
        done = trial->State();
    }
    Rest();
    const ObjectCounts objects = CountObjects();
    int failures = 0;
    for (const bool forGood : {false, true}) {
        for (int failAt = 1;; ++failAt) {
            SCOPED_TRACE((forGood ? "from allocation " : "at allocation ") + std::to_string(failAt));
            const int live = memory.Live();
            bool refused = false;
            {
                const auto trial = make();
                const Outcome outcome = Run(*trial, memory, failAt, forGood);
                refused = outcome.refused;
                failures += refused;
                if (keepsPart)
                    EXPECT_FALSE(outcome.threw);
                else
                    Check(*trial, memory, outcome, onFailure, before, done);
            }
            Rest();
            if (Failures() != failuresBefore) // the failure messages are allocated memory
                return failures;
            EXPECT_EQ(memory.Live(), live) << "blocks leaked";
            if (!refused)
                break;
            if (failAt == kMostAllocations) {
                ADD_FAILURE() << "without end";
                return failures;
            }
        }
    }
    EXPECT_EQ(CountObjects(), objects);
    return failures;
}

} // namespace testkit

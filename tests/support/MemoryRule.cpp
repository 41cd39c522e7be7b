// Runs a table of operations under failing allocations and checks each outcome.
#include "tests/support/MemoryRule.h"

#include "tests/support/FailingAllocations.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/RecordingParent.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace testkit {
namespace {

constexpr int kMostAllocations = 20000;

int boxes = 0;

int WINAPI CountedBox(HWND, LPCSTR text, LPCSTR, UINT type) {
    boxes += *text != '\0' && (type & MB_TYPEMASK) == MB_OK;
    return IDOK;
}

struct Outcome {
    bool result = false;
    bool threw = false;
    bool refused = false;
};

/// `after` below 0: with all the memory there is.
Outcome Run(MemoryTrial& trial, FailingAllocations& memory, int after, bool forGood) {
    Outcome outcome;
    const int refused = memory.Refused();
    boxes = 0;
    try {
        memory.FailAfter(after, forGood);
        outcome.result = trial.Run();
        memory.FailAfter(-1);
    } catch (CMemoryException* exception) {
        memory.FailAfter(-1);
        exception->Delete();
        outcome.threw = true;
    } catch (CResourceException* exception) {
        memory.FailAfter(-1);
        exception->Delete();
        outcome.threw = true;
    } catch (...) {
        memory.FailAfter(-1);
        ADD_FAILURE() << "hosts catch the class library's exceptions alone";
        outcome.threw = true;
    }
    outcome.refused = memory.Refused() != refused;
    return outcome;
}

/// Leaves nothing in the queue and no temporary object.
void Rest() {
    Pump();
    AfxGetThread()->OnIdle(0);
    AfxGetThread()->OnIdle(1);
}

/// Of the running test so far.
int Failures() {
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

void Check(MemoryTrial& trial, FailingAllocations& memory, const Outcome& outcome, OnFailure onFailure,
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
    EXPECT_TRUE(Run(trial, memory, -1, false).result) << "memory is back";
    EXPECT_EQ(trial.State(), done) << "memory is back";
}

} // namespace

int TryEveryAllocation(const char* name, OnFailure onFailure, bool keepsPart,
                       const std::function<std::unique_ptr<MemoryTrial>()>& make) {
    SCOPED_TRACE(name);
    const int failuresBefore = Failures();
    FailingAllocations memory;
    const ImportHook box("KavlixMfc.dll", "MessageBoxA", reinterpret_cast<void*>(&CountedBox));
    EXPECT_TRUE(memory.Installed() && box.Installed());
    std::string before, done;
    for (int warm = 0; warm < 2; ++warm) { // the first makes what the platform keeps for itself
        const auto trial = make();
        before = trial->State();
        EXPECT_TRUE(Run(*trial, memory, -1, false).result) << "with memory";
        done = trial->State();
    }
    Rest();
    const ObjectCounts objects = CountObjects();
    int failures = 0;
    for (const bool forGood : {false, true}) {
        for (int after = 0;; ++after) {
            SCOPED_TRACE((forGood ? "from allocation " : "at allocation ") + std::to_string(after + 1));
            const int live = memory.Live();
            bool refused = false;
            {
                const auto trial = make();
                const Outcome outcome = Run(*trial, memory, after, forGood);
                refused = outcome.refused;
                failures += refused;
                if (keepsPart)
                    EXPECT_FALSE(outcome.threw);
                else
                    Check(*trial, memory, outcome, onFailure, before, done);
            }
            Rest();
            if (Failures() != failuresBefore) // whose record takes memory too
                return failures;
            EXPECT_EQ(memory.Live(), live) << "blocks leaked";
            if (!refused)
                break;
            if (after == kMostAllocations) {
                ADD_FAILURE() << "without end";
                return failures;
            }
        }
    }
    EXPECT_EQ(CountObjects(), objects);
    return failures;
}

} // namespace testkit

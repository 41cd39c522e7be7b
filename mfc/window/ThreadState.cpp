// SPDX-License-Identifier: MIT
// The state of each thread.

#include "mfc/window/ThreadState.h"

#include "afx/DC.h"

namespace {

// A plain pointer without a destructor: global objects that own windows may be destroyed after the thread's
// own storage. They then get a new state, which is never deleted.
thread_local ThreadState* t_state = nullptr;

struct StateDeleter {
    ~StateDeleter() {
        delete t_state;
        t_state = nullptr;
    }
};

} // namespace

ThreadState& CurrentThreadState() {
    if (t_state == nullptr) {
        static thread_local StateDeleter deleter;
        (void)deleter;
        t_state = new ThreadState;
    }
    return *t_state;
}

void DeleteTemporariesWhenIdle() {
    ThreadState& state = CurrentThreadState();
    if (state.messageDepth != 0)
        return;
    state.windows.DeleteTemporaries();
    AfxDeleteTempGdiMaps();
}

void AfxGetWndMapCounts(std::size_t* pPermanent, std::size_t* pTemporary) {
    const ThreadState& state = CurrentThreadState();
    if (pPermanent != nullptr)
        *pPermanent = state.windows.PermanentCount();
    if (pTemporary != nullptr)
        *pTemporary = state.windows.TemporaryCount();
}

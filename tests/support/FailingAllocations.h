#pragma once

#include "tests/support/ImportHook.h"

#include <cstddef>
#include <new>

namespace testkit {

/// While it lives, allocations inside one loaded module can be made to fail. One at a time.
class FailingAllocations {
public:
    explicit FailingAllocations(const std::string& module = "Kavlix.dll")
        : m_hook(module, sizeof(void*) == 8 ? "_Znwy" : "_Znwj", reinterpret_cast<void*>(&Allocate)) {
        s_original = reinterpret_cast<decltype(s_original)>(m_hook.Original());
        s_left = -1;
        s_refused = 0;
    }
    /// Whether the module allocates through an import that could be replaced.
    bool Installed() const { return m_hook.Installed(); }
    /// Lets the allocation behind the next `successes` fail, once. Negative calls it off.
    void FailAfter(int successes) { s_left = successes; }
    /// Allocations that have failed so far.
    int Refused() const { return s_refused; }

private:
    static void* Allocate(std::size_t size) {
        if (s_left >= 0 && s_left-- == 0) {
            ++s_refused;
            throw std::bad_alloc();
        }
        return s_original(size);
    }

    static inline void* (*s_original)(std::size_t) = nullptr;
    static inline int s_left = -1;
    static inline int s_refused = 0;
    ImportHook m_hook;
};

} // namespace testkit

// SPDX-License-Identifier: MIT
// Detects accesses to objects after their deletion.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace testkit {

/// Memory pages without access rights. The first access to a block is counted, and then allowed to continue.
class ForbiddenPages {
public:
    ForbiddenPages() {
        s_touched = 0;
        m_handler = ::AddVectoredExceptionHandler(1, &ForbiddenPages::OnException);
    }
    ForbiddenPages(const ForbiddenPages&) = delete;
    ForbiddenPages& operator=(const ForbiddenPages&) = delete;
    ~ForbiddenPages() {
        ::RemoveVectoredExceptionHandler(m_handler);
        for (const Block& block : s_blocks)
            ::VirtualFree(block.begin, 0, MEM_RELEASE);
        s_blocks.clear();
    }
    /// The number of blocks that were accessed.
    static int Touched() { return s_touched; }

    static void* Take(std::size_t size) {
        return ::VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    /// Forbids access to `memory`. The pages are freed only with this object, so they are not reused before.
    static void Forbid(void* memory, std::size_t size) {
        DWORD former = 0;
        ::VirtualProtect(memory, size, PAGE_NOACCESS, &former);
        s_blocks.push_back({static_cast<char*>(memory), size});
    }

private:
    struct Block {
        char* begin;
        std::size_t size;
    };

    static LONG CALLBACK OnException(EXCEPTION_POINTERS* exception);
    static int s_touched;
    static std::vector<Block> s_blocks;
    void* m_handler;
};

/// A `Base` whose memory must not be accessed after its deletion.
template <class Base> class Paged : public Base {
public:
    static void* operator new(std::size_t size) { return ForbiddenPages::Take(size); }
    static void operator delete(void* memory, std::size_t size) { ForbiddenPages::Forbid(memory, size); }
};

} // namespace testkit

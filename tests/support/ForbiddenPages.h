#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace testkit {

/// Memory that nobody may touch any more; who does is let through and counted.
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
    static int Touched() { return s_touched; }

    static void* Take(std::size_t size) {
        return ::VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    /// Until the object ends, the pages are not given to anybody else.
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

/// A `Base` whose memory is forbidden once it is deleted.
template <class Base> class Paged : public Base {
public:
    static void* operator new(std::size_t size) { return ForbiddenPages::Take(size); }
    static void operator delete(void* memory, std::size_t size) { ForbiddenPages::Forbid(memory, size); }
};

} // namespace testkit

#include "tests/support/AllocationGuard.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <new>

namespace {

constexpr std::size_t kGuardBytes = 16;
constexpr unsigned char kPattern = 0xC5;

struct Ledger {
    bool active = false;
    int failAt = 0;
    bool failed = false;
    int count = 0;
    int damaged = 0;
    /// Blocks under guard and their sizes. A block's address stays what malloc gave, since a DLL may free it
    /// with `free`.
    std::map<void*, std::size_t> blocks;
};

Ledger ledger;

/// The ledger's own memory is not under guard.
struct Pause {
    Pause() { ledger.active = false; }
    ~Pause() { ledger.active = true; }
};

bool Intact(const std::pair<void* const, std::size_t>& block) {
    const auto* guard = static_cast<const unsigned char*>(block.first) + block.second;
    for (std::size_t i = 0; i < kGuardBytes; ++i)
        if (guard[i] != kPattern)
            return false;
    return true;
}

void* Allocate(std::size_t size) noexcept {
    if (!ledger.active)
        return std::malloc(size == 0 ? 1 : size);
    ++ledger.count;
    if (ledger.failAt > 0 && --ledger.failAt == 0) {
        ledger.failed = true;
        return nullptr;
    }
    if (size > SIZE_MAX - kGuardBytes)
        return nullptr;
    void* block = std::malloc(size + kGuardBytes);
    if (block != nullptr) {
        std::memset(static_cast<unsigned char*>(block) + size, kPattern, kGuardBytes);
        const Pause pause;
        ledger.blocks[block] = size;
    }
    return block;
}

void Free(void* address) noexcept {
    if (ledger.active) {
        const auto block = ledger.blocks.find(address);
        if (block != ledger.blocks.end()) {
            ledger.damaged += !Intact(*block);
            const Pause pause;
            ledger.blocks.erase(block);
        }
    }
    std::free(address);
}

void* AllocateOrThrow(std::size_t size) {
    for (;;) {
        if (void* block = Allocate(size))
            return block;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr)
            throw std::bad_alloc();
        handler();
    }
}

} // namespace

void* operator new(std::size_t size) {
    return AllocateOrThrow(size);
}
void* operator new[](std::size_t size) {
    return AllocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void operator delete(void* address) noexcept {
    Free(address);
}
void operator delete[](void* address) noexcept {
    Free(address);
}
void operator delete(void* address, std::size_t) noexcept {
    Free(address);
}
void operator delete[](void* address, std::size_t) noexcept {
    Free(address);
}
void operator delete(void* address, const std::nothrow_t&) noexcept {
    Free(address);
}
void operator delete[](void* address, const std::nothrow_t&) noexcept {
    Free(address);
}

namespace testkit {

AllocationGuard::AllocationGuard() {
    if (ledger.active)
        std::abort();
    ledger = {};
    ledger.active = true;
}

AllocationGuard::~AllocationGuard() {
    ledger.active = false;
}

void AllocationGuard::FailAt(int n) {
    ledger.failAt = n;
    ledger.failed = false;
}

bool AllocationGuard::Failed() const {
    return ledger.failed;
}
int AllocationGuard::Count() const {
    return ledger.count;
}
int AllocationGuard::Live() const {
    return static_cast<int>(ledger.blocks.size());
}

int AllocationGuard::Damaged() const {
    int damaged = ledger.damaged;
    for (const auto& block : ledger.blocks)
        damaged += !Intact(block);
    return damaged;
}

} // namespace testkit

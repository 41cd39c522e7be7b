#include "tests/support/AllocationGuard.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t kGuardBytes = 16;
constexpr unsigned char kPattern = 0xC5;
constexpr std::size_t kSlots = 1 << 16;

/// A block under guard. The block's address stays what malloc gave, since a DLL may free it with `free`.
struct Block {
    void* address = nullptr;
    std::size_t size = 0;
};

struct Ledger {
    bool active = false;
    int failAt = 0;
    bool failed = false;
    int count = 0;
    int live = 0;
    int damaged = 0;
    std::array<Block, kSlots> blocks;
};

Ledger ledger;

std::size_t HomeSlot(const void* address) {
    return (reinterpret_cast<std::uintptr_t>(address) >> 4) % kSlots;
}

Block* Find(const void* address) {
    for (std::size_t i = 0, slot = HomeSlot(address); i < kSlots; ++i, slot = (slot + 1) % kSlots) {
        if (ledger.blocks[slot].address == address)
            return &ledger.blocks[slot];
        if (ledger.blocks[slot].address == nullptr)
            return nullptr;
    }
    return nullptr;
}

void* const kGone = &ledger;

void Enter(void* address, std::size_t size) {
    std::memset(static_cast<unsigned char*>(address) + size, kPattern, kGuardBytes);
    if (Block* stale = Find(address)) {
        stale->size = size;
        return;
    }
    for (std::size_t i = 0, slot = HomeSlot(address); i < kSlots; ++i, slot = (slot + 1) % kSlots) {
        if (ledger.blocks[slot].address == nullptr || ledger.blocks[slot].address == kGone) {
            ledger.blocks[slot] = {address, size};
            ++ledger.live;
            return;
        }
    }
    std::abort();
}

bool Intact(const Block& block) {
    const auto* guard = static_cast<const unsigned char*>(block.address) + block.size;
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
    if (block != nullptr)
        Enter(block, size);
    return block;
}

void Free(void* address) noexcept {
    if (address == nullptr)
        return;
    if (ledger.active) {
        if (Block* block = Find(address)) {
            ledger.damaged += !Intact(*block);
            block->address = kGone;
            --ledger.live;
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
    ledger.failAt = ledger.count = ledger.live = ledger.damaged = 0;
    ledger.failed = false;
    ledger.blocks.fill({});
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
    return ledger.live;
}

int AllocationGuard::Damaged() const {
    int damaged = ledger.damaged;
    for (const Block& block : ledger.blocks)
        if (block.address != nullptr && block.address != kGone)
            damaged += !Intact(block);
    return damaged;
}

} // namespace testkit

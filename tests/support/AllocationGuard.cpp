// SPDX-License-Identifier: MIT
// The replacements of malloc, calloc, realloc and free.
#include "tests/support/AllocationGuard.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <utility>

namespace testkit {
namespace {

constexpr std::size_t kGuardBytes = 16;
constexpr unsigned char kPattern = 0xC5;

struct Ledger {
    DWORD thread = 0;
    int failAt = 0; ///< allocations until one fails; 0 for none
    bool forGood = false;
    int failed = 0;
    int live = 0;
    int damaged = 0;
    bool isBusy = false; ///< while the ledger itself allocates
    /// Blocks and their sizes without guard bytes. The address is that of malloc: a module whose imports are
    /// not replaced may free the block.
    std::map<void*, std::size_t> blocks;
} ledger;

// The test program's imports are replaced too, so this file takes the functions from the C run time itself.
decltype(&std::realloc) systemRealloc;
decltype(&std::free) systemFree;
void* (*systemNew)(std::size_t);

bool IsDamaged(const std::pair<void* const, std::size_t>& block) {
    const auto* guard = static_cast<const unsigned char*>(block.first) + block.second;
    return std::any_of(guard, guard + kGuardBytes, [](unsigned char byte) { return byte != kPattern; });
}

bool IsWatched() {
    return ::GetCurrentThreadId() == ledger.thread && !ledger.isBusy;
}

/// False when `block` is not in the ledger, because it is older than the guard.
bool Forget(void* block) {
    const auto found = IsWatched() ? ledger.blocks.find(block) : ledger.blocks.end();
    if (found == ledger.blocks.end())
        return false;
    ledger.damaged += IsDamaged(*found);
    ledger.isBusy = true;
    ledger.blocks.erase(found);
    ledger.isBusy = false;
    return true;
}

void* WatchedRealloc(void* block, std::size_t size) {
    const bool isNew = block == nullptr && IsWatched();
    const bool isOurs = isNew || Forget(block);
    block = systemRealloc(block, isOurs ? size + kGuardBytes : size);
    if (isOurs && block != nullptr) {
        ledger.live += isNew;
        std::memset(static_cast<unsigned char*>(block) + size, kPattern, kGuardBytes);
        ledger.isBusy = true;
        ledger.blocks[block] = size;
        ledger.isBusy = false;
    }
    return block;
}
void* WatchedMalloc(std::size_t size) {
    return WatchedRealloc(nullptr, size);
}
void* WatchedCalloc(std::size_t count, std::size_t size) {
    void* const block = WatchedMalloc(count * size);
    return block == nullptr ? nullptr : std::memset(block, 0, count * size);
}
void WatchedFree(void* block) {
    ledger.live -= block != nullptr && IsWatched();
    Forget(block);
    systemFree(block);
}

bool Fails() {
    if (ledger.failAt == 0 || !IsWatched() || --ledger.failAt > 0)
        return false;
    ledger.failAt = ledger.forGood ? 1 : 0;
    ++ledger.failed;
    return true;
}

void* FailingMalloc(std::size_t size) {
    return Fails() ? nullptr : WatchedMalloc(size);
}
void* FailingCalloc(std::size_t count, std::size_t size) {
    return Fails() ? nullptr : WatchedCalloc(count, size);
}
void* FailingRealloc(void* block, std::size_t size) {
    return Fails() ? nullptr : WatchedRealloc(block, size);
}

/// The test program's `operator new` when its allocations do not fail.
void* OwnNew(std::size_t size) {
    const int failAt = std::exchange(ledger.failAt, 0);
    void* const block = systemNew(size);
    ledger.failAt = failAt;
    return block;
}

template <class Function> void Find(Function& function, const char* module, const char* name) {
    function = reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA(module), name)));
}

} // namespace

AllocationGuard::AllocationGuard(bool failsInTest) {
    if (ledger.thread != 0)
        std::abort();
    constexpr const char* kRuntime = "libstdc++-6.dll";
    constexpr const char* kOperatorNew = "_Znwy";
    Find(systemRealloc, "msvcrt.dll", "realloc");
    Find(systemFree, "msvcrt.dll", "free");
    Find(systemNew, kRuntime, kOperatorNew);
    char self[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, self, MAX_PATH);
    for (const char* module : {kRuntime, "KavlixMfc.dll", "Kavlix.dll"})
        Hook(module, true);
    Hook(self, false);
    if (!failsInTest)
        m_hooks.emplace_back(self, kOperatorNew, reinterpret_cast<void*>(&OwnNew));
    m_installed = m_hooks.front().Installed();
    ledger = {};
    ledger.thread = ::GetCurrentThreadId();
}

AllocationGuard::~AllocationGuard() {
    ledger.thread = 0;
}

void AllocationGuard::Hook(const std::string& module, bool fails) {
    const auto replace = [&](const char* name, auto* replacement) {
        m_hooks.emplace_back(module, name, reinterpret_cast<void*>(replacement));
    };
    replace("malloc", fails ? &FailingMalloc : &WatchedMalloc);
    replace("calloc", fails ? &FailingCalloc : &WatchedCalloc);
    replace("realloc", fails ? &FailingRealloc : &WatchedRealloc);
    replace("free", &WatchedFree);
}

void AllocationGuard::FailAt(int n, bool forGood) {
    ledger.failAt = n;
    ledger.forGood = forGood;
    ledger.failed = 0;
}

int AllocationGuard::Failed() const {
    return ledger.failed;
}

int AllocationGuard::Live() const {
    return ledger.live;
}

int AllocationGuard::Damaged() const {
    return ledger.damaged +
           static_cast<int>(std::count_if(ledger.blocks.begin(), ledger.blocks.end(), IsDamaged));
}

} // namespace testkit

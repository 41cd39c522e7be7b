// Makes the C runtime refuse memory to the modules under test.
#include "tests/support/FailingAllocations.h"

#include <cstdlib>
#include <string>

namespace testkit {
namespace {

struct State {
    DWORD thread = 0;
    int left = -1;
    bool forGood = false;
    int refused = 0;
    int live = 0;
} state;

// The import table of this program is changed too: its own calls must find the runtime's functions here.
decltype(&std::malloc) systemMalloc;
decltype(&std::calloc) systemCalloc;
decltype(&std::realloc) systemRealloc;
decltype(&std::free) systemFree;

bool IsRefused() {
    if (state.left < 0 || ::GetCurrentThreadId() != state.thread)
        return false;
    if (state.left-- > 0)
        return false;
    state.left = state.forGood ? 0 : -1;
    ++state.refused;
    return true;
}

void* Counted(void* block) {
    state.live += block != nullptr;
    return block;
}

void* CountedMalloc(std::size_t size) {
    return Counted(systemMalloc(size));
}
void* CountedCalloc(std::size_t count, std::size_t size) {
    return Counted(systemCalloc(count, size));
}
void* CountedRealloc(void* block, std::size_t size) {
    return block == nullptr ? Counted(systemRealloc(block, size)) : systemRealloc(block, size);
}
void CountedFree(void* block) {
    state.live -= block != nullptr;
    systemFree(block);
}

void* FailingMalloc(std::size_t size) {
    return IsRefused() ? nullptr : CountedMalloc(size);
}
void* FailingCalloc(std::size_t count, std::size_t size) {
    return IsRefused() ? nullptr : CountedCalloc(count, size);
}
void* FailingRealloc(void* block, std::size_t size) {
    return IsRefused() ? nullptr : CountedRealloc(block, size);
}

template <class Function> void Find(Function& function, const char* name) {
    function = reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("msvcrt.dll"), name)));
}

} // namespace

FailingAllocations::FailingAllocations() {
    Find(systemMalloc, "malloc");
    Find(systemCalloc, "calloc");
    Find(systemRealloc, "realloc");
    Find(systemFree, "free");
    state = {};
    state.thread = ::GetCurrentThreadId();
    char self[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, self, MAX_PATH);
    for (const char* module : {"libstdc++-6.dll", "KavlixMfc.dll", "Kavlix.dll"})
        Hook(module, true);
    Hook(self, false);
    m_installed = m_hooks.front().Installed();
}

FailingAllocations::~FailingAllocations() {
    state.left = -1;
}

void FailingAllocations::Hook(const std::string& module, bool fails) {
    const auto replace = [&](const char* name, auto* replacement) {
        m_hooks.emplace_back(module, name, reinterpret_cast<void*>(replacement));
    };
    replace("malloc", fails ? &FailingMalloc : &CountedMalloc);
    replace("calloc", fails ? &FailingCalloc : &CountedCalloc);
    replace("realloc", fails ? &FailingRealloc : &CountedRealloc);
    replace("free", &CountedFree);
}

void FailingAllocations::FailAfter(int successes, bool forGood) {
    state.left = successes;
    state.forGood = forGood;
}

int FailingAllocations::Refused() const {
    return state.refused;
}

int FailingAllocations::Live() const {
    return state.live;
}

} // namespace testkit

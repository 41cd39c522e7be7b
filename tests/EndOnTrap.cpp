// SPDX-License-Identifier: MIT
// Ends a test program at the first trap or access violation in it.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace {

// Wine ignores faults in code that the system calls (WM_PAINT, WM_CREATE, hooks) and continues as if the call
// had returned. A paint that traps would then be repeated for ever.
constexpr struct {
    DWORD code;
    const char* name;
} kFaults[] = {{EXCEPTION_ILLEGAL_INSTRUCTION, "illegal instruction: undefined behaviour or __builtin_trap"},
               {EXCEPTION_ACCESS_VIOLATION, "access violation"},
               {EXCEPTION_STACK_OVERFLOW, "stack overflow"},
               {EXCEPTION_INT_DIVIDE_BY_ZERO, "division by zero"},
               {EXCEPTION_INT_OVERFLOW, "division overflow"}};

/// Whether a fault in `module` is handled by the system itself: its libraries test unknown pointers by
/// reading them. Faults in the C run time are not handled.
bool IsHandledBySystem(HMODULE module) {
    char system[MAX_PATH] = "", path[MAX_PATH] = "";
    const UINT length = ::GetSystemDirectoryA(system, MAX_PATH);
    ::GetModuleFileNameA(module, path, MAX_PATH);
    return module != nullptr && ::_strnicmp(path, system, length) == 0 &&
           module != ::GetModuleHandleA("msvcrt") && module != ::GetModuleHandleA("ucrtbase");
}

LONG CALLBACK EndOnFault(EXCEPTION_POINTERS* pointers) {
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    const auto* const fault = std::find_if(std::begin(kFaults), std::end(kFaults), [&](const auto& each) {
        return each.code == record.ExceptionCode;
    });
    HMODULE module = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         static_cast<LPCSTR>(record.ExceptionAddress), &module);
    if (fault == std::end(kFaults) || IsHandledBySystem(module))
        return EXCEPTION_CONTINUE_SEARCH;
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    char line[512];
    const int length = ::wsprintfA(line, "\nFAULT %08lX (%s) at %p, module at %p, in test %.150s.%.150s\n",
                                   record.ExceptionCode, fault->name, record.ExceptionAddress, module,
                                   test != nullptr ? test->test_suite_name() : "(none)",
                                   test != nullptr ? test->name() : "");
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), line, static_cast<DWORD>(length), &written, nullptr);
    ::TerminateProcess(::GetCurrentProcess(), record.ExceptionCode);
    return EXCEPTION_CONTINUE_SEARCH;
}

const PVOID installed = ::AddVectoredExceptionHandler(1, &EndOnFault);

} // namespace

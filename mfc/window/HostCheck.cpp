// SPDX-License-Identifier: MIT
// AfxCheckHost: ends a program that was compiled with other headers than this DLL.

#include "afx/HostCheck.h"

#include "afx/Module.h"

#include "kavlix/Version.h"

#include <cstddef>
#include <cwchar>

namespace {

constexpr const char* names[] = {"CString", "CDC", "CWnd", "CDialog", "CFrameWnd", "CWinThread"};
constexpr std::size_t classes = sizeof(AfxClassSizes) / sizeof(*AfxClassSizes);
static_assert(sizeof(names) / sizeof(*names) == classes);

/// The file of a module. Cut to the length of the buffer.
struct ModulePath {
    wchar_t text[MAX_PATH] = L"";

    explicit ModulePath(HMODULE module) { ::GetModuleFileNameW(module, text, MAX_PATH); }
};

} // namespace

bool __cdecl AfxCheckHost(const unsigned int* sizes, unsigned int count) {
    std::size_t differs = 0;
    while (differs < classes && differs < count && sizes[differs] == AfxClassSizes[differs])
        ++differs;
    if (differs == classes && count == classes)
        return true;

    const std::size_t shown = differs < classes ? differs : 0;
    const ModulePath program(nullptr), dll(reinterpret_cast<HMODULE>(&__ImageBase));
    wchar_t text[2 * MAX_PATH + 1000];
    std::swprintf(
        text, sizeof text / sizeof *text,
        L"This program was built with other headers of the class library than the DLL that it has loaded, "
        L"which is that of Kavlix %hs.\n%hs has %u bytes in the program and %u bytes in the DLL.\n\n"
        L"Program: %ls\nDLL: %ls\n\n"
        L"Put the DLLs that belong to the headers beside the program, or build the program again "
        L"with the headers of the DLLs.",
        KAVLIX_VERSION_TEXT, names[shown], shown < count ? sizes[shown] : 0, AfxClassSizes[shown],
        program.text, dll.text);
    ::OutputDebugStringW(text);
    ::MessageBoxW(nullptr, text, L"Kavlix", MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
    // The program's global objects are half constructed: none of its code may run any more.
    ::TerminateProcess(::GetCurrentProcess(), ERROR_REVISION_MISMATCH);
    return true;
}

// SPDX-License-Identifier: MIT
// KavlixCheckHost: ends a host that was built with headers of another Kavlix than this DLL.
#include <kavlix/Kavlix.h>

#include <cstring>
#include <cwchar>

namespace {

struct ClassSize {
    const char* name;
    unsigned int size;
};

constexpr ClassSize kClasses[] = {
    {"CChartAxis", sizeof(CChartAxis)},
    {"CChartCursor", sizeof(CChartCursor)},
    {"CChartDraw", sizeof(CChartDraw)},
    {"CChartLegend", sizeof(CChartLegend)},
    {"CChartReferences", sizeof(CChartReferences)},
    {"CDataset", sizeof(CDataset)},
    {"CGraph", sizeof(CGraph)},
    {"CGraphCtrl", sizeof(CGraphCtrl)},
    {"CGraphLegendList", sizeof(CGraphLegendList)},
    {"CGraphLegendText", sizeof(CGraphLegendText)},
    {"CGraphSeries", sizeof(CGraphSeries)},
    {"CGraphValue", sizeof(CGraphValue)},
    {"CPieChartCtrl", sizeof(CPieChartCtrl)},
    {"CPieChartPiece", sizeof(CPieChartPiece)},
    {"CScrollGraphCtrl", sizeof(CScrollGraphCtrl)},
};

/// The size of a class in this DLL. 0 for a class that only newer headers have.
unsigned int SizeInDll(const char* name) {
    for (const ClassSize& known : kClasses)
        if (std::strcmp(known.name, name) == 0)
            return known.size;
    return 0;
}

/// The file of a module. Cut to the length of the buffer.
struct ModulePath {
    wchar_t text[MAX_PATH] = L"";

    explicit ModulePath(HMODULE module) { ::GetModuleFileNameW(module, text, MAX_PATH); }
};

HMODULE ThisDll() {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&KavlixCheckHost), &module);
    return module;
}

/// ", in which CDataset has 72 bytes"; empty if the size is the same on the other side.
struct SizeText {
    wchar_t text[100] = L"";

    SizeText(const char* name, unsigned int size, unsigned int other) {
        if (size != other)
            std::swprintf(text, sizeof text / sizeof *text, L", in which %.50hs has %u bytes", name, size);
    }
};

} // namespace

bool __cdecl KavlixCheckHost(const char* pszClass, unsigned int nSize, unsigned int nVersion) {
    constexpr unsigned int kPatches = 100; // versions that differ by corrections only
    const unsigned int size = SizeInDll(pszClass);
    const bool fits = nVersion / (100 * kPatches) == KAVLIX_VERSION_MAJOR &&
                      nVersion / kPatches <= KAVLIX_VERSION / kPatches && nSize == size;
    if (fits)
        return true;

    const ModulePath program(nullptr), dll(ThisDll());
    wchar_t text[2 * MAX_PATH + 1000];
    std::swprintf(text, sizeof text / sizeof *text,
                  L"This program was built with the headers of Kavlix %u.%u.%u%ls.\n"
                  L"The DLL that it has loaded is Kavlix %hs%ls.\n\n"
                  L"Program: %ls\nDLL: %ls\n\n"
                  L"Put the DLL that belongs to the headers beside the program, or build the program again "
                  L"with the headers of the DLL.",
                  nVersion / (100 * kPatches), nVersion / kPatches % 100, nVersion % kPatches,
                  SizeText(pszClass, nSize, size).text, KAVLIX_VERSION_TEXT,
                  SizeText(pszClass, size, nSize).text, program.text, dll.text);
    ::OutputDebugStringW(text);
    ::MessageBoxW(nullptr, text, L"Kavlix", MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
    // The program's global objects are half constructed: none of its code may run any more.
    ::TerminateProcess(::GetCurrentProcess(), ERROR_REVISION_MISMATCH);
    return true;
}

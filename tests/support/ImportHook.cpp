// SPDX-License-Identifier: MIT
// Walks the import tables of loaded modules.
#include "tests/support/ImportHook.h"

namespace testkit {
namespace {

template <class T> const T* At(HMODULE module, DWORD offset) {
    return reinterpret_cast<const T*>(reinterpret_cast<const unsigned char*>(module) + offset);
}

#ifdef _UNICODE
std::string OfCharacterSet(const std::string& module) {
    return module == "Kavlix.dll" ? "KavlixU.dll" : module == "KavlixMfc.dll" ? "KavlixMfcU.dll" : module;
}
bool IsNamed(const std::string& function, const std::string& name) {
    return name == function || (!function.empty() && function.back() == 'A' &&
                                name == function.substr(0, function.size() - 1) + 'W');
}
#else
const std::string& OfCharacterSet(const std::string& module) {
    return module;
}
bool IsNamed(const std::string& function, const std::string& name) {
    return name == function;
}
#endif

void Write(void** slot, void* value) {
    DWORD old = 0;
    if (VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &old)) {
        *slot = value;
        VirtualProtect(slot, sizeof *slot, old, &old);
    }
}

/// The loaded module of that name. With the genuine class library, its DLL stands for ours.
HMODULE Loaded(const std::string& module) {
#ifdef KAVLIX_CLASS_LIBRARY
    if (module.rfind("KavlixMfc", 0) == 0)
        return GetModuleHandleA(KAVLIX_CLASS_LIBRARY);
#endif
    return GetModuleHandleA(OfCharacterSet(module).c_str());
}

/// Calls `visit(library, function, slot)` for everything that a loaded module imports by name.
template <class Visit> void VisitImports(const std::string& module, Visit visit) {
    const HMODULE base = Loaded(module);
    if (base == nullptr)
        return;
    const auto* dos = At<IMAGE_DOS_HEADER>(base, 0);
    const IMAGE_DATA_DIRECTORY& directory = At<IMAGE_NT_HEADERS>(base, static_cast<DWORD>(dos->e_lfanew))
                                                ->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (directory.VirtualAddress == 0)
        return;
    const auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(base, directory.VirtualAddress);
    for (; library->Name != 0; ++library) {
        const auto* names = At<IMAGE_THUNK_DATA>(base, library->OriginalFirstThunk);
        const auto* slots = At<IMAGE_THUNK_DATA>(base, library->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            const auto* entry = At<IMAGE_IMPORT_BY_NAME>(base, static_cast<DWORD>(names->u1.AddressOfData));
            visit(At<char>(base, library->Name), reinterpret_cast<const char*>(entry->Name),
                  reinterpret_cast<void**>(const_cast<IMAGE_THUNK_DATA*>(slots)));
        }
    }
}

} // namespace

ImportHook::ImportHook(const std::string& module, const std::string& function, void* replacement) {
    VisitImports(module, [&](const char*, const char* name, void** slot) {
        if (!IsNamed(function, name))
            return;
        m_original = *slot;
        m_slots.push_back(slot);
        Write(slot, replacement);
    });
}

ImportHook::~ImportHook() {
    for (void** slot : m_slots)
        Write(slot, m_original);
}

std::vector<std::string> ImportedNames(const std::string& module, const std::string& library) {
    std::vector<std::string> names;
    VisitImports(module, [&](const char* from, const char* name, void**) {
        if (_stricmp(from, library.c_str()) == 0)
            names.emplace_back(name);
    });
    return names;
}

} // namespace testkit

// SPDX-License-Identifier: MIT
// Replaces imported functions of a loaded module.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace testkit {

/// Replaces a function that one loaded module imports, for that module only, while the hook exists. So a test
/// can count the system calls of a DLL or let them fail, without any change to the DLL.
class ImportHook {
public:
    /// `module` is the importing DLL ("Kavlix.dll"), `function` the imported name ("CreateCompatibleBitmap");
    /// the library that exports it does not matter. Installed tells whether the import was found.
    /// With UNICODE, the names of the char build mean KavlixU.dll, KavlixMfcU.dll and functions that end in W.
    ImportHook(const std::string& module, const std::string& function, void* replacement);
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook();

    bool Installed() const { return !m_slots.empty(); }
    /// The original function; null when not installed.
    void* Original() const { return m_original; }

private:
    std::vector<void**> m_slots;
    void* m_original = nullptr;
};

/// The functions that a loaded DLL imports from `library` by name.
std::vector<std::string> ImportedNames(const std::string& module, const std::string& library);

} // namespace testkit

#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace testkit {

/// Replaces a function that one loaded module imports, for that module only, until the hook ends. So a system
/// call inside a DLL under test can be made to fail, or be counted, without any change to the DLL.
class ImportHook {
public:
    /// `module` is the importing DLL ("Kavlix.dll"), `function` the imported name ("CreateCompatibleBitmap"),
    /// from whichever library it comes. Installed() tells whether such an import was found.
    ImportHook(const std::string& module, const std::string& function, void* replacement);
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook();

    bool Installed() const { return !m_slots.empty(); }
    /// The function that stood there before; nullptr when not installed.
    void* Original() const { return m_original; }

private:
    std::vector<void**> m_slots;
    void* m_original = nullptr;
};

/// The functions that a loaded DLL imports from `library` by name.
std::vector<std::string> ImportedNames(const std::string& module, const std::string& library);
/// The names that a loaded DLL exports, sorted as its table has them.
std::vector<std::string> ExportedNames(HMODULE module);

} // namespace testkit

// Calls into the system's libraries that fail inside the DLLs under test.
#pragma once

#include "tests/support/ImportHook.h"

#include <list>
#include <memory>
#include <string>
#include <vector>

namespace testkit {

/// While it lives, every function that Kavlix.dll and KavlixMfc.dll import from GDI32, USER32, GDI+ and OLE32
/// can be made to fail without having done anything: it answers 0, one of GDI+ and OLE32 an error. Left alone
/// are those that give something back (DeleteObject, EndPaint ...), whose failure is a leak by itself, and
/// those that carry messages. 64-bit programs only; one at a time.
class FailingCalls {
public:
    FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
    ~FailingCalls();

    /// Lets the `n`-th call from now on fail, once; 0 calls it off.
    void FailAt(int n);
    /// Lets every call of function `index` fail; -1 calls it off.
    void FailAlways(int index);
    /// "KavlixMfc.dll BeginPaint"
    const std::string& Name(int index) const { return m_functions[static_cast<std::size_t>(index)]->name; }

    /// Calls that have failed so far, and the function of the last one.
    int Failed() const;
    int LastFailed() const;

private:
    struct Function {
        std::string name;
        int always = 0;
    };
    int Count() const { return static_cast<int>(m_functions.size()); }
    void Replace(const char* module, const char* library, int failure);

    std::vector<std::unique_ptr<Function>> m_functions;
    unsigned char* m_code;
    unsigned char* m_codeEnd;
    std::list<ImportHook> m_hooks; // taken back before the code goes
};

} // namespace testkit

// SPDX-License-Identifier: MIT
// Lets calls into the system's libraries fail inside the DLLs under test.
#pragma once

#include "tests/support/ImportHook.h"

#include <list>
#include <memory>
#include <string>
#include <vector>

namespace testkit {

/// While this object exists, each function that Kavlix.dll and KavlixMfc.dll import from GDI32, USER32, GDI+
/// and OLE32 can fail without doing anything. It then returns 0; functions of GDI+ and OLE32 return an error
/// code. Functions that release something (DeleteObject, EndPaint ...) never fail, because their failure is a
/// leak in itself; nor do functions that deliver messages. Only for 64-bit programs; one object at a time.
class FailingCalls {
public:
    FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
    ~FailingCalls();

    /// Lets the `n`-th call from now on fail, once. With 0 no call fails.
    void FailAt(int n);
    /// Lets every call of function `index` fail. With -1 no function fails always.
    void FailAlways(int index);
    /// Module and name of a function, such as "KavlixMfc.dll BeginPaint".
    const std::string& Name(int index) const { return m_functions[static_cast<std::size_t>(index)]->name; }

    /// The number of calls that have failed, and the function of the last one.
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
    std::list<ImportHook> m_hooks; // removed before the generated code is freed
};

} // namespace testkit

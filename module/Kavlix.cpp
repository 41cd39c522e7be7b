// SPDX-License-Identifier: MIT
// The entry point of Kavlix.dll.
#include <afxwin.h>

#include <afxext.h>

#include <new>

namespace {

AFX_EXTENSION_MODULE g_module = {};

/// Adds the module's resources and classes to the chain of modules that the host searches. The class library
/// owns the CDynLinkLibrary object and deletes it. When memory runs out, the controls work without the texts
/// of their resources.
void JoinResourceChain() {
    try {
        new CDynLinkLibrary(g_module, FALSE);
    } catch (CMemoryException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
    }
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        if (!AfxInitExtensionModule(g_module, instance))
            return FALSE;
        JoinResourceChain();
        return TRUE;
    case DLL_PROCESS_DETACH:
        AfxTermExtensionModule(g_module, FALSE);
        return TRUE;
    default:
        return TRUE;
    }
}

#include <afxwin.h>

#include <afxext.h>

#include <new>

namespace {

AFX_EXTENSION_MODULE g_module = {};

// Links the module's resources and classes into the chain that the host searches. The chain owns the link.
// Without memory for it the module works, but its texts are not found.
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

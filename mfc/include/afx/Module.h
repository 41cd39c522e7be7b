#pragma once

#include "afx/CmdTarget.h"
#include <afx.h>

class CWinApp;
class CDynLinkLibrary;

// Modules: who the running program is, which modules lend it their resources, and window classes.

/// What an extension DLL tells about itself. It holds one of these for its whole life, initially zero.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;                ///< module its resources are in; hModule unless changed after the start
    CRuntimeClass* pFirstSharedClass; ///< not used: classes register themselves
    void* pFirstSharedFactory;        ///< not used
};

/// Called when an extension DLL is attached to the process. FALSE makes the load fail.
MFC_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Called when it is detached: takes its CDynLinkLibrary objects out of the chain, deletes them, and
/// unregisters the window classes that AfxRegisterClass() registered for it. With `bAll`, those of every
/// extension DLL.
MFC_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// A link in the chain of modules that resources are looked up in. Made with `new` while an extension DLL is
/// attached; deleted when the DLL is detached.
class MFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    /// @param bSystem  TRUE to be searched after all that are FALSE
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
};

/// The state of a program that its libraries share with it.
struct AFX_MODULE_STATE {
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr; ///< CWinApp::m_pszAppName
    CWinApp* m_pCurrentWinApp = nullptr;
    BYTE m_bDLL = FALSE; ///< whether this is the state of a DLL
};

/// The state in force for the calling thread: the program's, unless AFX_MANAGE_STATE set another.
MFC_API AFX_MODULE_STATE* AfxGetModuleState();
/// The state of the module `hInstance`: the program's own for the program, else one whose instance and
/// resources are that DLL's.
MFC_API AFX_MODULE_STATE* AfxStateOfModule(HINSTANCE hInstance);
/// Puts another state in force for the calling thread (NULL: the program's); returns what was set before.
MFC_API AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState);

extern "C" IMAGE_DOS_HEADER __ImageBase;
/// The state of the module that this is compiled into.
inline AFX_MODULE_STATE* AfxGetStaticModuleState() {
    return AfxStateOfModule(reinterpret_cast<HINSTANCE>(&__ImageBase));
}

/// Puts a state in force until the end of the scope.
class AFX_MAINTAIN_STATE {
public:
    explicit AFX_MAINTAIN_STATE(AFX_MODULE_STATE* pModuleState)
        : m_pPrevious(AfxSetModuleState(pModuleState)) {}
    ~AFX_MAINTAIN_STATE() { AfxSetModuleState(m_pPrevious); }
    AFX_MAINTAIN_STATE(const AFX_MAINTAIN_STATE&) = delete;
    AFX_MAINTAIN_STATE& operator=(const AFX_MAINTAIN_STATE&) = delete;

private:
    AFX_MODULE_STATE* m_pPrevious;
};
/// First line of a function that a regular DLL exports: its resources come first until the function returns.
#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE _ctlState(p);

/// The program's instance (also inside extension DLLs).
MFC_API HINSTANCE AfxGetInstanceHandle();
/// The module whose resources are looked at first; the program unless AfxSetResourceHandle() changed it.
MFC_API HINSTANCE AfxGetResourceHandle();
MFC_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The first module that holds a resource: the resource module, the program, the extension DLLs (those linked
/// last first, system ones after all others), this library. The resource module if none does. Never NULL.
MFC_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// The first module whose string table holds the string itself (AfxFindResourceHandle() sees blocks of 16);
/// NULL if none does.
MFC_API HINSTANCE AfxFindStringResourceHandle(UINT nID);
/// Copies a string resource, cut to `nMaxBuf` bytes with its terminating zero, and returns its length
/// without; an empty text and 0 if there is none. The library's own prompts (afxres.h) have English texts
/// without a resource.
MFC_API int AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);

/// Loads and frees a DLL like the Win32 functions; for extension DLLs that are not linked in.
MFC_API HINSTANCE AfxLoadLibrary(LPCTSTR lpszModuleName);
MFC_API BOOL AfxFreeLibrary(HINSTANCE hInstLib);

/// Registers a window class; TRUE also if it is registered already. A class of a DLL's instance is
/// unregistered when AfxTermExtensionModule() is called for that DLL.
MFC_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);
/// Registers a window class with these properties, once, and returns its name in a buffer that holds until
/// the thread's next call. Without a brush the background is not erased. Throws CResourceException*.
MFC_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                    HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

/// Shows a message box through CWinApp::DoMessageBox(); returns the button's ID, 0 on failure.
MFC_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// With a string resource. `nIDHelp` -1 stands for `nIDPrompt`.
MFC_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

/// Puts texts in the place of %1 and %2 of a string resource.
MFC_API void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
MFC_API void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
/// Puts `nString` texts in the place of %1 to %9 of `lpszFormat`. A number without a text vanishes.
MFC_API void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString);
MFC_API void AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString);

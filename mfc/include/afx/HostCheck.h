// SPDX-License-Identifier: MIT
// A program that was compiled with other headers than the library's DLL is told so when it starts.
#pragma once

#include "afx/DC.h"
#include "afx/Dialog.h"
#include "afx/Export.h"
#include "afx/FrameWnd.h"
#include "afx/Thread.h"
#include <afx/String.h>

/// Sizes in bytes of classes that programs derive from or keep in their objects. AfxCheckHost() knows the names in
/// the same order.
inline constexpr unsigned int AfxClassSizes[] = {sizeof(CString), sizeof(CDC),       sizeof(CWnd),
                                                 sizeof(CDialog), sizeof(CFrameWnd), sizeof(CWinThread)};

/// Compares the sizes of a program to those in the DLL. If they differ, a message box says so, and the process ends
/// with the exit code 1306 (ERROR_REVISION_MISMATCH). The result is always true.
extern "C" MFC_API bool __cdecl AfxCheckHost(const unsigned int* sizes, unsigned int count);

// The check runs before main(). A program that loads the DLL later (/DELAYLOAD), and a DLL that must not end the
// process of its host, define KAVLIX_NO_HOST_CHECK.
#if !defined(MFC_BUILD) && !defined(KAVLIX_NO_HOST_CHECK)
inline const bool AfxHostFits = AfxCheckHost(AfxClassSizes, sizeof(AfxClassSizes) / sizeof(*AfxClassSizes));
#endif

#pragma once

// What the main source of an extension DLL includes: AFX_EXTENSION_MODULE and CDynLinkLibrary.

#include <afxwin.h>

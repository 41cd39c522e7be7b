// SPDX-License-Identifier: MIT
// What the main source of an extension DLL includes: AFX_EXTENSION_MODULE and CDynLinkLibrary.
#pragma once

#include <afxwin.h>

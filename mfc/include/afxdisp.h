// SPDX-License-Identifier: MIT
// What programs with ActiveX controls include. The library has no Automation and no ActiveX controls.
#pragma once

#include <afxwin.h>

/// Allows ActiveX controls in the program's dialogs. Does nothing, because the library has no ActiveX controls.
inline void AfxEnableControlContainer() {
}

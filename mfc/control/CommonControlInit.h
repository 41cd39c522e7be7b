// SPDX-License-Identifier: MIT
// Loading the system's common controls.
#pragma once

#include <windows.h>

/// Makes the system register the window classes of common controls. `classes` are ICC_ flags.
BOOL LoadCommonControls(DWORD classes);

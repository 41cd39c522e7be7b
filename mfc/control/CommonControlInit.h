#pragma once

#include <windows.h>

/// Makes the system register the window classes of the common controls named by ICC_ flags.
BOOL LoadCommonControls(DWORD classes);

#pragma once

// Extensions of the framework: extension DLLs, and what printing code is told. (Splitters, tool bars and form
// views are not offered.)

#include "afx/PrintInfo.h"
#include <afxwin.h>

// SPDX-License-Identifier: MIT
// Foundation of the class library: diagnostics, CObject, CString, exceptions, files, archives, times, CRect.
#pragma once

// The collections have headers of their own: afxcoll.h for the ready-made ones, afxtempl.h for the templates.

#include <afx/Export.h>

#include <windows.h>

#include <tchar.h>

#include <limits.h>
#include <stdarg.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include <afx/Archive.h>
#include <afx/Diagnostics.h>
#include <afx/Exception.h>
#include <afx/File.h>
#include <afx/Geometry.h>
#include <afx/Object.h>
#include <afx/String.h>
#include <afx/Time.h>

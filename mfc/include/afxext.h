// SPDX-License-Identifier: MIT
// The status bar, extension DLLs, CPrintInfo and the system's dialogs. Splitters, tool bars and form views do not
// exist in this library.
#pragma once

#include "afx/ControlBar.h"
#include "afx/PrintInfo.h"
#include "afx/StatusBar.h"
#include <afxdlgs.h>
#include <afxwin.h>

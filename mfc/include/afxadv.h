// SPDX-License-Identifier: MIT
// CRecentFileList, the files that the user opened last.
#pragma once

#include "afx/RecentFiles.h"
#include <afxwin.h>

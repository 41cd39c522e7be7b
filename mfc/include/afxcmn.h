// SPDX-License-Identifier: MIT
// The common controls: status bar, progress bar, slider, up-down control, tooltip, tabs.
#pragma once

#include "afx/CommonControls.h"
#include "afx/TabCtrl.h"
#include <afxwin.h>
#include <commctrl.h>

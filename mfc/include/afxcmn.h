// The common controls: status bar, progress bar, slider, up-down control, tooltip.
#pragma once

#include "afx/CommonControls.h"
#include <afxwin.h>
#include <commctrl.h>

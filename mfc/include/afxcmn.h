#pragma once

#include "afx/CommonControls.h"
#include <afxwin.h>
#include <commctrl.h>

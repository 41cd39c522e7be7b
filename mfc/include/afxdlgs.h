#pragma once

#include "afx/CommonDialogs.h"
#include <afxwin.h>
#include <commdlg.h>

#pragma once

#include "afx/CommonDialogs.h"
#include "afx/PrintDialog.h"
#include <afxwin.h>
#include <commdlg.h>

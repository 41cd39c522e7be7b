// SPDX-License-Identifier: MIT
// Property sheets, and the system's own dialogs: open and save, colour, font, print.
#pragma once

#include "afx/CommonDialogs.h"
#include "afx/PrintDialog.h"
#include "afx/PropertySheet.h"
#include <afxwin.h>
#include <commdlg.h>

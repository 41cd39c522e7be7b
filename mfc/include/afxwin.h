// SPDX-License-Identifier: MIT
// Windows, dialogs, controls, drawing and the application.
#pragma once

// Programs test this macro to find out whether their precompiled header was included first.
#define __AFXWIN_H__

#include <afx.h>
#include <afxcoll.h>
#include <commctrl.h>
#include <shellapi.h>

#include "afxres.h"

#include "afx/App.h"
#include "afx/CmdTarget.h"
#include "afx/Controls.h"
#include "afx/DC.h"
#include "afx/DataExchange.h"
#include "afx/Dialog.h"
#include "afx/FrameWnd.h"
#include "afx/GdiObject.h"
#include "afx/HostCheck.h"
#include "afx/Menu.h"
#include "afx/Module.h"
#include "afx/Thread.h"
#include "afx/WindowDC.h"
#include "afx/Wnd.h"
#include "afxdd_.h"
#include "afxmsg_.h"

// SPDX-License-Identifier: MIT
// CDataExchange, the state of one exchange between members and controls.
#pragma once

#include "afx/Export.h"
#include <afx.h>

class CWnd;

/// One exchange between the members and the controls of a window. CWnd::UpdateData() creates the object;
/// every DDX_ and DDV_ routine receives it.
class MFC_API CDataExchange {
public:
    /// `pDlgWnd` is the window with the controls. `bSaveAndValidate` TRUE copies controls to members, FALSE
    /// copies members to controls.
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    /// The control of the latest Prepare call. Fail() sets the focus to it.
    HWND m_hWndLastControl = nullptr;
    /// Whether the latest Prepare call was PrepareEditCtrl(). Fail() then also selects the text of an edit
    /// control.
    BOOL m_bEditLastControl = FALSE;

    /// Returns the window of the control and stores it for Fail(). Throws CNotSupportedException* if the
    /// control does not exist.
    HWND PrepareCtrl(int nIDC);
    /// Like PrepareCtrl(), for an edit control or for a combo box with an edit field.
    HWND PrepareEditCtrl(int nIDC);
    /// Throws CUserException*. While saving, first sets the focus to the stored control and selects the text
    /// of an edit control. The caller shows the message to the user before the call.
    [[noreturn]] void Fail();
};

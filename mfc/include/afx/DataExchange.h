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
    /// Whether that control is an edit control. Fail() then selects its text.
    BOOL m_bEditLastControl = FALSE;

    /// Returns the window of the control and stores it for Fail(). Throws CNotSupportedException* if the
    /// control does not exist.
    HWND PrepareCtrl(int nIDC);
    /// Like PrepareCtrl(), for an edit control or for a combo box with an edit field.
    HWND PrepareEditCtrl(int nIDC);
    /// Sets the focus to the stored control, selects the text of an edit control, and throws CUserException*.
    /// The caller has shown the message before.
    [[noreturn]] void Fail();
};

#pragma once

#include "afx/Export.h"
#include <afx.h>

class CWnd;

/// One exchange between a window's members and its controls, as CWnd::UpdateData() starts it and every DDX_
/// and DDV_ routine takes part in it.
class MFC_API CDataExchange {
public:
    /// @param pDlgWnd  window whose controls take part
    /// @param bSaveAndValidate  TRUE: controls to members; FALSE: members to controls
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    /// The control of the latest Prepare...(): it gets the focus if the exchange fails.
    HWND m_hWndLastControl = nullptr;
    /// Whether that control is an edit control, whose text is then selected.
    BOOL m_bEditLastControl = FALSE;

    /// The control's window, remembered as the one to blame. Throws CNotSupportedException* if there is none.
    HWND PrepareCtrl(int nIDC);
    /// As PrepareCtrl(), for an edit control or a combo box with one.
    HWND PrepareEditCtrl(int nIDC);
    /// Gives the focus back to the remembered control (and selects an edit's text), then throws
    /// CUserException*. The message to the user has been shown before.
    [[noreturn]] void Fail();
};

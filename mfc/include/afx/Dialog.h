// SPDX-License-Identifier: MIT
// CDialog, a dialog box made from a template.
#pragma once

#include "afx/Export.h"
#include "afx/Wnd.h"

AFX_BEGIN_OWN_CREATE

/// A dialog box, made from a template in the resource chain or in memory.
///
/// Modal dialogs: construct the object with the template, then call DoModal(). Modeless dialogs: use the
/// default constructor, then call Create(). A modeless dialog must override OnOK() and OnCancel() to destroy
/// its window, because EndDialog() of the base class only hides the window.
class MFC_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    /// For a modeless dialog, or for InitModalIndirect().
    CDialog();
    /// For DoModal(). Without a parent, the owner of the dialog is the popup of the main window that was
    /// active last, else the main window.
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /// Creates a modeless dialog. The dialog is visible at once only if the template has the style
    /// WS_VISIBLE. FALSE if the template does not exist or the window cannot be created.
    BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr) {
        return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
    }
    BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                        void* lpDialogInit = nullptr);
    BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Sets the template for DoModal(). The template must exist until DoModal() returns. `lpDialogInit` holds
    /// the items of list boxes and combo boxes, in the format of RT_DLGINIT resources.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Runs the dialog until EndDialog(). Returns the argument of EndDialog(), or -1 if the dialog could not
    /// be created or ended without EndDialog().
    virtual INT_PTR DoModal();

    /// Converts dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0); }
    /// Low word: ID of the default button; high word: DC_HASDEFID. 0 if there is no default button.
    DWORD GetDefID() const { return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0)); }

    /// Ends the modal loop after the current message; DoModal() returns `nResult`. A call in OnInitDialog()
    /// ends the dialog before it becomes visible. A modeless dialog is only hidden.
    void EndDialog(int nResult);

    /// Called before the dialog becomes visible. The base copies the members to the controls. Return FALSE if
    /// the override has set the focus.
    virtual BOOL OnInitDialog();
    /// Called before the controls are created if the template names a font. `pFont` is the font of the
    /// controls.
    virtual void OnSetFont(CFont* pFont);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Called for the OK button. The base copies the controls to the members and ends the dialog with IDOK.
    /// If the exchange fails, the dialog stays open.
    virtual void OnOK();
    /// Called for the Cancel button, the Escape key and the close box. The base ends the dialog with
    /// IDCANCEL.
    virtual void OnCancel();
    /// Called when WM_INITDIALOG arrives, before OnInitDialog().
    virtual void PreInitDialog();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;

    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND owner);
    LPCDLGTEMPLATE FindTemplate();
    void ForgetTemplate();
    void CenterUnlessPlaced(const RECT& created);

    // Source of the template: a resource name or number, memory, or a block of global memory.
    CString m_strTemplateName;
    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;
    bool m_bCenter = false;
};

AFX_END_OWN_CREATE

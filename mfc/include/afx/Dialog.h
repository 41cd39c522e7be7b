#pragma once

#include "afx/Export.h"
#include "afx/Wnd.h"

/// A dialog box, made from a template that is found through the resource chain or given in memory.
///
/// Modal: construct it with the template, call DoModal(). Modeless: construct it bare, call Create(); it must
/// then override OnOK() and OnCancel() to destroy its window, since the base class's EndDialog() only hides
/// it.
class MFC_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    /// For a modeless dialog, or for InitModalIndirect().
    CDialog();
    /// For DoModal(). Without a parent the program's main window is the owner.
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /// Modeless; visible at once only if the template says WS_VISIBLE. FALSE if there is no template or no
    /// window.
    BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr) {
        return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
    }
    BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                        void* lpDialogInit = nullptr);
    BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Gives the template for DoModal(); it must outlive the dialog. `lpDialogInit` is list data in the
    /// format of RT_DLGINIT resources.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Runs the dialog until EndDialog(); returns what that was given, -1 if the dialog could not be created.
    virtual INT_PTR DoModal();

    /// Dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0); }
    /// Low word: ID of the default button; high word: DC_HASDEFID, or 0 if there is none.
    DWORD GetDefID() const { return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0)); }

    /// Makes DoModal() return `nResult` once the current message is handled (from OnInitDialog(): without the
    /// dialog being shown). Only hides a modeless dialog.
    void EndDialog(int nResult);

    /// Called before the dialog is shown: exchanges data to the controls. Return FALSE if you set the focus
    /// yourself.
    virtual BOOL OnInitDialog();
    /// Called before the controls are made, with the font they will use.
    virtual void OnSetFont(CFont* pFont);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// The OK button: exchanges data from the controls and ends with IDOK; stays if the exchange fails.
    virtual void OnOK();
    /// The Cancel button, Escape, and the close box: ends with IDCANCEL.
    virtual void OnCancel();
    /// Called when WM_INITDIALOG arrives, before OnInitDialog().
    virtual void PreInitDialog();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    using CWnd::Create; // hidden, not overridden: these windows have a class of their own

    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND owner);
    LPCDLGTEMPLATE FindTemplate();
    void ForgetTemplate();
    void CenterUnlessPlaced(const RECT& created);

    // Where the template comes from: a name or number of a resource, memory, or a block of global memory.
    CString m_strTemplateName;
    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;
    bool m_bCenter = false;
};

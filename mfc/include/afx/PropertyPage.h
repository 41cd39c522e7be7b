// SPDX-License-Identifier: MIT
// CPropertyPage, a page of a property sheet or wizard.
#pragma once

#include "afx/Dialog.h"
#include "afx/Export.h"
#include <commctrl.h>
#include <prsht.h>

class CPropertySheet;

/// A page of a property sheet or wizard: a dialog whose template has the styles WS_CHILD, WS_DISABLED and
/// WS_CAPTION. The caption is the text of the tab. The object must exist as long as the sheet, which creates the
/// window when the user first comes to the page.
class MFC_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)

public:
    /// Construct() follows.
    CPropertyPage();
    /// `nIDCaption` is a string resource for the tab, in place of the caption in the template; 0 for none.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;
    /// Sets the template and the caption, before the page is added to a sheet.
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);

    /// The system's record. A program changes it before the sheet is created. The library uses `lParam` and the two
    /// procedures.
    PROPSHEETPAGE m_psp{};
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    /// Tells the sheet that the user changed something: enables Apply. FALSE: there is nothing to apply.
    void SetModified(BOOL bChanged = TRUE);
    /// After a change that cannot be cancelled: OK becomes Close, and Cancel is disabled.
    void CancelToClose();
    /// Sends PSM_QUERYSIBLINGS to the created pages, until one returns nonzero. Returns that result.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    /// The page becomes the active one. FALSE refuses: the sheet goes on to the next page. From the second time on,
    /// the base copies the members to the controls.
    virtual BOOL OnSetActive();
    /// The page stops being the active one, or OK or Apply is pressed. FALSE keeps the page active. The base copies
    /// the controls to the members.
    virtual BOOL OnKillActive();
    /// OK or Apply is pressed, and OnKillActive() accepted. FALSE keeps the sheet open. The base calls OnOK().
    virtual BOOL OnApply();
    /// Cancel is pressed. The base calls OnCancel().
    virtual void OnReset();
    /// Called by OnApply(), and by OnReset(). The base functions do nothing: the sheet closes its pages.
    void OnOK() override;
    void OnCancel() override;
    /// Cancel is pressed. FALSE keeps the sheet open.
    virtual BOOL OnQueryCancel();
    /// Back or Next of a wizard is pressed. 0 goes to that page, -1 stays, and the ID of a template goes to the page
    /// with this template.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    /// Finish of a wizard is pressed. FALSE keeps the wizard open. The base does not copy the controls.
    virtual BOOL OnWizardFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    friend class CPropertySheet;

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    static UINT CALLBACK Callback(HWND window, UINT message, LPPROPSHEETPAGE record);
    HPROPSHEETPAGE MakeHandle();
    CPropertySheet* Sheet() const;
    void EndHook();

    CString m_strCaption;
    bool m_bHooked = false; // the next window that the thread creates belongs to this object
    bool m_bWasActive = false;
};

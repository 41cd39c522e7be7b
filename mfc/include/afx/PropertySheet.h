// SPDX-License-Identifier: MIT
// CPropertySheet, a dialog of several pages, and wizards.
#pragma once

#include "afx/Export.h"
#include "afx/PropertyPage.h"
#include "afx/TabCtrl.h"

#include <vector>

AFX_BEGIN_OWN_CREATE

/// A dialog with a tab for each of its pages, or a wizard, which leads from page to page. The sheet is the system's;
/// its pages are CPropertyPage objects, counted from 0.
class MFC_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)

public:
    /// Construct() follows.
    CPropertySheet();
    /// `iSelectPage` is the page that is shown first. Without a parent, the owner of a modal sheet is chosen as that
    /// of a CDialog.
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    ~CPropertySheet() override;
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);

    /// The system's record. Change its flags before the sheet is created. The sheet fills in the pages, the owner
    /// and the callback.
    PROPSHEETHEADER m_psh{};

    /// Runs the sheet until the user closes it. Returns IDOK or IDCANCEL, of a wizard ID_WIZFINISH or IDCANCEL, or
    /// the argument of EndDialog(). -1 if the sheet could not be created.
    virtual INT_PTR DoModal();
    /// Creates a modeless sheet, without the buttons OK, Cancel and Apply. `dwStyle` -1 stands for a visible popup
    /// with caption and system menu; with WS_CHILD the sheet is a child of `pParentWnd`. FALSE on failure.
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1),
                        DWORD dwExStyle = 0);
    /// Ends DoModal(), which returns `nEndID`.
    void EndDialog(int nEndID);

    /// The sheet does not own its pages. Also while the sheet is open.
    void AddPage(CPropertyPage* pPage);
    /// Does nothing if the page is not in the sheet.
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    CPropertyPage* GetPage(int nPage) const;
    /// -1 if the page is not in the sheet.
    int GetPageIndex(CPropertyPage* pPage);
    int GetActiveIndex() const;
    /// NULL before the sheet is open.
    CPropertyPage* GetActivePage() const;
    /// FALSE if the page is not in the sheet, or if the active page stays because its OnKillActive() refused.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage) { return SetActivePage(GetPageIndex(pPage)); }
    /// NULL before the sheet is open. The program may subclass the window of the control.
    CTabCtrl* GetTabControl() const;

    /// `nStyle` PSH_PROPTITLE: the system adds words such as "Properties".
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    /// Before the sheet is created: FALSE keeps the tabs in one row. TRUE is the default.
    void EnableStackedTabs(BOOL bStacked) { m_bStacked = bStacked; }
    /// Before the sheet is created: makes a wizard of it.
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    /// Buttons of the wizard: PSWIZB_BACK, PSWIZB_NEXT, PSWIZB_FINISH, PSWIZB_DISABLEDFINISH. Usually called in
    /// OnSetActive() of a page.
    void SetWizardButtons(DWORD dwFlags);
    /// Shows and enables Finish with this text, and hides Next and Back.
    void SetFinishText(LPCTSTR lpszText);
    /// PSBTN_ codes: PSBTN_OK and so on.
    BOOL PressButton(int nButton);
    /// Converts dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }

    /// Called before the sheet becomes visible. The base initialises the sheet, so an override calls it first.
    virtual BOOL OnInitDialog();

    BOOL ContinueModal() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    friend class CPropertyPage;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleKickIdle(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();
    afx_msg void OnNcDestroy();
    DECLARE_MESSAGE_MAP()

private:
    static int CALLBACK Callback(HWND window, UINT message, LPARAM lParam);
    BOOL CreateSheet(HWND owner);
    HWND ActiveWindow() const;
    HWND TabWindow() const;
    bool IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0; }
    void RemoveButtons();

    std::vector<CPropertyPage*> m_pages;
    CWnd* m_pParentWnd = nullptr;
    CString m_strCaption;
    mutable CTabCtrl m_tabs; // refers to the tab control of the system's sheet, without being attached
    bool m_bStacked = true;
    bool m_bModeless = false;
    DWORD m_dwStyle = 0; // styles of a modeless sheet
    DWORD m_dwExStyle = 0;
};

AFX_END_OWN_CREATE

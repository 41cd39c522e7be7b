// SPDX-License-Identifier: MIT
// CPrintDialog, the print dialogs of the system.
#pragma once

#include "afx/CommonDialogs.h"
#include "afx/Export.h"

/// The "Print" and "Print Setup" dialogs.
///
/// The caller owns the memory of the printer's settings (m_pd.hDevMode and m_pd.hDevNames) and frees it with
/// GlobalFree(). The object frees memory only in GetDefaults().
class MFC_API CPrintDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPrintDialog)

public:
    /// The record of the system's dialog. Change it between construction and DoModal().
    PRINTDLG& m_pd;

    /// `bPrintSetupOnly` TRUE makes the "Print Setup" dialog, FALSE the "Print" dialog, which also creates a
    /// DC of the printer. `dwFlags` are PD_ flags.
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);
    ~CPrintDialog() override;

    INT_PTR DoModal() override;
    /// Reads the settings of the default printer without a dialog, and frees those that it replaces. FALSE if there
    /// is no printer.
    BOOL GetDefaults();

    /// Results of DoModal() and GetDefaults().
    int GetCopies() const;
    BOOL PrintCollate() const { return (m_pd.Flags & PD_COLLATE) != 0; }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    /// -1 if the user chose no range of pages.
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }
    /// Locks m_pd.hDevMode and returns the settings; the caller unlocks m_pd.hDevMode with GlobalUnlock().
    /// NULL if there are no settings.
    LPDEVMODE GetDevMode() const;
    /// The names are empty if there is no printer.
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    /// The DC that the "Print" dialog created, or NULL. The caller deletes it with DeleteDC().
    HDC GetPrinterDC() const;
    /// Creates a DC of the chosen printer, stores it in m_pd.hDC and returns it. The caller deletes the DC.
    /// NULL on failure.
    HDC CreatePrinterDC();

private:
    static UINT_PTR CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    CString NameAt(WORD DEVNAMES::*offset) const;

    PRINTDLG m_record{};
};

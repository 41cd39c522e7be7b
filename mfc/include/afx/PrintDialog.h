#pragma once

#include "afx/CommonDialogs.h"
#include "afx/Export.h"

/// The "Print" and "Print Setup" dialogs.
///
/// The memory of the printer's settings (m_pd.hDevMode, m_pd.hDevNames) is the caller's: free it with
/// GlobalFree() when the settings are no longer needed. The object never frees it.
class MFC_API CPrintDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPrintDialog)

public:
    /// The record the system's dialog reads and writes. Change it after construction and before DoModal().
    PRINTDLG& m_pd;

    /// @param bPrintSetupOnly  TRUE: "Print Setup"; FALSE: "Print", which also makes a DC for the printer
    /// @param dwFlags  PD_ flags
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);
    ~CPrintDialog() override;

    INT_PTR DoModal() override;
    /// Takes the default printer's settings without showing anything. FALSE when there is no printer.
    BOOL GetDefaults();

    /// @name After DoModal() or GetDefaults()
    /// @{
    int GetCopies() const;
    BOOL PrintCollate() const { return (m_pd.Flags & PD_COLLATE) != 0; }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    /// -1 when no range of pages was chosen.
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }
    /// The settings, locked; unlock m_pd.hDevMode after use. NULL when there are none.
    LPDEVMODE GetDevMode() const;
    /// Empty when no printer was chosen.
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    /// The DC that "Print" made, or NULL. The caller deletes it with DeleteDC().
    HDC GetPrinterDC() const;
    /// Makes a DC for the printer chosen, puts it into m_pd.hDC and returns it; the caller deletes it. NULL
    /// on failure.
    HDC CreatePrinterDC();
    /// @}

private:
    static UINT_PTR CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    CString NameAt(WORD DEVNAMES::*offset) const;

    PRINTDLG m_record{};
};

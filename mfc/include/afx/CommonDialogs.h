#pragma once

#include "afx/Dialog.h"
#include "afx/Export.h"
#include <afxcoll.h>
#include <commdlg.h>

/// Base of the system's own dialogs. Their DoModal() returns IDOK or IDCANCEL; after IDCANCEL
/// ::CommDlgExtendedError() tells whether an error was the cause.
class MFC_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);
    ~CCommonDialog() override;

protected:
    /// The owner's window: the parent given, else the main window; it may be NULL.
    HWND OwnerWindow() const;
    /// The system's procedure ends these dialogs; the base class's exchange and EndDialog() stay out of it.
    void OnOK() override;
    void OnCancel() override;
    CWnd* m_pOwnerWnd;
};

/// The "Open" and "Save As" dialogs.
class MFC_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// @param bOpenFileDialog  TRUE: Open; FALSE: Save As
    /// @param lpszDefExt  extension added to a name without one, no period; NULL adds none
    /// @param lpszFileName  name shown first
    /// @param dwFlags  OFN_ flags
    /// @param lpszFilter  pairs "Text (*.txt)|*.txt|", ended by one more '|'
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);
    ~CFileDialog() override;

    /// Change it after construction and before DoModal(). With OFN_ALLOWMULTISELECT give it a larger
    /// lpstrFile and nMaxFile of your own.
    OPENFILENAME m_ofn{};

    INT_PTR DoModal() override;

    /// While the dialog is open they ask it; after DoModal() they tell what was chosen.
    CString GetPathName() const;
    CString GetFileName() const;
    /// Without the period.
    CString GetFileExt() const;
    /// The name without its extension.
    CString GetFileTitle() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }

    /// The chosen files, one after the other, as full paths: start, then next until the position is NULL.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

protected:
    /// 0 accepts the name; 1 keeps the dialog open (tell the user why).
    virtual BOOL OnFileNameOK();
    /// OFN_SHAREFALLTHROUGH (accept), OFN_SHARENOWARN (refuse, silently) or OFN_SHAREWARN (refuse and tell).
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    static UINT_PTR CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    CString AskDialog(UINT message) const;

    BOOL m_bOpenFileDialog;
    CString m_strFilter;
    TCHAR m_szFileName[MAX_PATH] = {};
    TCHAR m_szFileTitle[MAX_PATH] = {};
};

/// The colour chooser.
class MFC_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)

public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);
    ~CColorDialog() override;

    CHOOSECOLOR m_cc{};

    INT_PTR DoModal() override;
    /// The colour chosen, or the current one while the dialog is open.
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// Selects a colour in the open dialog.
    void SetCurrentColor(COLORREF clr);
    /// The 16 custom colours, shared by all such dialogs of the program.
    static COLORREF* PASCAL GetSavedCustomColors();

protected:
    /// 0 accepts the colour; 1 keeps the dialog open.
    virtual BOOL OnColorOK();

private:
    static UINT_PTR CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

/// The font chooser.
class MFC_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)

public:
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);
    ~CFontDialog() override;

    CHOOSEFONT m_cf{};

    INT_PTR DoModal() override;
    /// The font chosen; while the dialog is open, the one shown now.
    void GetCurrentFont(LPLOGFONT lplf);
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    /// Tenths of a point.
    int GetSize() const { return m_cf.iPointSize; }
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut != 0; }
    BOOL IsUnderline() const { return m_lf.lfUnderline != 0; }
    BOOL IsBold() const { return m_lf.lfWeight > FW_NORMAL; }
    BOOL IsItalic() const { return m_lf.lfItalic != 0; }

protected:
    LOGFONT m_lf{};

private:
    static UINT_PTR CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    TCHAR m_szStyleName[64] = {};
};

// SPDX-License-Identifier: MIT
// The file, colour and font dialogs of the system.
#pragma once

#include "afx/Dialog.h"
#include "afx/Export.h"
#include <afxcoll.h>
#include <commdlg.h>

/// Base of the system's own dialogs. DoModal() returns IDOK or IDCANCEL. After IDCANCEL,
/// ::CommDlgExtendedError() is nonzero if an error was the cause.
class MFC_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);
    ~CCommonDialog() override;

protected:
    /// The owner of the dialog: the top-level window of the constructor's parent. Without a parent, the popup
    /// of the main window that was active last, else the main window, else NULL.
    HWND OwnerWindow() const;
    /// The system's dialog procedure ends these dialogs, so OnOK() and OnCancel() neither exchange data nor
    /// call EndDialog().
    void OnOK() override;
    void OnCancel() override;
    CWnd* m_pOwnerWnd;
};

/// The "Open" and "Save As" dialogs.
class MFC_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// `bOpenFileDialog` TRUE makes the Open dialog, FALSE the Save As dialog. `lpszDefExt` is the extension,
    /// without its period, that the dialog adds to a name without an extension; NULL adds nothing.
    /// `lpszFileName` is the initial name, `dwFlags` are OFN_ flags. `lpszFilter` holds pairs "Text
    /// (*.txt)|*.txt|" and ends with one more '|'. `dwSize` is the size of the system's record; 0 stands for the
    /// whole record. The dialog is the system's Explorer-style dialog, also with `bVistaStyle` TRUE; a program that
    /// removes OFN_EXPLORER from the flags gets the old dialog.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;

    /// The system's record. Change it between construction and DoModal(). With OFN_ALLOWMULTISELECT, the
    /// program supplies a larger buffer: the address in lpstrFile, the size in characters in nMaxFile.
    OPENFILENAME m_ofn{};

    INT_PTR DoModal() override;

    /// While the dialog is open, the functions return its present contents; after DoModal(), the
    /// user's choice.
    CString GetPathName() const;
    CString GetFileName() const;
    /// The extension without the period.
    CString GetFileExt() const;
    /// The name without its extension.
    CString GetFileTitle() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }

    /// Enumerate the chosen files as full paths. GetNextPathName() sets `pos` to NULL after the last file.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

protected:
    /// Return 0 to accept the name, 1 to keep the dialog open. An override that returns 1 tells the user why.
    virtual BOOL OnFileNameOK();
    /// Return OFN_SHAREFALLTHROUGH to accept the file, OFN_SHARENOWARN to refuse it without a message,
    /// OFN_SHAREWARN to refuse it with a message.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    /// The selection of a list in the old dialog changes. `nIDBox` is the ID of the list or combo box, `iCurSel` the
    /// index, `nCode` CD_LBSELCHANGE, CD_LBSELSUB, CD_LBSELADD or CD_LBSELNOITEMS.
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    /// The Explorer-style dialog is initialised, or its name, folder or type changes.
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    static UINT_PTR CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool IsExplorer() const { return (m_ofn.Flags & OFN_EXPLORER) != 0; }
    UINT_PTR AnswerOldDialog(UINT message, WPARAM wParam, LPARAM lParam);
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
    /// The chosen colour. Until the user presses OK, the initial colour.
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// Selects a colour in the open dialog.
    void SetCurrentColor(COLORREF clr);
    /// The 16 custom colours. All colour dialogs of the program share them.
    static COLORREF* PASCAL GetSavedCustomColors();

protected:
    /// Return 0 to accept the colour, 1 to keep the dialog open.
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
    /// Copies the chosen font to `*lplf`; while the dialog is open, the font that the dialog shows.
    void GetCurrentFont(LPLOGFONT lplf);
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    /// Size in tenths of a point.
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

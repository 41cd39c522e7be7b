#pragma once

#include "afx/Export.h"
#include <afxwin.h>

class CPrintDialog;

/// What a program tells its printing code about a print job and the page at hand.
struct MFC_API CPrintInfo {
    /// Pages from 1 on, the last one not known; makes the dialog.
    CPrintInfo();
    /// Deletes the dialog and frees the settings it holds.
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;             ///< the "Print" dialog of the job; owned
    BOOL m_bPreview = FALSE;         ///< a preview on the screen
    BOOL m_bDirect = FALSE;          ///< no dialog is to be shown
    BOOL m_bContinuePrinting = TRUE; ///< FALSE ends the job
    UINT m_nCurPage = 1;             ///< the page being printed
    UINT m_nNumPreviewPages = 0;     ///< pages shown side by side in a preview
    CString m_strPageDesc;           ///< how page numbers are written
    LPVOID m_lpUserData = nullptr;   ///< the program's own
    CRect m_rectDraw;                ///< the page's drawing area, logical units

    void SetMinPage(UINT nMinPage);
    /// 0xFFFF: not known.
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    /// The range chosen in the dialog.
    UINT GetFromPage() const;
    UINT GetToPage() const;
};

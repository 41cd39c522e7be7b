// SPDX-License-Identifier: MIT
// CPrintInfo, the data of a print job.
#pragma once

#include "afx/Export.h"
#include <afxwin.h>

class CPrintDialog;

/// A print job and its current page, for the printing code of a program.
struct MFC_API CPrintInfo {
    /// The first page is 1, the last page unknown. The constructor creates the dialog.
    CPrintInfo();
    /// Deletes the dialog and frees its settings.
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;             ///< the "Print" dialog of the job; owned by the object
    BOOL m_bPreview = FALSE;         ///< TRUE for a preview on the screen
    BOOL m_bDirect = FALSE;          ///< TRUE for a job without a dialog
    BOOL m_bContinuePrinting = TRUE; ///< FALSE ends the job
    UINT m_nCurPage = 1;             ///< number of the current page
    UINT m_nNumPreviewPages = 0;     ///< pages shown side by side in a preview
    CString m_strPageDesc;           ///< page-number formats for one and for two pages
    LPVOID m_lpUserData = nullptr;   ///< for the program's use
    CRect m_rectDraw;                ///< drawing area of the page in logical units

    void SetMinPage(UINT nMinPage);
    /// 0xFFFF stands for an unknown last page.
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    /// The first and the last page in the dialog, if the user chose a range of pages.
    UINT GetFromPage() const;
    UINT GetToPage() const;
};

// SPDX-License-Identifier: MIT
// Message boxes and texts with inserts.

#include "afx/App.h"
#include "afx/Module.h"

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* const app = AfxGetApp())
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBox(nullptr, lpszText, nullptr, nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    const int longest = 4096; // in bytes; a longer prompt is cut
    AfxLoadString(nIDPrompt, text.GetBuffer(longest), longest + 1);
    text.ReleaseBuffer();
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString) {
    CString result;
    for (LPCTSTR position = lpszFormat; *position != '\0'; ++position) {
        if (position[0] == '%' && position[1] >= '1' && position[1] <= '9') {
            ++position;
            const int index = *position - '1';
            if (index < nString && rglpsz[index] != nullptr)
                result += rglpsz[index];
        } else {
            result += *position;
        }
    }
    rString = result;
}

void AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString) {
    const int longest = 4096;
    CString format;
    AfxLoadString(nIDS, format.GetBuffer(longest), longest + 1);
    format.ReleaseBuffer();
    AfxFormatStrings(rString, static_cast<LPCTSTR>(format), rglpsz, nString);
}

void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    AfxFormatStrings(rString, nIDS, &lpsz1, 1);
}

void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    const LPCTSTR texts[] = {lpsz1, lpsz2};
    AfxFormatStrings(rString, nIDS, texts, 2);
}

// SPDX-License-Identifier: MIT
// Messages about wrong input.

#include "mfc/dialog/Prompt.h"

void FailWithPrompt(CDataExchange* pDX, UINT id, LPCTSTR first, LPCTSTR second) {
    CString prompt;
    AfxFormatString2(prompt, id, first, second);
    AfxMessageBox(prompt, MB_ICONEXCLAMATION, id);
    pDX->Fail();
}

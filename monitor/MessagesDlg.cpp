// SPDX-License-Identifier: MIT
// Shows text in an edit control.

#include "monitor/MessagesDlg.h"

#include "monitor/TextConversion.h"

namespace kavlix::monitor {

CMessagesDlg::CMessagesDlg(const std::string& text, CWnd* parent)
    : CDialog(CMessagesDlg::IDD, parent), m_text(ToText(text)) {
    // An edit control breaks lines only at CRLF.
    m_text.Replace(_T("\r\n"), _T("\n"));
    m_text.Replace(_T("\n"), _T("\r\n"));
}

void CMessagesDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_MESSAGES, m_text);
}

BOOL CMessagesDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    // Focus the button: otherwise the edit control gets the focus, and its whole text is selected.
    GetDlgItem(IDOK)->SetFocus();
    return FALSE;
}

} // namespace kavlix::monitor

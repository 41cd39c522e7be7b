// Shows text in an edit control.

#include "monitor/MessagesDlg.h"

namespace kavlix::monitor {

CMessagesDlg::CMessagesDlg(const std::string& text, CWnd* parent)
    : CDialog(CMessagesDlg::IDD, parent), m_text(text.c_str()) {
    // An edit control breaks lines only at CRLF.
    m_text.Replace("\r\n", "\n");
    m_text.Replace("\n", "\r\n");
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

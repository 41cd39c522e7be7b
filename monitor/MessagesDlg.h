// SPDX-License-Identifier: MIT
// The dialog with the messages about the files.
#pragma once

#include <afxwin.h>

#include <string>

#include "monitor/resource.h"

namespace kavlix::monitor {

/// Shows the messages about the files as text that can be copied.
class CMessagesDlg : public CDialog {
public:
    enum { IDD = IDD_MESSAGES };

    /// The lines of `text` end with \n.
    explicit CMessagesDlg(const std::string& text, CWnd* parent = nullptr);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    CString m_text;
};

} // namespace kavlix::monitor

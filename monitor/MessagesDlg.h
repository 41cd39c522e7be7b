#pragma once

#include "monitor/resource.h"

#include <afxwin.h>

#include <string>

namespace kavlix::monitor {

/// Shows what was wrong with the files, as text that can be copied.
class CMessagesDlg : public CDialog {
public:
    enum { IDD = IDD_MESSAGES };

    /// @param text lines ended with \n
    explicit CMessagesDlg(const std::string& text, CWnd* parent = nullptr);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    CString m_text;
};

} // namespace kavlix::monitor

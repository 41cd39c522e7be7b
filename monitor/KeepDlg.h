// SPDX-License-Identifier: MIT
// The dialog for the number of live readings to keep.
#pragma once

#include <afxwin.h>

#include <cstddef>

#include "monitor/resource.h"

namespace kavlix::monitor {

/// Asks for the number of live readings to keep.
class CKeepDlg : public CDialog {
public:
    enum { IDD = IDD_KEEP };

    explicit CKeepDlg(std::size_t count, CWnd* parent = nullptr);

    std::size_t Count() const { return m_count; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    UINT m_count;
};

} // namespace kavlix::monitor

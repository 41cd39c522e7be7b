// SPDX-License-Identifier: MIT
// The limits of the number of readings.

#include "monitor/KeepDlg.h"

namespace kavlix::monitor {
namespace {

constexpr UINT kFewest = 10;
constexpr UINT kMost = 10'000'000; // about four months of one reading a second

} // namespace

CKeepDlg::CKeepDlg(std::size_t count, CWnd* parent)
    : CDialog(CKeepDlg::IDD, parent), m_count(static_cast<UINT>(count)) {
}

void CKeepDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_KEEP_COUNT, m_count);
    DDV_MinMaxUInt(pDX, m_count, kFewest, kMost);
}

} // namespace kavlix::monitor

// SPDX-License-Identifier: MIT
// The choice boxes for X and Y.

#include "monitor/ChartSeriesDlg.h"

#include <utility>

#include "monitor/TextConversion.h"

namespace kavlix::monitor {

using recording::ChartChoice;
using recording::ChartX;

BEGIN_MESSAGE_MAP(CChartSeriesDlg, CDialog)
    ON_CBN_SELCHANGE(IDC_CHART_X, &CChartSeriesDlg::OnXChosen)
END_MESSAGE_MAP()

CChartSeriesDlg::CChartSeriesDlg(std::vector<std::string> names, ChartChoice choice, CWnd* parent)
    : CDialog(CChartSeriesDlg::IDD, parent), m_names(std::move(names)), m_y(static_cast<int>(choice.y)) {
    const auto count = static_cast<int>(m_names.size());
    m_x = choice.kind == ChartX::Series        ? static_cast<int>(choice.x)
          : choice.kind == ChartX::Predecessor ? count
                                               : count + 1;
}

ChartChoice CChartSeriesDlg::Choice() const {
    const auto x = static_cast<std::size_t>(m_x);
    const auto y = static_cast<std::size_t>(m_y);
    if (x < m_names.size())
        return {ChartX::Series, x, y};
    return {x == m_names.size() ? ChartX::Predecessor : ChartX::Time, 0, y};
}

BOOL CChartSeriesDlg::OnInitDialog() {
    for (const int id : {IDC_CHART_X, IDC_CHART_Y}) {
        auto* const box = static_cast<CComboBox*>(GetDlgItem(id));
        for (const std::string& name : m_names)
            box->AddString(ToText(name));
    }
    auto* const x = static_cast<CComboBox*>(GetDlgItem(IDC_CHART_X));
    x->AddString(_T("(the same series, one sample before)"));
    x->AddString(_T("(time: all series)"));
    const BOOL focus = CDialog::OnInitDialog();
    OnXChosen();
    return focus;
}

/// Over time all series are along Y.
void CChartSeriesDlg::OnXChosen() {
    const int chosen = static_cast<CComboBox*>(GetDlgItem(IDC_CHART_X))->GetCurSel();
    GetDlgItem(IDC_CHART_Y)->EnableWindow(chosen <= static_cast<int>(m_names.size()));
}

void CChartSeriesDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_CBIndex(pDX, IDC_CHART_X, m_x);
    DDX_CBIndex(pDX, IDC_CHART_Y, m_y);
}

} // namespace kavlix::monitor

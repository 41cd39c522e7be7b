// SPDX-License-Identifier: MIT
// The dialog that chooses the series of the chart page.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

#include "monitor/recording/ChartPoints.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

/// Asks which series the chart shows, and against what.
class CChartSeriesDlg : public CDialog {
public:
    enum { IDD = IDD_CHART_SERIES };

    /// `names` holds the name of every series; there is at least one.
    CChartSeriesDlg(std::vector<std::string> names, recording::ChartChoice choice, CWnd* parent = nullptr);

    /// The person's choice, once DoModal has returned IDOK.
    recording::ChartChoice Choice() const;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    afx_msg void OnXChosen();
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string> m_names;
    int m_x; ///< index in the X box: the series, then the previous value, then time
    int m_y; ///< index in the Y box: the series
};

} // namespace kavlix::monitor

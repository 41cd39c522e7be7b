#pragma once

#include "monitor/recording/Pairing.h"
#include "monitor/resource.h"

#include <afxwin.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

/// Asks which series is drawn against what.
class CChartSeriesDlg : public CDialog {
public:
    enum { IDD = IDD_CHART_SERIES };

    /// @param names of all series; at least one
    CChartSeriesDlg(std::vector<std::string> names, recording::PairChoice choice, CWnd* parent = nullptr);

    /// What was chosen when DoModal says IDOK.
    recording::PairChoice Choice() const;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    std::vector<std::string> m_names;
    int m_x; ///< the series, and behind them value before and time
    int m_y;
};

} // namespace kavlix::monitor

// SPDX-License-Identifier: MIT
// The multi page: a multi-type graph and its choices.
#pragma once

#include <memory>

#include "monitor/MonitorPage.h"
#include "monitor/MultiGraphView.h"
#include "monitor/MultiOptionsPanel.h"

namespace kavlix::monitor {

/// Shows a multi-type graph of the recording's statistics, and the panel of choices while the page does not
/// fill the window.
class CMultiPage : public CMonitorPage {
public:
    using CMonitorPage::CMonitorPage;

    void Update() override;
    void ShowFilling(bool filling) override;

protected:
    void LayOut(CSize size) override;
    CWnd& FocusWindow() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnEditCopy();
    afx_msg void OnFilePrint();
    afx_msg void OnUpdateWithGraph(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void Rebuild();
    bool PrintOn(CDC& printer);

    CMultiOptionsPanel m_panel;
    CMultiGraphView m_view;
    int m_panelWidth = 0; ///< width of the panel in pixels
    bool m_filling = false;
    std::shared_ptr<const recording::Recording> m_recording; ///< the recording that the graph shows
    GraphSettings m_settings;
};

} // namespace kavlix::monitor

#pragma once

#include "monitor/MonitorPage.h"
#include "monitor/MultiGraphView.h"
#include "monitor/MultiOptionsPanel.h"

#include <memory>

namespace kavlix::monitor {

/// The page with a multi-type graph over statistics of the recording, its choices beside it while it does not
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
    int m_panelWidth = 0;
    bool m_filling = false;
    std::shared_ptr<const recording::Recording> m_recording; ///< that is shown
    GraphSettings m_settings;
};

} // namespace kavlix::monitor

// SPDX-License-Identifier: MIT
// The panel of choices beside the multi-type graph.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

#include "monitor/MultiGraphView.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

/// The panel beside the multi-type graph, with the choices of what the graph shows.
class CMultiOptionsPanel : public CDialog {
public:
    enum { IDD = IDD_MULTI_OPTIONS };

    /// Creates the panel as a child window. The panel calls `changed` when the person changes a choice.
    bool CreateChild(CWnd& parent, std::function<void()> changed);

    /// Offers these series. The chosen one stays chosen if the number of series does not change.
    void OfferSeries(const std::vector<std::string>& names);

    /// The current choices.
    MultiOptions Options() const;

protected:
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg void OnChanged();
    DECLARE_MESSAGE_MAP()

private:
    int Chosen(int id, UINT message) const;

    std::function<void()> m_changed;
    std::vector<std::string> m_names;
};

} // namespace kavlix::monitor

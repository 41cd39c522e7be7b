#pragma once

#include "monitor/MultiGraphView.h"
#include "monitor/resource.h"

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// The strip beside the multi-type graph in which a person chooses what it shows.
class CMultiOptionsPanel : public CDialog {
public:
    enum { IDD = IDD_MULTI_OPTIONS };

    /// Creates the strip as a child window.
    /// @param changed called when a person has chosen something else
    bool CreateChild(CWnd& parent, std::function<void()> changed);

    /// Offers these series; the choice among them stays when it can.
    void OfferSeries(const std::vector<std::string>& names);

    /// What is chosen.
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

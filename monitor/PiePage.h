// SPDX-License-Identifier: MIT
// The pie page: the parts of a whole.
#pragma once

#include <string>
#include <vector>

#include "monitor/MonitorPage.h"
#include "monitor/MonitorPie.h"
#include "monitor/recording/PieShares.h"

namespace kavlix::monitor {

/// Shows a pie: the parts of the machine's memory, or the shares of the series in one sample of the
/// recording. The sample is the one marked on another page, or else the one of LastFullRow.
class CPiePage : public CMonitorPage {
public:
    using CMonitorPage::CMonitorPage;

    void Update() override;
    std::vector<std::string> MarkTexts() override;
    std::vector<std::string> ViewTexts() override;
    bool HasMark() override { return m_pie.Selected() >= 0; }

protected:
    void LayOut(CSize size) override;
    CWnd& FocusWindow() override { return m_pie; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSelection(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnEditCopy();
    afx_msg void OnUpdateEditCopy(CCmdUI* pCmdUI);
    afx_msg void OnClearMark();
    afx_msg void OnUpdateClearMark(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    /// The texts and pieces of the page.
    struct Picture {
        std::string title;
        std::string note; ///< a line under the title; may be empty
        std::vector<PieceSettings> pieces;
        std::vector<std::string> names;  ///< one for each piece
        std::vector<std::string> values; ///< one for each piece, with its unit
        std::string total;
    };

    Picture MemoryPicture() const;
    Picture SamplePicture() const;
    int HeadingHeight() const;
    void DrawHeading(CDC& dc, int width) const;

    CMonitorPie m_pie;
    CFont m_titleFont;
    CFont m_noteFont;
    Picture m_picture;
    unsigned m_generation = 0; ///< PageContent::generation of the last Update
};

} // namespace kavlix::monitor

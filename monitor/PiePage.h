#pragma once

#include "monitor/MonitorPage.h"
#include "monitor/MonitorPie.h"
#include "monitor/recording/Division.h"

#include <string>
#include <vector>

namespace kavlix::monitor {

/// The page with a pie: how the machine's memory divides now, or how a sample of the recording divides among
/// the series. The sample is the one that was marked on another page, else the last.
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
    /// What is shown.
    struct Picture {
        std::string title;
        std::string note; ///< a line under the title; may be empty
        std::vector<PieceSettings> pieces;
        std::vector<std::string> names;  ///< one a piece
        std::vector<std::string> values; ///< one a piece, with its unit
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
    unsigned m_generation = 0; ///< of the content that is shown
};

} // namespace kavlix::monitor

// SPDX-License-Identifier: MIT
// The main window.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

#include "monitor/MonitorPage.h"
#include "monitor/StatusPanes.h"
#include "monitor/recording/Options.h"
#include "monitor/recording/RecordingLoader.h"

namespace kavlix::monitor {

/// The main window: one of several pages above a status bar. The window owns the content of the pages:
/// recordings, which it reads in slices while the message loop is idle, or live readings of the machine.
class CMainFrame : public CFrameWnd, private PageHost {
public:
    /// `exitStatus` receives the program's exit status and must outlive the window.
    CMainFrame(recording::Options options, int& exitStatus);

    /// Creates the window in the size of the options or a default size. The object deletes itself with its
    /// window.
    bool CreateMainWindow();

    /// Begins reading the files of the command line, or live readings. The window must be visible.
    void Start();

    /// Does one piece of idle work: reading, filling a page, or saving the picture. Returns false when no
    /// work remains.
    bool WorkInIdle();

    /// The current page.
    CMonitorPage& Page() { return *m_page; }

    const PageContent& Content() const override { return m_content; }
    bool Filled() const override { return m_filled; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();

    afx_msg void OnViewFill();
    afx_msg void OnUpdateViewFill(CCmdUI* pCmdUI);
    afx_msg void OnFileOpen();
    afx_msg void OnFileLive();
    afx_msg void OnFileSavePicture();
    afx_msg void OnViewPage(UINT nID);
    afx_msg void OnUpdateViewPage(CCmdUI* pCmdUI);
    afx_msg void OnViewMessages();
    afx_msg void OnUpdateViewMessages(CCmdUI* pCmdUI);
    afx_msg void OnSettings();
    afx_msg void OnUpdateSettings(CCmdUI* pCmdUI);
    afx_msg void OnUpdateFileLive(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    enum Timer : UINT_PTR {
        kLiveTimer = 1, ///< takes the next live reading
        kEndTimer,      ///< saves the picture of `--shot`, if any, and ends the program
        kNoticeTimer    ///< removes the notice from the status bar
    };

    // PageHost.
    void ChangeSettings(GraphSettings settings) override;
    void RemoveHead(std::size_t count) override;
    void KeepAtMost(std::size_t count) override;
    void ShowSelection() override;
    void ShowPointer() override;
    void Say(const std::string& notice) override;
    void Fill(bool fill) override;

    bool ShowPage(std::size_t index);
    void ShowOtherContent();
    std::size_t DefaultPage() const;

    void BeginReading(std::vector<std::string> paths);
    void ReadSlice();
    void CancelReading();
    void ShowRecording(recording::Recording read);
    void ShowNothing(const std::string& title);
    void BeginLive();
    void TakeLiveReading();
    void LiveChanged(const LiveReadings::Change& change);
    void EndAsAsked();
    void TakePicture();
    void LayOut();

    void NameSource(const std::string& title);
    void SetStatus(std::vector<std::string> text, const std::string& summary);
    void RefreshStatus();
    void ShowStatus();
    std::string SourceText() const;

    recording::Options m_options;
    int& m_exitStatus;
    bool m_fromCommandLine = false; ///< the content is that of the command line
    bool m_pictureDue = false;      ///< save the picture once all idle work is done

    PageContent m_content;
    /// The pages in the order of recording::kPageNames; each is created when it is first shown.
    std::vector<std::unique_ptr<CMonitorPage>> m_pages;
    CMonitorPage* m_page = nullptr; ///< the current page
    bool m_pageChosen = false;      ///< the person has chosen a page

    bool m_filled = false;             ///< see PageHost::Filled
    HMENU m_menuWhileFilled = nullptr; ///< the menu that was removed while a page fills the window
    CStatusPanes m_status;
    StatusTexts m_texts;                    ///< the texts of the status bar without the notice
    std::string m_notice;                   ///< replaces StatusTexts::text for a short time; empty: none
    std::string m_title = "Kavlix Monitor"; ///< window title, unless a page fills the window and has texts

    std::unique_ptr<recording::RecordingLoader> m_loader; ///< not null while files are being read
    std::vector<std::string> m_paths;                     ///< the files of the content
    recording::MachineCounters m_counters;                ///< counters at the last live reading
};

} // namespace kavlix::monitor

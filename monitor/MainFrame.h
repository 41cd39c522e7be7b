#pragma once

#include "monitor/MonitorPage.h"
#include "monitor/StatusPanes.h"
#include "monitor/recording/Options.h"
#include "monitor/recording/RecordingLoader.h"

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// The main window: one of several pages over a status bar. It owns what they show: recordings, which it
/// reads in slices while the message loop is idle, or live readings of the machine.
class CMainFrame : public CFrameWnd, private PageHost {
public:
    /// @param exitStatus receives what the program ends with; it must outlive the window
    CMainFrame(recording::Options options, int& exitStatus);

    /// Makes the window of the size the options ask for; it deletes itself when it is destroyed.
    bool CreateMainWindow();

    /// Begins what the command line asks for. The window must be visible.
    void Start();

    /// One piece of the work that is done while no message waits.
    /// @return whether there is more to do
    bool WorkInIdle();

    /// The page that is shown.
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
        kLiveTimer = 1, ///< the next live reading
        kEndTimer,      ///< the end the command line asks for
        kNoticeTimer    ///< the notice has been seen
    };

    // What pages ask for.
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
    bool m_fromCommandLine = false; ///< what is shown is what the command line asked for
    bool m_pictureDue = false;      ///< the picture is taken as soon as everything is painted

    PageContent m_content;
    std::vector<std::unique_ptr<CMonitorPage>> m_pages; ///< by recording::kPageNames; made when first shown
    CMonitorPage* m_page = nullptr;                     ///< the one that is shown
    bool m_pageChosen = false;                          ///< a person has chosen it

    bool m_filled = false;             ///< see Filled
    HMENU m_menuWhileFilled = nullptr; ///< the window's menu while a page fills it
    CStatusPanes m_status;
    StatusTexts m_texts;  ///< what the status bar shows, but for the notice
    std::string m_notice; ///< stands for a short time in place of the first text
    std::string m_title = "Kavlix Monitor";

    std::unique_ptr<recording::RecordingLoader> m_loader; ///< set while reading
    std::vector<std::string> m_paths;                     ///< the files that are shown or read
    MachineCounters m_counters;
};

} // namespace kavlix::monitor

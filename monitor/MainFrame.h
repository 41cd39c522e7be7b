#pragma once

#include "monitor/LiveReadings.h"
#include "monitor/MonitorGraph.h"
#include "monitor/StatusPanes.h"
#include "monitor/recording/Options.h"
#include "monitor/recording/RecordingLoader.h"
#include "monitor/recording/SampleText.h"

#include <afxwin.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// The main window: a graph over a status bar. It shows recordings, which it reads in slices while the
/// message loop is idle, or live readings of the machine.
class CMainFrame : public CFrameWnd {
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

    /// The graph that fills the window's whole inside; null while menu bar and status bar are there.
    const CMonitorGraph* Filling() const { return m_filling; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    afx_msg void OnSelectionChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointerMoved(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointerLeft(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnLegendDoubleClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCaptionDoubleClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnMaximize(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnDataRemoved(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCopied(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnNotCopied(NMHDR* pNMHDR, LRESULT* pResult);

    afx_msg void OnEditGraph(UINT nID);
    afx_msg void OnEditCopy();
    afx_msg void OnUpdateEditCopy(CCmdUI* pCmdUI);
    afx_msg void OnUpdateClearMark(CCmdUI* pCmdUI);
    afx_msg void OnUpdateRemoveData(CCmdUI* pCmdUI);
    afx_msg void OnViewFill();
    afx_msg void OnUpdateViewFill(CCmdUI* pCmdUI);
    afx_msg void OnFileOpen();
    afx_msg void OnFileLive();
    afx_msg void OnFileSavePicture();
    afx_msg void OnViewStyle(UINT nID);
    afx_msg void OnUpdateViewStyle(CCmdUI* pCmdUI);
    afx_msg void OnViewLegend();
    afx_msg void OnUpdateViewLegend(CCmdUI* pCmdUI);
    afx_msg void OnViewGrid(UINT nID);
    afx_msg void OnUpdateViewGrid(CCmdUI* pCmdUI);
    afx_msg void OnViewRange(UINT nID);
    afx_msg void OnUpdateViewRange(CCmdUI* pCmdUI);
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

    void BeginReading(std::vector<std::string> paths);
    void ReadSlice();
    void CancelReading();
    void ShowRecording(recording::Recording read);
    void ShowNothing(const std::string& title);
    void BeginLive();
    void TakeLiveReading();
    void EndAsAsked();
    void TakePicture();
    void LayOut();
    void Fill(CMonitorGraph* graph);
    void RemoveBefore(int shown);
    GraphSource LiveSource() const;
    GraphSettings LiveSettings() const;

    void NameSource(const std::string& title);
    void SetStatus(std::vector<std::string> text, const std::string& summary);
    void ShowSelection();
    void RefreshStatus();
    void ShowStatus();
    void Say(const std::string& notice);
    recording::ValueDigits Digits() const;
    std::vector<std::string> MarkTexts(const CMonitorGraph::Mark& mark) const;
    std::vector<std::string> PointerTexts();
    std::string RangeText() const;
    std::size_t SampleCount() const;
    std::string SourceText() const;

    recording::Options m_options;
    int& m_exitStatus;
    bool m_fromCommandLine = false; ///< what is shown is what the command line asked for
    bool m_pictureDue = false;      ///< the picture is taken as soon as everything is painted

    CMonitorGraph m_graph;
    CMonitorGraph* m_filling = nullptr; ///< see Filling
    HMENU m_menuWhileFilled = nullptr;  ///< the window's menu while a graph fills it
    CStatusPanes m_status;
    StatusTexts m_texts;             ///< what the status bar shows, but for the notice
    std::string m_notice;            ///< stands for a short time in place of the first text
    std::optional<CPoint> m_pointer; ///< where the mouse pointer is in the graph, client pixels
    std::string m_title = "Kavlix Monitor";

    std::unique_ptr<recording::RecordingLoader> m_loader; ///< set while reading
    std::vector<std::string> m_paths;                     ///< the files that are shown or read
    std::shared_ptr<const recording::Recording>
        m_recording; ///< null while reading and while readings are live

    std::unique_ptr<LiveReadings> m_live; ///< set while readings are live
    MachineCounters m_counters;
};

} // namespace kavlix::monitor

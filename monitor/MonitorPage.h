#pragma once

#include "monitor/GraphSettings.h"
#include "monitor/LiveReadings.h"
#include "monitor/MonitorGraph.h"
#include "monitor/recording/SampleText.h"

#include <afxwin.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// What the pages show: a recording, live readings, or nothing but a title.
struct PageContent {
    unsigned generation = 0; ///< another number: other content, to be shown from its beginning
    unsigned cuts = 0;       ///< how often a person has removed samples at the head
    std::uint64_t lost = 0;  ///< samples that went at the head of Source().recording since then
    std::shared_ptr<const recording::Recording> recording; ///< what was read; null while nothing is, or live
    std::unique_ptr<LiveReadings> live;                    ///< set while readings are live
    GraphSettings settings;                                ///< what a person chose; all pages share it
    std::optional<std::uint64_t> marked; ///< the sample that was marked on a page, those that went counted

    /// Index of the marked sample in Source().recording, if it is still there.
    std::optional<std::size_t> MarkedSample() const;

    /// The recording, or the live readings of the last minutes as one.
    GraphSource Source() const;
};

/// What a page may ask of the window it stands in.
class PageHost {
public:
    virtual const PageContent& Content() const = 0;

    /// Takes other settings; the page is updated.
    virtual void ChangeSettings(GraphSettings settings) = 0;

    /// Removes the oldest samples of the recording or of all live readings that are kept; the page is
    /// updated, also when the count is 0.
    virtual void RemoveHead(std::size_t count) = 0;

    /// Keeps at most so many live readings from now on; the page is updated.
    virtual void KeepAtMost(std::size_t count) = 0;

    /// A person did something to what is shown: the page is asked for its texts again.
    virtual void ShowSelection() = 0;

    /// What is under the mouse pointer may have changed: the page is asked for its PointerTexts.
    virtual void ShowPointer() = 0;

    /// Says something for a short time, or until ShowSelection.
    virtual void Say(const std::string& notice) = 0;

    /// Whether the page fills the window's whole inside, without menu bar and status bar.
    virtual bool Filled() const = 0;
    virtual void Fill(bool fill) = 0;

protected:
    ~PageHost() = default;
};

/// One way to show the content: a child window over the status bar. The main window shows one page at a time
/// and offers it every command first; a page handles its own in its message map.
///
/// A new page is a class, its name in recording::kPageNames, a line in the table of Pages.cpp, its command,
/// key and menu in Monitor.rc.
class CMonitorPage : public CWnd {
public:
    explicit CMonitorPage(PageHost& host) : m_host(host) {}

    /// Creates the window, hidden.
    bool CreatePage(CWnd& frame, UINT id);

    /// Brings the picture to what Content() is now. Called when the content or its settings have changed, and
    /// when the page comes to the front; hidden pages are not called.
    virtual void Update() = 0;

    /// Work that is done in pieces while no message waits; a picture for `--shot` waits for its end.
    /// @return whether there is more to do
    virtual bool WorkInIdle() { return false; }

    // ---- Texts for the status bar, longest form first ----

    /// The marked sample; empty: nothing is marked.
    virtual std::vector<std::string> MarkTexts() { return {}; }

    /// What stands under the mouse pointer; empty: nothing.
    virtual std::vector<std::string> PointerTexts() { return {}; }

    /// What is shown when nothing is marked. By default the latest live readings, or the recording's ends.
    virtual std::vector<std::string> ViewTexts();

    // ---- What the main window's own commands need ----

    /// The sample that goes as PageContent::marked to the page that is shown next: by default what was marked
    /// before this page was shown.
    virtual std::optional<std::size_t> MarkedSample() { return Content().MarkedSample(); }

    /// Whether Escape has something to do on the page before it leaves the filled window.
    virtual bool HasMark() { return false; }

    /// Whether the page may fill the window.
    virtual bool CanFill() { return true; }

    /// The page fills the window from now on, or does not.
    virtual void ShowFilling(bool) {}

    /// The samples of Source().recording in view, for the preview of the settings.
    virtual recording::VisibleRange VisibleSamples();

protected:
    /// Moves the page's windows.
    virtual void LayOut(CSize size) = 0;

    /// The window that gets the keys.
    virtual CWnd& FocusWindow() = 0;

    PageHost& Host() { return m_host; }
    const PageContent& Content() const { return m_host.Content(); }

    /// The time and, of the series that are seen first, names and values; of a long text the end may be cut.
    std::vector<std::string> TextsOfSample(recording::Time time, const std::vector<double>& values,
                                           const std::vector<recording::Time>& times,
                                           recording::ValueDigits digits) const;

    /// First and last time of a part of the recording.
    static std::string RangeText(const recording::Recording& recording, recording::VisibleRange range);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

private:
    PageHost& m_host;
};

} // namespace kavlix::monitor

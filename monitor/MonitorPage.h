// SPDX-License-Identifier: MIT
// The content of the pages, and the base of all pages.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "monitor/GraphSettings.h"
#include "monitor/LiveReadings.h"
#include "monitor/MonitorGraph.h"
#include "monitor/recording/SampleText.h"

namespace kavlix::monitor {

/// The content of the pages: a recording, live readings, or only a title.
struct PageContent {
    unsigned generation = 0; ///< increases when new content replaces the old
    unsigned cuts = 0;       ///< number of calls of PageHost::RemoveHead
    std::uint64_t lost = 0;  ///< number of samples removed from Source().recording's head in this generation
    std::shared_ptr<const recording::Recording> recording; ///< null with live readings and during reading
    std::unique_ptr<LiveReadings> live;                    ///< null unless the content is live readings
    GraphSettings settings;                                ///< shared by all pages
    /// The sample that was marked when the person last chose a page, counted from the generation's first one.
    std::optional<std::uint64_t> marked;

    /// Index of the sample `marked` in Source().recording; none when there is no mark or it was removed.
    std::optional<std::size_t> MarkedSample() const;

    /// The recording, or the live readings of the last minutes as a recording. GraphSource::recording is null
    /// when there is nothing to show.
    GraphSource Source() const;
};

/// What a page may ask of its host, the main window.
class PageHost {
public:
    virtual const PageContent& Content() const = 0;

    /// Changes the settings and updates the page.
    virtual void ChangeSettings(GraphSettings settings) = 0;

    /// Removes the oldest `count` samples of the recording or of the kept live readings. Updates the page,
    /// even when `count` is 0.
    virtual void RemoveHead(std::size_t count) = 0;

    /// Sets the number of live readings to keep and updates the page.
    virtual void KeepAtMost(std::size_t count) = 0;

    /// The page calls this when the view or the mark has changed. The host then asks the page for all
    /// texts, except while files are being read.
    virtual void ShowSelection() = 0;

    /// The page calls this when the mouse pointer has moved or has left. The host then asks the page for its
    /// PointerTexts.
    virtual void ShowPointer() = 0;

    /// Shows a notice for a short time. A call of ShowSelection removes the notice earlier.
    virtual void Say(const std::string& notice) = 0;

    /// Whether the page fills the whole client area, without menu bar and status bar.
    virtual bool Filled() const = 0;
    virtual void Fill(bool fill) = 0;

protected:
    ~PageHost() = default;
};

/// One way to show the content: a child window above the status bar. The main window shows one page at a time
/// and routes every command to that page first. A page handles its own commands in its message map.
///
/// A new page needs a class, a name in recording::kPageNames, a line in the table of Pages.cpp, a command in
/// resource.h, and a key and a menu in Monitor.rc.
class CMonitorPage : public CWnd {
public:
    explicit CMonitorPage(PageHost& host) : m_host(host) {}

    /// Creates the window, hidden.
    bool CreatePage(CWnd& frame, UINT id);

    /// Shows the current Content(). The host calls Update when the content or its settings have changed, and
    /// when the page becomes the current one. The host does not call it while another page is the current
    /// one.
    virtual void Update() = 0;

    /// Does one piece of idle work. Returns false when there was none to do; `--shot` waits for that.
    virtual bool WorkInIdle() { return false; }

    // ---- Texts for the status bar, in several forms, the longest first ----

    /// The marked sample; empty without a mark.
    virtual std::vector<std::string> MarkTexts() { return {}; }

    /// The sample under the mouse pointer; empty without one.
    virtual std::vector<std::string> PointerTexts() { return {}; }

    /// The text to show when there is no mark. By default the latest live reading, or the recording's first
    /// and last time.
    virtual std::vector<std::string> ViewTexts();

    // ---- What the main window's own commands need ----

    /// The sample that is marked on this page, as an index into Source().recording. The next page receives it
    /// as PageContent::marked. By default the sample that this page received.
    virtual std::optional<std::size_t> MarkedSample() { return Content().MarkedSample(); }

    /// Whether there is a mark. If so, Escape removes the mark; if not, Escape ends the filled state of the
    /// window.
    virtual bool HasMark() { return false; }

    /// Whether the page may fill the window.
    virtual bool CanFill() { return true; }

    /// Tells the page whether it fills the window. The host calls this when that changes, and when the page
    /// becomes the current one or is no longer.
    virtual void ShowFilling(bool) {}

    /// The visible samples of Source().recording, for the preview of the settings dialog.
    virtual recording::VisibleRange VisibleSamples();

protected:
    /// Moves the page's child windows into a client area of `size` pixels.
    virtual void LayOut(CSize size) = 0;

    /// The child window that gets the focus.
    virtual CWnd& FocusWindow() = 0;

    PageHost& Host() { return m_host; }
    const PageContent& Content() const { return m_host.Content(); }

    /// SampleTexts of a sample, visible series before hidden ones because the end of a long text may be cut.
    std::vector<std::string> TextsOfSample(recording::Time time, const std::vector<double>& values,
                                           const std::vector<recording::Time>& times,
                                           recording::ValueDigits digits) const;

    /// First and last time of a part of the recording as text, with fractions of seconds in less than 10 seconds.
    static std::string RangeText(const recording::Recording& recording, recording::VisibleRange range);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

private:
    PageHost& m_host;
};

} // namespace kavlix::monitor

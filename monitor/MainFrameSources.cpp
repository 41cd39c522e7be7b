// SPDX-License-Identifier: MIT
// Where the main window's content comes from: files or live readings; and how the program ends.

#include "monitor/MainFrame.h"

#include <algorithm>
#include <utility>

#include "monitor/Console.h"
#include "monitor/MachineCounters.h"
#include "monitor/WindowPicture.h"
#include "monitor/recording/CheckReport.h"
#include "monitor/recording/NumberText.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::Recording;
using recording::RecordingLoader;

namespace {

constexpr UINT kLiveInterval = 1000;      // milliseconds between live readings
constexpr double kLivePictureSeconds = 3; // time before a picture of live readings without --seconds
constexpr double kMillisPerSecond = 1000;
constexpr std::size_t kNamedFiles = 2;       // most files that a title names; otherwise only their number
constexpr double kLongestTimer = 0x7FFFFFFF; // milliseconds, the limit of SetTimer

std::string BaseName(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\:");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

CGraphCtrl::GraphStyle ToGraphStyle(recording::ViewStyle style) {
    return static_cast<CGraphCtrl::GraphStyle>(style);
}

std::vector<std::string> NamesOf(const Recording& recording) {
    std::vector<std::string> names;
    for (const recording::Series& series : recording.series)
        names.push_back(series.name);
    return names;
}

} // namespace

void CMainFrame::Start() {
    if (!m_options.files.empty())
        BeginReading(m_options.files);
    else
        BeginLive();
    m_fromCommandLine = true;

    double seconds = m_options.seconds.value_or(0);
    if (!m_options.seconds && m_content.live && !m_options.shot.empty())
        seconds = kLivePictureSeconds;
    if (seconds > 0)
        SetTimer(kEndTimer, static_cast<UINT>(std::clamp(seconds * kMillisPerSecond, 1.0, kLongestTimer)),
                 nullptr);
}

bool CMainFrame::WorkInIdle() {
    if (m_loader) {
        ReadSlice();
        return true;
    }
    if (m_page->WorkInIdle())
        return true;
    if (std::exchange(m_pictureDue, false))
        TakePicture();
    return false;
}

void CMainFrame::BeginReading(std::vector<std::string> paths) {
    KillTimer(kLiveTimer);
    m_fromCommandLine = false;
    m_paths = std::move(paths);
    m_loader = std::make_unique<RecordingLoader>(m_paths);
    NameSource("Kavlix Monitor - " + SourceText());
    ShowNothing("Reading " + SourceText());
}

void CMainFrame::ShowNothing(const std::string& title) {
    GraphSettings settings;
    settings.title = title;
    settings.legend = false;
    settings.gridY = false;
    m_content.settings = std::move(settings);
    m_content.live.reset();
    m_content.recording.reset();
    ShowOtherContent();
}

void CMainFrame::ReadSlice() {
    const recording::Progress progress = m_loader->Step(RecordingLoader::kSlice);
    if (progress.finished) {
        const std::unique_ptr<RecordingLoader> loader = std::move(m_loader);
        ShowRecording(loader->Take());
        return;
    }
    const std::string file =
        progress.file < m_paths.size() ? BaseName(m_paths[progress.file]) : std::string();
    SetStatus({"Reading " + file + "   " + std::to_string(progress.Percent()) + " %   (Escape stops)"},
              recording::FormatCount(progress.rows) + " rows");
}

void CMainFrame::CancelReading() {
    const std::unique_ptr<RecordingLoader> loader = std::move(m_loader);
    loader->Cancel();
    ShowRecording(loader->Take());
}

/// Shows the new content after the caller has replaced the old one.
void CMainFrame::ShowOtherContent() {
    ++m_content.generation;
    m_content.lost = 0;
    m_content.marked.reset();
    if (m_pageChosen || !ShowPage(DefaultPage()))
        m_page->Update();
}

void CMainFrame::ShowRecording(Recording read) {
    const auto style = m_options.style.value_or(recording::ViewStyle::Line);
    if (read.Empty()) {
        ShowNothing("Nothing to show: " + SourceText());
        m_content.recording = std::make_shared<const Recording>(std::move(read));
    } else {
        m_content.recording = std::make_shared<const Recording>(std::move(read));
        m_content.settings = DefaultSettings(SourceText(), NamesOf(*m_content.recording),
                                             m_content.recording->times.size(), ToGraphStyle(style));
        ShowOtherContent();
    }
    ShowSelection();
    if (!m_fromCommandLine)
        return;
    m_exitStatus = static_cast<int>(m_content.recording->GetStatus());
    if (!m_options.shot.empty()) {
        WriteError(recording::MessageReport(*m_content.recording));
        m_pictureDue = !m_options.seconds;
    } else if (m_content.recording->GetStatus() == recording::Status::Nothing) {
        PostMessage(WM_COMMAND, ID_VIEW_MESSAGES);
    }
}

void CMainFrame::BeginLive() {
    m_loader.reset();
    m_paths.clear();
    m_fromCommandLine = false;
    m_content.recording.reset();
    m_content.live = std::make_unique<LiveReadings>();
    m_counters = ReadMachineCounters();
    const auto style = m_options.style.value_or(recording::ViewStyle::Line);
    m_content.settings = DefaultSettings("Live readings of this machine", m_content.live->SeriesNames(),
                                         LiveReadings::kHistory, ToGraphStyle(style));
    ShowOtherContent();
    NameSource("Kavlix Monitor - live readings");
    RefreshStatus();
    SetTimer(kLiveTimer, kLiveInterval, nullptr);
}

void CMainFrame::TakeLiveReading() {
    recording::MachineCounters now = ReadMachineCounters();
    LiveChanged(m_content.live->Add(LocalTimeNow(), recording::RatesBetween(m_counters, now)));
    m_counters = std::move(now);
    RefreshStatus();
}

/// Updates the page, and the units in the series' names.
void CMainFrame::LiveChanged(const LiveReadings::Change& change) {
    m_content.lost += change.removed;
    const std::vector<std::string> names = m_content.live->SeriesNames();
    std::vector<SeriesSettings>& series = m_content.settings.series;
    for (std::size_t i = 0; i < names.size() && i < series.size(); ++i)
        series[i].name = names[i];
    m_page->Update();
}

void CMainFrame::RemoveHead(std::size_t count) {
    ++m_content.cuts;
    if (m_content.live) {
        LiveChanged(m_content.live->RemoveHead(count));
        return;
    }
    if (m_content.recording && count > 0)
        m_content.recording =
            std::make_shared<const Recording>(recording::WithoutHead(*m_content.recording, count));
    m_content.lost += count;
    m_page->Update();
}

void CMainFrame::KeepAtMost(std::size_t count) {
    if (m_content.live)
        LiveChanged(m_content.live->KeepAtMost(count));
}

void CMainFrame::ChangeSettings(GraphSettings settings) {
    m_content.settings = std::move(settings);
    m_page->Update();
    ShowSelection();
}

void CMainFrame::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == kLiveTimer && m_content.live) {
        TakeLiveReading();
    } else if (nIDEvent == kNoticeTimer) {
        Say("");
    } else if (nIDEvent == kEndTimer) {
        KillTimer(kEndTimer);
        EndAsAsked();
    } else {
        CFrameWnd::OnTimer(nIDEvent);
    }
}

void CMainFrame::EndAsAsked() {
    if (m_loader)
        CancelReading();
    if (m_options.shot.empty())
        PostMessage(WM_CLOSE);
    else
        m_pictureDue = true;
}

void CMainFrame::TakePicture() {
    const std::string fault = SavePicture(*this, m_options.shot);
    if (!fault.empty()) {
        WriteError("--shot: " + fault + "\n");
        m_exitStatus = static_cast<int>(recording::Status::Nothing);
    }
    PostMessage(WM_CLOSE);
}

std::string CMainFrame::SourceText() const {
    if (m_paths.size() > kNamedFiles)
        return std::to_string(m_paths.size()) + " recordings";
    std::string text;
    for (const std::string& path : m_paths)
        text += (text.empty() ? "" : ", ") + BaseName(path);
    return text;
}

} // namespace kavlix::monitor

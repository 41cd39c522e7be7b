// SPDX-License-Identifier: MIT
// The main window's texts: in the status bar, or in the title while a page fills the window.

#include "monitor/MainFrame.h"

#include <algorithm>
#include <utility>

#include "monitor/TextConversion.h"
#include "monitor/recording/CheckReport.h"

namespace kavlix::monitor {
namespace {

constexpr UINT kNoticeTime = 4000; // longest time of a notice, in milliseconds
constexpr int kTitleButtons = 5;   // width of icon, three buttons and their distances, in button widths

bool FitsTitleBar(CWnd& frame, const std::string& title) {
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    CFont font;
    if (!::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) ||
        !font.CreateFontIndirect(&metrics.lfCaptionFont))
        return true;
    CRect window;
    frame.GetWindowRect(&window);
    CWindowDC dc(&frame);
    CFont* const old = dc.SelectObject(&font);
    const LONG width = dc.GetTextExtent(ToText(title)).cx;
    dc.SelectObject(old);
    return width <= window.Width() - kTitleButtons * ::GetSystemMetrics(SM_CXSIZE);
}

} // namespace

/// Sets the window's title for new content, and clears the notice and the pointer text of the old content.
void CMainFrame::NameSource(const std::string& title) {
    m_title = title;
    m_notice.clear();
    m_texts.pointer.clear();
    m_status.ForgetPointerRoom();
    ShowStatus();
}

void CMainFrame::SetStatus(std::vector<std::string> text, const std::string& summary) {
    m_texts.text = std::move(text);
    m_texts.summary = summary;
    ShowStatus();
}

void CMainFrame::ShowStatus() {
    StatusTexts texts = m_texts;
    if (!m_notice.empty())
        texts.text = {m_notice};
    std::string title = m_title;
    if (m_filled) {
        // Take shorter and shorter forms of both texts until the title bar has room.
        const std::size_t forms = std::max(texts.text.size(), texts.pointer.size());
        for (std::size_t form = 0; form < forms; ++form) {
            title = texts.text.empty() ? m_title : texts.text[std::min(form, texts.text.size() - 1)];
            if (!texts.pointer.empty())
                title += "   |   " + texts.pointer[std::min(form, texts.pointer.size() - 1)];
            if (FitsTitleBar(*this, title))
                break;
        }
    } else {
        m_status.Show(texts);
    }
    CString shown;
    GetWindowText(shown);
    const CString wanted = ToText(title);
    if (shown != wanted)
        SetWindowText(wanted);
}

/// Shows a notice until ShowSelection, or for a short time. An empty notice removes the current one.
void CMainFrame::Say(const std::string& notice) {
    m_notice = notice;
    if (notice.empty())
        KillTimer(kNoticeTimer);
    else
        SetTimer(kNoticeTimer, kNoticeTime, nullptr);
    ShowStatus();
}

void CMainFrame::ShowSelection() {
    m_notice.clear();
    RefreshStatus();
}

void CMainFrame::RefreshStatus() {
    // During reading, the status bar shows the progress.
    if (m_loader)
        return;
    std::vector<std::string> texts = m_page->MarkTexts();
    if (texts.empty())
        texts = m_page->ViewTexts();
    m_texts.pointer = m_page->PointerTexts();
    SetStatus(std::move(texts),
              m_content.recording ? recording::StatusLine(*m_content.recording) : std::string());
}

void CMainFrame::ShowPointer() {
    std::vector<std::string> texts = m_page->PointerTexts();
    if (texts == m_texts.pointer)
        return;
    m_texts.pointer = std::move(texts);
    ShowStatus();
}

} // namespace kavlix::monitor

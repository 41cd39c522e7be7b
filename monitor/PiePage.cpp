// SPDX-License-Identifier: MIT
// The pie page: its two kinds of pies, heading, texts and commands.

#include "monitor/PiePage.h"

#include <afxres.h>

#include <algorithm>
#include <cstdio>
#include <utility>

#include "monitor/MachineCounters.h"
#include "monitor/Notifications.h"
#include "monitor/PictureCopy.h"
#include "monitor/TextConversion.h"
#include "monitor/recording/JoinedSamples.h"
#include "monitor/recording/MemoryParts.h"
#include "monitor/recording/NumberText.h"
#include "monitor/recording/TextCut.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::MemoryPart;

namespace {

constexpr COLORREF kBackground = RGB(255, 255, 255);
constexpr COLORREF kTitleColor = RGB(0, 0, 0);
constexpr COLORREF kNoteColor = RGB(90, 90, 90);

// Pixels.
constexpr int kTitleHeight = 18;
constexpr int kNoteHeight = 14;
constexpr int kMargin = 6;

/// Colours of the memory's parts, in the order of MemoryPart::Kind.
constexpr COLORREF kMemoryColors[] = {RGB(20, 90, 180),   RGB(215, 85, 0),  RGB(115, 65, 175),
                                      RGB(190, 215, 190), RGB(135, 85, 50), RGB(225, 215, 200)};

std::string PercentText(double share) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", 100 * share);
    return text;
}

void DrawLine(CDC& dc, CFont& font, COLORREF color, const std::string& text, CRect line) {
    CFont* const before = dc.SelectObject(&font);
    dc.SetTextColor(color);
    const std::string shown = recording::CutToFit(
        text, [&](const std::string& tried) { return dc.GetTextExtent(ToText(tried)).cx <= line.Width(); });
    dc.DrawText(ToText(shown), line, DT_CENTER | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    dc.SelectObject(before);
}

} // namespace

BEGIN_MESSAGE_MAP(CPiePage, CMonitorPage)
    ON_WM_CREATE()

    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CPiePage::OnPrintClient)

    ON_NOTIFY(MPN_SELECTION, IDC_PIE, &CPiePage::OnSelection)

    ON_COMMAND(ID_EDIT_COPY, &CPiePage::OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CPiePage::OnUpdateEditCopy)
    ON_COMMAND(ID_GRAPH_CLEAR_SELECTION_MARK, &CPiePage::OnClearMark)
    ON_UPDATE_COMMAND_UI(ID_GRAPH_CLEAR_SELECTION_MARK, &CPiePage::OnUpdateClearMark)
END_MESSAGE_MAP()

int CPiePage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CMonitorPage::OnCreate(lpCreateStruct) == failed)
        return failed;
    const auto make = [](CFont& font, int height, int weight) {
        font.CreateFont(-height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                        CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, kFontFace);
    };
    make(m_titleFont, kTitleHeight, FW_BOLD);
    make(m_noteFont, kNoteHeight, FW_NORMAL);
    return m_pie.CreateChild(*this, IDC_PIE) ? 0 : failed;
}

void CPiePage::Update() {
    const PageContent& content = Content();
    Picture picture = content.live ? MemoryPicture() : SamplePicture();
    if (std::exchange(m_generation, content.generation) != content.generation)
        m_pie.Select(-1);
    const bool heading = picture.title != m_picture.title || picture.note != m_picture.note;
    const int height = HeadingHeight();
    m_picture = std::move(picture);
    m_pie.Show(m_picture.pieces, m_picture.pieces.empty() ? content.settings.title : std::string());
    if (HeadingHeight() != height) {
        CRect client;
        GetClientRect(&client);
        LayOut(client.Size());
    }
    if (heading)
        Invalidate(FALSE);
}

CPiePage::Picture CPiePage::MemoryPicture() const {
    Picture picture;
    const auto memory = ReadMachineMemory();
    if (!memory) {
        picture.title = "This system does not tell what its memory holds";
        return picture;
    }
    const std::vector<MemoryPart> parts = recording::PartsOf(*memory);
    double total = 0;
    for (const MemoryPart& part : parts)
        total += static_cast<double>(part.bytes);
    for (const MemoryPart& part : parts) {
        const auto bytes = static_cast<double>(part.bytes);
        picture.names.push_back(recording::NameOf(part.kind));
        picture.values.push_back(recording::FormatBytes(bytes));
        picture.pieces.push_back({picture.names.back() + ", " + picture.values.back(),
                                  kMemoryColors[part.kind], total > 0 ? bytes / total : 0});
    }
    picture.total = recording::FormatBytes(total);
    picture.title = std::string(memory->pageFile > 0 ? "Memory and page file" : "Memory") +
                    " of this machine, " + picture.total;
    return picture;
}

CPiePage::Picture CPiePage::SamplePicture() const {
    Picture picture;
    const PageContent& content = Content();
    if (!content.recording || content.recording->Empty())
        return picture;
    const recording::Recording& all = *content.recording;
    const std::vector<SeriesSettings>& series = content.settings.series;
    const auto marked = content.MarkedSample();
    const std::size_t row = marked ? *marked : recording::LastFullRow(all);

    const std::vector<double> values = recording::ValuesAt(all, row);
    std::vector<std::size_t> shown;
    std::vector<double> divided;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < series.size() && i < values.size(); ++i) {
        if (!series[i].visible)
            continue;
        shown.push_back(i);
        divided.push_back(values[i]);
        names.push_back(series[i].name);
    }
    const recording::PieShares shares = recording::SharesOf(divided);
    for (const recording::PieShares::Part& part : shares.parts) {
        const SeriesSettings& of = series[shown[part.index]];
        picture.names.push_back(of.name);
        picture.values.push_back(recording::FormatNumber(part.value));
        picture.pieces.push_back({of.name, of.color, part.share});
    }
    char total[32];
    std::snprintf(total, sizeof total, "%.6g", shares.total);
    picture.total = total;
    picture.title = content.settings.title + ", " + recording::FormatExact(all.times[row]) +
                    (all.Zoned() ? " UTC" : "") + (marked ? " (marked)" : " (last sample)");
    picture.note = recording::LeftOutText(shares, names);
    return picture;
}

std::vector<std::string> CPiePage::MarkTexts() {
    const int selected = m_pie.Selected();
    if (selected < 0)
        return {};
    const auto piece = static_cast<std::size_t>(selected);
    const std::string value = m_picture.values[piece] + "   " + PercentText(m_picture.pieces[piece].share);
    const std::string text = m_picture.names[piece] + ": " + value;
    return {text + " of " + m_picture.total, text, value};
}

std::vector<std::string> CPiePage::ViewTexts() {
    if (Content().live || m_picture.title.empty())
        return CMonitorPage::ViewTexts();
    return {m_picture.title + (m_picture.note.empty() ? "" : "   ") + m_picture.note, m_picture.title};
}

int CPiePage::HeadingHeight() const {
    if (m_picture.title.empty())
        return 0;
    return kMargin + kTitleHeight + (m_picture.note.empty() ? 0 : kMargin + kNoteHeight) + kMargin;
}

void CPiePage::LayOut(CSize size) {
    const int heading = std::min<int>(HeadingHeight(), size.cy);
    m_pie.MoveWindow(0, heading, size.cx, size.cy - heading);
}

void CPiePage::DrawHeading(CDC& dc, int width) const {
    const int height = HeadingHeight();
    dc.FillSolidRect(CRect(0, 0, width, height), kBackground);
    dc.SetBkMode(TRANSPARENT);
    CRect line(kMargin, kMargin, width - kMargin, kMargin + kTitleHeight + kMargin / 2);
    auto& page = const_cast<CPiePage&>(*this);
    DrawLine(dc, page.m_titleFont, kTitleColor, m_picture.title, line);
    line.OffsetRect(0, kTitleHeight + kMargin);
    line.bottom = line.top + kNoteHeight + kMargin / 2;
    DrawLine(dc, page.m_noteFont, kNoteColor, m_picture.note, line);
}

void CPiePage::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    DrawHeading(dc, client.Width());
}

LRESULT CPiePage::OnPrintClient(WPARAM wParam, LPARAM) {
    CDC* const dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
    CRect client;
    GetClientRect(&client);
    const int state = dc->SaveDC();
    DrawHeading(*dc, client.Width());
    dc->OffsetViewportOrg(0, HeadingHeight());
    m_pie.Draw(*dc);
    dc->RestoreDC(state);
    return 0;
}

void CPiePage::OnSelection(NMHDR*, LRESULT* pResult) {
    Host().ShowSelection();
    *pResult = 0;
}

void CPiePage::OnEditCopy() {
    Host().Say(CopyTextOf(CopyAsMetafile(
        *this,
        [this](CDC& dc) { SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT); })));
}

void CPiePage::OnUpdateEditCopy(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_picture.pieces.empty());
}

void CPiePage::OnClearMark() {
    m_pie.Select(-1);
    Host().ShowSelection();
}

void CPiePage::OnUpdateClearMark(CCmdUI* pCmdUI) {
    pCmdUI->Enable(HasMark());
}

} // namespace kavlix::monitor

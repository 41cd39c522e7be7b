// SPDX-License-Identifier: MIT
// Widths and texts of the status bar's panes.

#include "monitor/StatusPanes.h"

#include <algorithm>

#include "monitor/TextConversion.h"
#include "monitor/recording/TextCut.h"

namespace kavlix::monitor {

using recording::PaneWidths;

namespace {

constexpr int kTextMargin = 16; // pixels on the left and right of a pane's text, together
constexpr int kGripRoom = 16;   // pixels of the sizing grip in the last pane
constexpr int kPanes = 3;

} // namespace

bool CStatusPanes::CreateBar(CWnd& parent, UINT id) {
    return Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM | SBARS_SIZEGRIP, CRect(0, 0, 0, 0), &parent, id) !=
           FALSE;
}

void CStatusPanes::Show(const StatusTexts& texts) {
    CRect client;
    GetClientRect(&client);
    CClientDC dc(this);
    CFont* const old = dc.SelectObject(GetFont());
    const auto extent = [&dc](const std::string& text) {
        return text.empty() ? 0 : static_cast<int>(dc.GetTextExtent(ToText(text)).cx) + kTextMargin;
    };
    PaneWidths wanted;
    const auto longest = [](const std::vector<std::string>& forms) {
        return forms.empty() ? std::string() : forms.front();
    };
    wanted.text = extent(longest(texts.text));
    wanted.summary = extent(texts.summary) + kGripRoom;
    m_pointerRoom = std::max(m_pointerRoom, extent(longest(texts.pointer)));
    wanted.pointer = texts.pointer.empty() ? 0 : m_pointerRoom;
    const PaneWidths widths = recording::SharePanes(client.Width(), wanted);

    const auto fitted = [&](const std::vector<std::string>& forms, int room) {
        const auto fits = [&](const std::string& tried) { return extent(tried) <= room; };
        const auto found = std::find_if(forms.begin(), forms.end(), fits);
        if (found != forms.end())
            return *found;
        return forms.empty() ? std::string() : recording::CutToFit(forms.back(), fits);
    };
    const std::string shown[kPanes] = {fitted(texts.text, widths.text), fitted(texts.pointer, widths.pointer),
                                       fitted({texts.summary}, widths.summary - kGripRoom)};
    if (old)
        dc.SelectObject(old);

    if (widths.text != m_widths.text || widths.pointer != m_widths.pointer ||
        widths.summary != m_widths.summary) {
        // Without a summary there is no third pane: the second one extends to the end.
        int edges[kPanes] = {widths.text, widths.text + widths.pointer, -1};
        const int panes = texts.summary.empty() ? kPanes - 1 : kPanes;
        edges[panes - 1] = -1;
        SetParts(panes, edges);
        m_widths = widths;
    }
    for (int pane = 0; pane < kPanes; ++pane) {
        if (m_shown[pane] == shown[pane])
            continue;
        SetText(ToText(shown[pane]), pane, 0);
        m_shown[pane] = shown[pane];
    }
    UpdateWindow();
}

} // namespace kavlix::monitor

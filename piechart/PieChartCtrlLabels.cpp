// SPDX-License-Identifier: MIT
// CPieChartCtrl: draws labels, percentages and leader lines. PlaceLabels decides where they stand.
#include <kavlix/PieChartCtrl.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"
#include "gdi/Text.h"
#include "piechart/PieLabelAbbreviation.h"
#include "piechart/core/PieColors.h"
#include "piechart/core/PieLabels.h"

using namespace kavlix;

namespace {

constexpr COLORREF kSelectedText = RGB(255, 255, 255);
constexpr int kLeaderWidth = 1;

CString PercentText(const CPieChartPiece& piece) {
    constexpr double kPercent = 100.0;
    constexpr double kHighest = 1e9; // higher percentages have no text: it could have hundreds of digits
    const double percent = piece.m_dValue / piece.m_dTotal * kPercent;
    if (!(std::fabs(percent) <= kHighest))
        return CString();
    CString text;
    text.Format(_T("%.1f%%"), percent);
    return text;
}

} // namespace

void CPieChartCtrl::DrawLabels(CDC& dc, const CRect& client, const std::vector<PieSector>& sectors,
                               const CRect& band) {
    SelectGuard font(dc, m_fontSmall);
    PieLabelArea area;
    area.client = ToRect(client);
    area.pie = ToRect(m_rcPie);
    area.startAngle = m_nStartAngle % 360;
    area.lineHeight = std::max<int>(MeasureText(dc, _T("W")).cy, 1);

    // Measuring text is slow, so only the pieces that can get a label are measured.
    const std::vector<int> shown = WidestSectors(sectors, LabelCapacity(area));
    std::vector<CString> texts;
    for (const int index : shown)
        texts.push_back(Piece(index).m_strLabel);
    const std::vector<SharedBeginning> beginnings = FindSharedBeginnings(texts);
    std::vector<PieLabelRequest> requests;
    std::vector<int> breaks;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const CPieChartPiece& piece = Piece(shown[i]);
        PieLabelRequest request;
        request.sector = sectors[static_cast<std::size_t>(shown[i])];
        request.text.narrowest = NarrowestLabel(dc, piece.m_strLabel, beginnings[i]);
        request.text.label = MeasureText(dc, piece.m_strLabel).cx;
        const TextBreak brk = BreakInTwo(dc, piece.m_strLabel);
        request.text.broken = brk.width;
        breaks.push_back(brk.at);
        request.text.percent = MeasureText(dc, PercentText(piece)).cx;
        requests.push_back(request);
    }
    const std::vector<PieLabel> labels = PlaceLabels(area, requests);

    CPen pen;
    pen.CreatePen(PS_SOLID, kLeaderWidth, LegibleOn(m_crBack, m_crOutline));
    SelectGuard leaderPen(dc, pen);
    for (const PieLabel& label : labels) {
        std::vector<POINT> points;
        for (const Point& point : label.leader)
            points.push_back({point.x, point.y});
        if (!points.empty())
            dc.Polyline(points.data(), static_cast<int>(points.size()));
    }
    for (std::size_t i = 0; i < labels.size(); ++i) {
        CPieChartPiece& piece = Piece(shown[i]);
        piece.m_rcItem = ToCRect(labels[i].box);
        // A text that the message's band covers, even in part, is left out: the rest would not be readable.
        CRect hidden;
        PieLabel visible = labels[i];
        if (hidden.IntersectRect(ToCRect(visible.label), band))
            visible.label = {};
        if (hidden.IntersectRect(ToCRect(visible.percent), band))
            visible.percent = {};
        CString text = piece.m_strLabel;
        if (!visible.broken)
            text = AbbreviateLabel(dc, text, beginnings[i], visible.label.Width());
        DrawLabel(dc, piece, visible, text, breaks[i]);
    }
}

void CPieChartCtrl::DrawLabel(CDC& dc, const CPieChartPiece& piece, const PieLabel& label,
                              const CString& strText, int nBreak) {
    const COLORREF inside = piece.m_bSelected ? kSelectedText : piece.m_crText;
    COLORREF beside = inside; // differs only for a label beside the pie
    if (label.outside && piece.m_bSelected) {
        CBrush plate;
        plate.CreateSolidBrush(m_crSelected);
        const CRect box = ToCRect(label.box);
        dc.FillRect(&box, &plate);
    } else if (label.outside) {
        beside = LegibleOn(m_crBack, piece.m_crText);
    }

    constexpr UINT kLine = DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP;
    const UINT facing = !label.outside                                        ? DT_CENTER
                        : label.box.left < m_rcPie.left + m_rcPie.Width() / 2 ? DT_RIGHT
                                                                              : DT_LEFT;
    CRect place = ToCRect(label.label);
    dc.SetTextColor(beside);
    if (label.broken && !place.IsRectEmpty()) {
        const int line = place.Height() / 2;
        const CRect lower(place.left, place.top + line, place.right, place.bottom);
        place.bottom = place.top + line;
        DrawTextIn(dc, place, strText.Left(nBreak), kLine | facing);
        DrawTextIn(dc, lower, strText.Mid(nBreak + 1), kLine | facing);
    } else if (!place.IsRectEmpty()) {
        DrawTextIn(dc, place, strText, kLine | facing);
    }
    place = ToCRect(label.percent);
    if (place.IsRectEmpty())
        return;
    const bool inBox = CRect().IntersectRect(ToCRect(label.box), place) != 0;
    dc.SetTextColor(inBox ? beside : inside);
    DrawTextIn(dc, place, PercentText(piece), kLine | (inBox ? facing : DT_CENTER));
}

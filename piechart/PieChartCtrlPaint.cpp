// SPDX-License-Identifier: MIT
// CPieChartCtrl: paints sectors, outline and messages, on the screen and into picture files.
#include <kavlix/PictureFile.h>
#include <kavlix/PieChartCtrl.h>

#include <algorithm>
#include <cmath>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Mirroring.h"
#include "gdi/Offscreen.h"
#include "gdi/ShapeConversion.h"
#include "gdi/Text.h"
#include "piechart/core/PieColors.h"
#include "piechart/core/PieGeometry.h"

using namespace kavlix;

namespace {

constexpr TCHAR kNoData[] = _T("No Data");

// Lengths are pixels.
constexpr int kOutlineWidth = 1;
constexpr int kSelectionWidth = 2;      // pixels; width of the line that marks a selected sector
constexpr double kSelectionInset = 4.0; // pixels from the line in a selected sector to the sector's boundary
// A sector is a polygon, clipped to the circle: the centre, and outer corners this many radii from the
// centre. At this distance rounding the outer corners to whole pixels does not visibly turn a boundary.
constexpr double kCornerDistance = 8.0;
// Degrees between two outer corners, small enough that the edges between them stay outside the circle.
constexpr double kWidestCorner = 90.0;
// In pixels along the circle. A boundary line is left out if both its sectors are narrower, or if it is
// closer to the line before it or to the full circle's end. The lines at the beginning of the first sector
// and at the end of the last sector are always drawn.
constexpr double kLeastLineDistance = 3.0;
// The boundary lines of many thin sectors would blacken the centre. So a line begins at the distance from the
// centre where the wider of its two sectors is kLeastWidthBetweenLines pixels wide. If that distance is not
// longer than kShortestGapInLine pixels, the line begins at the centre.
constexpr double kLeastWidthBetweenLines = 2.0;
constexpr double kShortestGapInLine = 4.0;
constexpr int kMessagePaddingX = 10;
constexpr int kMessagePaddingY = 6;
constexpr UINT kMessageFormat = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;

CPoint ToCPoint(const Point& point) {
    return CPoint(point.x, point.y);
}

} // namespace

void CPieChartCtrl::OnPaint() {
    CPaintDC paintDc(this);
    CRect client;
    GetClientRect(&client);
    Offscreen offscreen(paintDc, client.Size());
    if (!offscreen.IsReady()) {
        DrawPie(paintDc);
        return;
    }
    DrawPie(offscreen.Dc());
    paintDc.BitBlt(0, 0, client.right, client.bottom, &offscreen.Dc(), 0, 0, SRCCOPY);
}

LRESULT CPieChartCtrl::OnPrintClient(WPARAM wParam, LPARAM) {
    CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
    if (dc == nullptr)
        return Default();
    CRect client;
    GetClientRect(&client);
    const UnmirroredGuard unmirrored(*dc, client.Width());
    DrawPie(*dc);
    return 0;
}

bool CPieChartCtrl::SaveImage(CString strFileName) {
    if (m_hWnd == nullptr)
        return false;
    CRect client;
    GetClientRect(&client);
    return SavePicture(strFileName, client.Size(), [this](CDC& dc) { DrawPie(dc); });
}

BOOL CPieChartCtrl::OnEraseBkgnd(CDC*) {
    // Every paint covers the whole window, so erasing would only flicker.
    return TRUE;
}

void CPieChartCtrl::OnSize(UINT, int, int) {
    Default();
    // The class "PIE_CHART_CTRL" lacks the redraw styles, but every change of size moves the pie.
    InvalidateRect(nullptr, FALSE);
}

std::vector<PieSector> CPieChartCtrl::Sectors() const {
    std::vector<PieSector> sectors;
    sectors.reserve(static_cast<std::size_t>(m_arrPieces.GetSize()));
    PieRunningSum sum;
    for (INT_PTR i = 0; i < m_arrPieces.GetSize(); ++i)
        sectors.push_back(sum.Add(Piece(i).m_dValue, Piece(i).m_dTotal));
    return sectors;
}

void CPieChartCtrl::DrawPie(CDC& dc) {
    if (m_hWnd == nullptr)
        return;
    RecalcRect();
    CRect client;
    GetClientRect(&client);
    AttribDcGuard attributes(dc);
    SavedDcGuard saved(dc);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    {
        CBrush background;
        background.CreateSolidBrush(m_crBack);
        dc.FillRect(&client, &background);
    }

    for (INT_PTR i = 0; i < m_arrPieces.GetSize(); ++i)
        Piece(i).m_rcItem.SetRectEmpty();
    const std::vector<PieSector> sectors = Sectors();
    const bool anyVisible =
        std::any_of(sectors.begin(), sectors.end(), [](const PieSector& each) { return each.IsVisible(); });
    const bool isShown = anyVisible && !m_rcPie.IsRectEmpty();
    CString message;
    if (m_nWaitMode != 0)
        message = m_strWait;
    else if (!anyVisible)
        message = kNoData;
    const CRect band = PlaceMessage(dc, client, message);
    if (isShown) {
        DrawSectors(dc, sectors);
        DrawOutline(dc, sectors);
        DrawLabels(dc, client, sectors, band);
    }
    DrawMessage(dc, client, message, band, isShown);
}

void CPieChartCtrl::DrawSectors(CDC& dc, const std::vector<PieSector>& sectors) {
    // An elliptic region covers one column and one row less than the ellipse that DrawOutline draws, so the
    // rectangle of the region is one pixel larger.
    CRect device = ToDeviceWithEdges(dc, m_rcPie);
    CRgn circle;
    if (!circle.CreateEllipticRgnIndirect(&device))
        return;
    SavedDcGuard saved(dc);
    dc.SelectClipRgn(&circle, RGN_AND);
    dc.SelectStockObject(NULL_PEN);

    const Rect pie = ToRect(m_rcPie);
    const double distance = m_rcPie.Height() * kCornerDistance / 2;
    std::vector<POINT> corners;
    for (std::size_t i = 0; i < sectors.size(); ++i) {
        const PieSector& sector = sectors[i];
        if (!sector.IsVisible())
            continue;
        const CPieChartPiece& piece = Piece(static_cast<INT_PTR>(i));
        CBrush fill;
        fill.CreateSolidBrush(piece.m_bSelected ? m_crSelected : piece.m_crColor);
        if (sector.Span() >= kFullCircle) {
            dc.FillRect(&m_rcPie, &fill);
            continue;
        }
        // The polygons of neighbouring sectors share the corners of their common boundary, so GDI paints each
        // pixel there exactly once.
        corners.assign(1, ToCPoint(PieCentre(pie)));
        const int steps = static_cast<int>(std::ceil(sector.Span() / kWidestCorner));
        for (int step = 0; step <= steps; ++step) {
            const double angle = step == steps ? sector.end : sector.begin + step * kWidestCorner;
            corners.push_back(ToCPoint(PointAround(pie, m_nStartAngle % 360 + angle, distance)));
        }
        SelectGuard brush(dc, fill);
        dc.Polygon(corners.data(), static_cast<int>(corners.size()));
    }
    DrawSelection(dc, sectors);
}

/// Marks the selected sectors by a line if the colour of any visible piece is similar to the selection's
/// colour: then the fill colour alone does not show what is selected.
void CPieChartCtrl::DrawSelection(CDC& dc, const std::vector<PieSector>& sectors) {
    bool isAmbiguous = false;
    for (std::size_t i = 0; i < sectors.size(); ++i)
        isAmbiguous = isAmbiguous || (sectors[i].IsVisible() &&
                                      LookAlike(Piece(static_cast<INT_PTR>(i)).m_crColor, m_crSelected));
    if (!isAmbiguous)
        return;
    CPen pen;
    pen.CreatePen(PS_SOLID, kSelectionWidth, LegibleOn(m_crSelected, RGB(255, 255, 255)));
    SelectGuard penSelected(dc, pen);
    const double start = m_nStartAngle % 360;
    for (std::size_t i = 0; i < sectors.size(); ++i) {
        if (!Piece(static_cast<INT_PTR>(i)).m_bSelected || !sectors[i].IsVisible())
            continue;
        std::vector<POINT> points;
        for (const Point& point :
             LineInSector(ToRect(m_rcPie), start + sectors[i].begin, start + sectors[i].end, kSelectionInset))
            points.push_back({point.x, point.y});
        if (!points.empty())
            dc.Polyline(points.data(), static_cast<int>(points.size()));
    }
}

void CPieChartCtrl::DrawOutline(CDC& dc, const std::vector<PieSector>& sectors) {
    CPen pen;
    pen.CreatePen(PS_SOLID, kOutlineWidth, m_crOutline);
    SelectGuard penSelected(dc, pen);
    SelectGuard brush(dc, ::GetStockObject(NULL_BRUSH));

    const Rect pie = ToRect(m_rcPie);
    const double radius = m_rcPie.Height() / 2.0;
    const double corner = radius * kCornerDistance;
    const double start = m_nStartAngle % 360;
    const auto arcLength = [&](double span) { return PieRadians(span) * radius; };

    std::vector<PieSector> visible;
    std::copy_if(sectors.begin(), sectors.end(), std::back_inserter(visible),
                 [](const PieSector& each) { return each.IsVisible(); });
    const double covered = visible.back().end;
    const bool whole = arcLength(kFullCircle - covered) < 1;
    const CPoint from = ToCPoint(PointAround(pie, start + covered, corner));
    const CPoint to = ToCPoint(PointAround(pie, start, corner));
    if (whole)
        dc.Ellipse(&m_rcPie);
    else if (arcLength(covered) >= 1) {
        dc.SetArcDirection(AD_COUNTERCLOCKWISE);
        dc.Arc(&m_rcPie, from, to);
    }

    CRect device = ToDeviceWithEdges(dc, m_rcPie);
    CRgn circle;
    if ((whole && visible.size() == 1) || !circle.CreateEllipticRgnIndirect(&device))
        return;
    SavedDcGuard saved(dc);
    dc.SelectClipRgn(&circle, RGN_AND);
    const auto line = [&](double angle, double widerSpan) {
        double inner = 0;
        if (PieRadians(widerSpan) * kShortestGapInLine < kLeastWidthBetweenLines)
            inner = kLeastWidthBetweenLines / PieRadians(widerSpan);
        dc.MoveTo(ToCPoint(PointAround(pie, start + angle, inner)));
        dc.LineTo(ToCPoint(PointAround(pie, start + angle, corner)));
    };
    // The part of the circle without pieces counts as a sector here: the lines at its edges begin at the
    // distance that its span requires, if it is the wider one.
    double last = 0;
    line(0, std::max(visible.front().Span(), whole ? visible.back().Span() : kFullCircle - covered));
    for (std::size_t i = 1; i < visible.size(); ++i) {
        const double wider = std::max(visible[i - 1].Span(), visible[i].Span());
        const double angle = visible[i].begin;
        if (arcLength(wider) < kLeastLineDistance || arcLength(angle - last) < kLeastLineDistance ||
            arcLength(kFullCircle - angle) < kLeastLineDistance)
            continue;
        line(angle, wider);
        last = angle;
    }
    if (!whole)
        line(covered, std::max(visible.back().Span(), kFullCircle - covered));
}

/// The box of the message in the middle of the window. Empty without a message, or if it does not fit.
CRect CPieChartCtrl::PlaceMessage(CDC& dc, const CRect& client, const CString& text) {
    SelectGuard font(dc, m_fontLarge);
    CRect room = client;
    room.DeflateRect(kMessagePaddingX, kMessagePaddingY);
    if (text.IsEmpty() || room.Width() <= 0 || room.Height() <= 0)
        return CRect(0, 0, 0, 0);
    const CSize size = MeasureTextIn(dc, text, room.Width(), kMessageFormat);
    // A message that does not fit is left out: part of the text could mislead.
    if (size.cx > room.Width() || size.cy > room.Height())
        return CRect(0, 0, 0, 0);
    CRect band(CPoint((client.Width() - size.cx) / 2, (client.Height() - size.cy) / 2), size);
    band.InflateRect(kMessagePaddingX, kMessagePaddingY);
    return band;
}

void CPieChartCtrl::DrawMessage(CDC& dc, const CRect& client, const CString& text, const CRect& band,
                                bool bBand) {
    if (band.IsRectEmpty())
        return;
    SelectGuard font(dc, m_fontLarge);
    const COLORREF color = LegibleOn(m_crBack, m_crOutline);
    if (bBand) {
        CPen frame;
        frame.CreatePen(PS_SOLID, kOutlineWidth, color);
        CBrush back;
        back.CreateSolidBrush(m_crBack);
        SelectGuard framePen(dc, frame);
        SelectGuard backBrush(dc, back);
        dc.Rectangle(&band);
    }
    // The same width as in PlaceMessage, so that the lines break at the same words.
    const CRect place(client.left + kMessagePaddingX, band.top + kMessagePaddingY,
                      client.right - kMessagePaddingX, band.bottom - kMessagePaddingY);
    dc.SetTextColor(color);
    DrawTextIn(dc, place, text, kMessageFormat);
}

// SPDX-License-Identifier: MIT
// ChartDrawState: paints the cursors and their readout.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartCursorState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartReadout.h"
#include "chartdraw/core/ReadoutLayout.h"
#include "chartdraw/core/ReadoutPlace.h"
#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"

using namespace kavlix;

namespace {

constexpr int kRingHalf = 4; // pixels from a sample to the edge of the ring around it

// In text heights.
constexpr double kReadoutPadding = 0.4;
constexpr double kReadoutColumnGap = 0.8;
constexpr double kReadoutBlockGap = 1.5;
constexpr double kReadoutSwatch = 0.8; // with the gap behind it
constexpr double kLongestName = 20;
constexpr double kLongestNameInTable = 12;

void DrawRings(CDC& dc, const ChartDrawState& state, const ChartCursorState& cursors,
               const CursorReading& own) {
    CBrush brush;
    brush.CreateSolidBrush(cursors.background);
    for (int i = 0; i < state.DatasetCount(); ++i) {
        const ChartDrawState::ChartDataset& dataset = state.Dataset(i);
        if (cursors.mode == CChartCursor::All ? !dataset.visible : i != own.dataset)
            continue;
        const CursorReading reading = ChartCursorState::ReadAt(state, own, i);
        const auto x = state.XMap(dataset).Position(reading.point.x);
        const auto y = state.YMap(dataset).Position(reading.point.y);
        if (!reading.IsValid() || !x || !y || ChartCursorState::IsBeyondGap(state, own, reading) ||
            !state.Plot().PtInRect(CPoint(*x, *y)))
            continue;
        CPen pen;
        pen.CreatePen(PS_SOLID, 2, dataset.color);
        SavedDcGuard saved(dc);
        Select(dc, pen);
        Select(dc, brush);
        dc.Ellipse(*x - kRingHalf, *y - kRingHalf, *x + kRingHalf + 1, *y + kRingHalf + 1);
    }
}

void DrawCrosshair(CDC& dc, const ChartDrawState& state, const ChartCursorState& cursors, int cursor) {
    const CursorReading reading = cursors.Read(state, cursor);
    if (!reading.IsValid())
        return;
    CBrush brush;
    brush.CreateSolidBrush(cursors.lineColor);
    const CRect& plot = state.Plot();
    const ChartDrawState::ChartDataset& dataset = state.Dataset(reading.dataset);
    const auto fill = [&](CRect line) {
        line.IntersectRect(line, plot);
        dc.FillRect(line, &brush);
    };
    if (const auto x = state.XMap(dataset).Position(reading.point.x))
        fill(CRect(*x, plot.top, *x + 1, plot.bottom));
    const auto y = state.YMap(dataset).Position(reading.point.y);
    if (y && cursors.mode == CChartCursor::Nearest)
        fill(CRect(plot.left, *y, plot.right, *y + 1));
    DrawRings(dc, state, cursors, reading);
}

/// Paints the box of a readout at its place.
class ReadoutPainter {
public:
    ReadoutPainter(CDC& dc, const ChartReadout& readout, int textHeight, const ReadoutLayout& layout,
                   CPoint corner)
        : m_dc(dc), m_readout(readout), m_textHeight(textHeight), m_layout(layout), m_corner(corner) {}

    void Draw() const {
        const int headers = m_readout.hasHeader ? 1 : 0;
        for (std::size_t i = 0; i < m_readout.titles.size(); ++i)
            DrawCell(m_readout.titles[i], m_layout.Title(static_cast<int>(i)), false);
        for (int column = 0; column < m_layout.Columns(); ++column) {
            for (int block = 0; block < headers * m_layout.Blocks(); ++block)
                DrawCell(Cell(0, column), m_layout.Header(block, column), column > 0);
            for (int row = 0; row < m_layout.Rows(); ++row)
                DrawRowCell(row, column, headers);
        }
        if (m_layout.HasMore()) {
            CString more;
            more.Format(_T("... +%d"), m_layout.Hidden());
            DrawCell(more, m_layout.More(), false);
        }
    }

private:
    const CString& Cell(int row, int column) const {
        return m_readout.rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
    }
    void DrawRowCell(int row, int column, int headers) const {
        Rect place = m_layout.Cell(row, column);
        const COLORREF color = m_readout.rows[static_cast<std::size_t>(row + headers)].color;
        if (column == 0 && color != CLR_NONE) {
            const int size = m_textHeight / 2;
            CBrush brush;
            brush.CreateSolidBrush(color);
            const CPoint corner(place.left, (place.top + place.bottom - size) / 2);
            m_dc.FillRect(CRect(corner + m_corner, CSize(size, size)), &brush);
            place.left += static_cast<int>(kReadoutSwatch * m_textHeight);
        }
        DrawCell(Cell(row + headers, column), place, column > 0);
    }
    void DrawCell(const CString& text, const Rect& place, bool isRight) const {
        const CRect rect = ToCRect(place) + m_corner;
        m_dc.SetTextAlign((isRight ? TA_RIGHT : TA_LEFT) | TA_TOP);
        DrawTextAt(m_dc, isRight ? rect.right : rect.left, rect.top + (rect.Height() - m_textHeight) / 2,
                   text);
    }

    CDC& m_dc;
    const ChartReadout& m_readout;
    int m_textHeight;
    const ReadoutLayout& m_layout;
    CPoint m_corner;
};

/// Widths of a readout's texts, pixels.
struct ReadoutWidths {
    std::vector<int> titles;
    std::vector<std::vector<int>> cells;
};

/// Shortens the texts of a readout to `room` pixels, and measures them.
ReadoutWidths FitTexts(const CDC& dc, MeasuredTexts& texts, ChartReadout& readout, int textHeight, int room) {
    std::size_t next = 0; // index of the next text
    const auto fit = [&](CString& text, int most) {
        const int width = std::min(texts.Width(dc, next, text), most);
        text = CString(texts.ShortenedTo(dc, next, text, most));
        ++next;
        return width;
    };
    ReadoutWidths widths;
    for (CString& title : readout.titles)
        widths.titles.push_back(fit(title, room));
    int widestSecond = 0;
    for (ChartReadout::Row& row : readout.rows) {
        widths.cells.emplace_back(row.cells.size());
        for (std::size_t column = 1; column < row.cells.size(); ++column)
            widths.cells.back()[column] = fit(row.cells[column], room);
        if (row.cells.size() > 1)
            widestSecond = std::max(widestSecond, widths.cells.back()[1]);
    }
    // The names leave room for the second column.
    const auto pixels = [&](double heights) { return static_cast<int>(heights * textHeight); };
    const int longest = pixels(readout.hasHeader ? kLongestNameInTable : kLongestName);
    const int nameRoom = std::min(longest, room - widestSecond - pixels(kReadoutColumnGap));
    for (std::size_t i = 0; i < readout.rows.size(); ++i) {
        const int swatch = readout.rows[i].color == CLR_NONE ? 0 : pixels(kReadoutSwatch);
        widths.cells[i][0] = swatch + fit(readout.rows[i].cells[0], std::max(nameRoom - swatch, 0));
    }
    return widths;
}

} // namespace

void ChartDrawState::DrawCursors(CDC& dc) {
    ChartCursorState& state = *cursor.m_State;
    if (state.mode == CChartCursor::Off || Plot().IsRectEmpty())
        return;
    {
        SavedDcGuard saved(dc);
        dc.IntersectClipRect(Plot());
        for (int i = 0; i < ChartCursorState::kCursors; ++i)
            DrawCrosshair(dc, *this, state, i);
    }
    if (state.hasReadout)
        DrawReadout(dc);
}

void ChartDrawState::DrawReadout(CDC& dc) {
    ChartCursorState& state = *cursor.m_State;
    ChartReadout readout = ReadCursors(*this, state);
    // Without a sample in view there is no crosshair either.
    const auto isInView = [&](const Point& point) {
        return point.x >= Plot().left && point.x < Plot().right;
    };
    if (readout.IsEmpty() || std::none_of(readout.points.begin(), readout.points.end(), isInView))
        return;
    CFont font;
    MakeTextFont(font);
    CBrush brush;
    brush.CreateSolidBrush(state.background);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, state.border);
    SavedDcGuard saved(dc);
    Select(dc, font);
    Select(dc, brush);
    Select(dc, pen);

    const CRect& plot = Plot();
    const auto pixels = [&](double heights) { return static_cast<int>(heights * TextHeight()); };
    const ReadoutSizes sizes = {std::max(TextHeight(), 1), pixels(kReadoutPadding), pixels(kReadoutColumnGap),
                                pixels(kReadoutBlockGap)};
    state.texts.SetFont(chart.m_FontPixels, chart.m_FontFace);
    const auto layOut = [&] {
        const ReadoutWidths widths = FitTexts(dc, state.texts, readout, TextHeight(),
                                              static_cast<int>(plot.Width()) - 2 * sizes.padding);
        return ReadoutLayout(widths.titles, widths.cells, readout.hasHeader, sizes, plot.Width(),
                             plot.Height(), plot.Width() / 2);
    };
    ReadoutLayout layout = layOut();
    if (layout.IsEmpty()) { // rather the values alone
        readout.titles.clear();
        layout = layOut();
    }
    if (layout.IsEmpty())
        return;
    CRect covered;
    if (covered.IntersectRect(legend.GetRect(), plot))
        for (const CPoint& point : {covered.TopLeft(), covered.CenterPoint(), covered.BottomRight()})
            readout.points.push_back(ToPoint(point));
    const CRect box = ToCRect(PlaceReadout(ToRect(plot), layout.Width(), layout.Height(), readout.points));
    dc.Rectangle(box);
    dc.IntersectClipRect(box);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(state.textColor);
    ReadoutPainter(dc, readout, TextHeight(), layout, box.TopLeft()).Draw();
}

// SPDX-License-Identifier: MIT
// Fills and paints the multi-type graph.

#include "monitor/MultiGraphView.h"

#include <algorithm>
#include <cmath>

#include "monitor/TextConversion.h"
#include "monitor/recording/Periods.h"
#include "monitor/recording/WholeScale.h"

namespace kavlix::monitor {

using recording::Periods;
using recording::Recording;
using recording::ValueSpan;

namespace {

constexpr COLORREF kLowestColor = RGB(80, 155, 230);
constexpr COLORREF kMeanColor = RGB(25, 135, 60);
constexpr COLORREF kHighestColor = RGB(215, 85, 0);
constexpr int kPrintMargin = 720; // margin of a printed page in twips

/// One statistic, or the mean of one series, over all periods.
struct Row {
    std::string name;
    COLORREF color;
    std::vector<double> values; ///< one for each period
};

std::vector<std::size_t> VisibleSeries(const Recording& recording, const GraphSettings& settings) {
    std::vector<std::size_t> visible;
    for (std::size_t i = 0; i < settings.series.size() && i < recording.series.size(); ++i)
        if (settings.series[i].visible)
            visible.push_back(i);
    return visible;
}

std::vector<Row> RowsOf(const Recording& recording, const GraphSettings& settings,
                        const MultiOptions& options, const Periods& periods) {
    if (options.series) {
        recording::PeriodStatistics found = StatisticsOf(recording, *options.series, periods);
        return {{"lowest", kLowestColor, std::move(found.lowest)},
                {"mean", kMeanColor, std::move(found.mean)},
                {"highest", kHighestColor, std::move(found.highest)}};
    }
    std::vector<Row> rows;
    for (const std::size_t series : VisibleSeries(recording, settings))
        rows.push_back({settings.series[series].name, settings.series[series].color,
                        StatisticsOf(recording, series, periods).mean});
    return rows;
}

bool IsStacked(int type) {
    return type == GraphTypeStackedBar || type == GraphType3DStackedBar;
}

bool IsXY(int type) {
    return type == GraphTypeScatter || type == GraphTypeXYLine;
}

/// Whether a horizontal graph of this type has its values along the horizontal axis.
bool TurnsHorizontal(int type) {
    return type != GraphTypeScatter && type != GraphType3DLine;
}

bool ShowsZero(int type) {
    return type == GraphTypeBar || type == GraphType3DBar || IsStacked(type);
}

/// The values that the value axis must cover: single values, or the sums of a stack.
ValueSpan SpanOfRows(const std::vector<Row>& rows, std::size_t periods, bool stacked) {
    ValueSpan span;
    for (std::size_t period = 0; period < periods; ++period) {
        double up = 0;
        double down = 0;
        for (const Row& row : rows) {
            const double value = row.values[period];
            if (!stacked)
                span.Take(value);
            else if (std::isfinite(value))
                (value > 0 ? up : down) += value;
        }
        if (stacked) {
            span.Take(up);
            span.Take(down);
        }
    }
    return span;
}

void AddSeries(CGraph& graph, const std::string& label, const std::vector<double>& values,
               const recording::WholeScale& scale) {
    auto series = std::make_unique<CGraphSeries>();
    series->SetLabel(ToText(label));
    for (std::size_t key = 0; key < values.size(); ++key)
        if (std::isfinite(values[key]))
            series->SetData(static_cast<int>(key), scale.ToWhole(values[key]));
    graph.AddSeries(series.release());
}

/// Makes the graph count `groups` groups. The graph takes the number of groups from the longest series that
/// was ever added, but each series of a period may lack values. So this function adds a series with `groups`
/// values and removes it again.
void CountGroups(CGraph& graph, std::size_t groups) {
    const CString name; // the added series has no label
    auto fullest = std::make_unique<CGraphSeries>();
    for (std::size_t key = 0; key < groups; ++key)
        fullest->SetData(static_cast<int>(key), 0);
    graph.AddSeries(fullest.release());
    graph.RemoveSeries(name);
}

/// The boxes of the box-whisker type: one for each period of a series, or one for each series.
struct Boxes {
    std::vector<std::string> labels;
    std::vector<std::vector<double>> values;
    std::vector<COLORREF> colors;
};

Boxes BoxesOf(const Recording& recording, const GraphSettings& settings, const MultiOptions& options,
              const Periods& periods) {
    Boxes boxes;
    if (options.series) {
        boxes.values = RankedValues(recording, *options.series, periods);
        for (std::size_t i = 0; i < periods.Count(); ++i) {
            boxes.labels.push_back(periods.Label(i));
            boxes.colors.push_back(settings.series[*options.series].color);
        }
        return boxes;
    }
    for (const std::size_t series : VisibleSeries(recording, settings)) {
        std::vector<double> all;
        for (const double value : recording.series[series].values)
            if (std::isfinite(value))
                all.push_back(value);
        boxes.values.push_back(recording::RankedOf(std::move(all)));
        boxes.labels.push_back(settings.series[series].name);
        boxes.colors.push_back(settings.series[series].color);
    }
    return boxes;
}

} // namespace

const std::vector<GraphTypeChoice>& GraphTypeChoices() {
    static const std::vector<GraphTypeChoice> choices = {{GraphTypeBar, _T("Bars")},
                                                         {GraphTypeLine, _T("Lines")},
                                                         {GraphTypePie, _T("Pies")},
                                                         {GraphTypeScatter, _T("Scatter")},
                                                         {GraphTypeBoxWhisker, _T("Boxes and whiskers")},
                                                         {GraphTypeStackedBar, _T("Stacked bars")},
                                                         {GraphTypeXYLine, _T("XY lines")},
                                                         {GraphType3DBar, _T("3D bars")},
                                                         {GraphType3DLine, _T("3D lines")},
                                                         {GraphType3DPie, _T("3D pies")},
                                                         {GraphType3DStackedBar, _T("3D stacked bars")}};
    return choices;
}

BEGIN_MESSAGE_MAP(CMultiGraphView, CWnd)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CMultiGraphView::OnPrintClient)
    ON_WM_ERASEBKGND()

    ON_WM_SIZE()
END_MESSAGE_MAP()

bool CMultiGraphView::CreateChild(CWnd& parent, UINT id) {
    const LPCTSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return Create(windowClass, _T(""), WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &parent, id) != FALSE;
}

void CMultiGraphView::Show(const Recording* recording, const GraphSettings& settings,
                           const MultiOptions& options) {
    auto graph = std::make_unique<CGraph>();
    graph->parentWindow = this;
    graph->SetGraphTitle(ToText(settings.title));
    graph->SetLegendBySeries(TRUE);
    if (recording && !recording->times.empty() && !settings.series.empty()) {
        const Periods periods(recording->times);
        const bool boxed = options.type == GraphTypeBoxWhisker;
        const Boxes boxes = boxed ? BoxesOf(*recording, settings, options, periods) : Boxes();
        std::vector<Row> rows;
        ValueSpan span;
        if (boxed) {
            for (const std::vector<double>& values : boxes.values)
                span.Take(recording::SpanOf(values));
        } else {
            rows = RowsOf(*recording, settings, options, periods);
            span = SpanOfRows(rows, periods.Count(), IsStacked(options.type));
        }
        const recording::WholeScale scale = ChooseWholeScale(span, ShowsZero(options.type));
        graph->SetTickLimits(scale.min, scale.max, scale.step);

        // Set the legend before the type: a scatter graph ignores SetLegend, but shows legend texts
        // set earlier.
        for (std::size_t i = 0; i < rows.size(); ++i) {
            graph->SetColor(static_cast<int>(i), rows[i].color);
            graph->SetLegend(static_cast<int>(i), ToText(rows[i].name));
        }
        for (std::size_t i = 0; i < boxes.colors.size(); ++i)
            graph->SetColor(static_cast<int>(i), boxes.colors[i]);
        graph->SetGraphType(options.type);
        for (std::size_t i = 0; i < boxes.values.size(); ++i)
            AddSeries(*graph, boxes.labels[i], boxes.values[i], scale);
        if (!boxed && !IsXY(options.type))
            CountGroups(*graph, rows.size());
        if (IsXY(options.type))
            for (const Row& row : rows)
                AddSeries(*graph, row.name, row.values, scale);
        else if (!boxed)
            for (std::size_t period = 0; period < periods.Count(); ++period) {
                std::vector<double> values;
                for (const Row& row : rows)
                    values.push_back(row.values[period]);
                AddSeries(*graph, periods.Label(period), values, scale);
            }

        const std::string every = periods.LengthText();
        const std::string of = options.series ? settings.series[*options.series].name
                               : boxed        ? std::string("value")
                                              : std::string("mean");
        const std::string unit = scale.UnitText();
        const bool bySeries = boxed && !options.series;
        const std::string across = bySeries             ? "all values"
                                   : IsXY(options.type) ? "number of the " + every + ", from 0"
                                                        : "every " + every;
        // The graph's X label is below the horizontal axis, even if the values are along that axis.
        const bool level = options.horizontal && TurnsHorizontal(options.type);
        graph->SetXAxisLabel(ToText(level ? of + unit : across));
        graph->SetYAxisLabel(ToText(level ? across : of + unit));
        graph->SetGraphAlignment(options.horizontal ? 0 : 1);
        graph->SetGridLines(options.grid);
        graph->SetXAxisAlignment(options.labelAngle);
        graph->Set3DDepthRatio(options.depth);
    }
    m_graph = std::move(graph);
    if (m_hWnd)
        Invalidate(FALSE);
}

void CMultiGraphView::Draw(CDC& dc) {
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(client, RGB(255, 255, 255));
    m_graph->DrawGraph(&dc);
}

void CMultiGraphView::Print(CDC& dc, CSize page) {
    m_graph->SetMargins(-kPrintMargin, kPrintMargin - page.cy, kPrintMargin, page.cx - kPrintMargin,
                        -kPrintMargin);
    m_graph->PrintGraph(&dc, nullptr);
}

void CMultiGraphView::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    // Paint into a bitmap and copy it, without flicker; paint directly when there is no memory for a bitmap.
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&dc) ||
        !bitmap.CreateCompatibleBitmap(&dc, std::max<int>(client.Width(), 1),
                                       std::max<int>(client.Height(), 1))) {
        Draw(dc);
        return;
    }
    CBitmap* const before = memory.SelectObject(&bitmap);
    Draw(memory);
    dc.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(before);
}

LRESULT CMultiGraphView::OnPrintClient(WPARAM wParam, LPARAM) {
    Draw(*CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
    return 0;
}

BOOL CMultiGraphView::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CMultiGraphView::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate(FALSE);
}

} // namespace kavlix::monitor

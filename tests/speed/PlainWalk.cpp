// Draws lines, markers and the selection mark sample by sample.
#include "tests/speed/PlainWalk.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace plain {

std::optional<int> Scale::Place(double value) const {
    constexpr double kFarthest = 1 << 27; // limit of GDI coordinates
    if (max - min == 0)
        return std::nullopt;
    const double place = (value - min) * extent / (max - min) + edge;
    if (std::isnan(place))
        return std::nullopt;
    return static_cast<int>(std::clamp(place, -kFarthest, kFarthest));
}

void DrawMarkerShape(HDC dc, int type, int x, int y) {
    const auto path = [dc](std::initializer_list<POINT> points) {
        ::MoveToEx(dc, points.begin()->x, points.begin()->y, nullptr);
        for (auto point = points.begin() + 1; point != points.end(); ++point)
            ::LineTo(dc, point->x, point->y);
    };
    switch (type) {
    case CDataset::MarkerSquare:
        ::Rectangle(dc, x - 90, y - 90, x + 90, y + 90);
        break;
    case CDataset::MarkerDiamond:
        path({{x, y - 90}, {x + 90, y}, {x, y + 90}, {x - 90, y}, {x, y - 90}});
        break;
    case CDataset::MarkerTriangle:
        path({{x, y - 90}, {x - 90, y + 60}, {x + 90, y + 60}, {x, y - 90}});
        break;
    case CDataset::MarkerCircle:
        ::Ellipse(dc, x - 90, y - 90, x + 90, y + 90);
        break;
    case CDataset::MarkerCross:
        path({{x, y - 90}, {x, y + 90}});
        path({{x - 90, y}, {x + 90, y}});
        break;
    default:
        return;
    }
    ::MoveToEx(dc, x, y, nullptr);
}

void DrawMarkAt(HDC dc, const Mark& mark, int x) {
    POINT before = {};
    ::GetCurrentPositionEx(dc, &before);
    const POINT triangle[] = {{x + 10, mark.top + 180}, {x + 90, mark.top}, {x - 70, mark.top}};
    const HRGN region = ::CreatePolygonRgn(triangle, 3, ALTERNATE);
    const HBRUSH red = ::CreateSolidBrush(RGB(255, 0, 0));
    ::FillRgn(dc, region, red);
    ::DeleteObject(red);
    ::DeleteObject(region);
    const HPEN dots = ::CreatePen(PS_DOT, 0, mark.lineColour);
    const HGDIOBJ pen = ::SelectObject(dc, dots);
    ::MoveToEx(dc, x, mark.bottom, nullptr);
    ::LineTo(dc, x, mark.top);
    ::SelectObject(dc, pen);
    ::DeleteObject(dots);
    ::MoveToEx(dc, before.x, before.y, nullptr);
}

template <class Place>
void DrawLine(HDC dc, const Series& series, int first, int last, const Mark& mark, Place place) {
    // All positions are converted to pixels in one call, then each sample is drawn.
    std::vector<std::optional<POINT>> places;
    std::vector<POINT> pixels;
    for (int i = first; i <= last; ++i) {
        double value = 0;
        series.dataset->GetYData(i, value);
        const std::optional<int> x = place(i), y = series.scale.Place(value);
        places.push_back(x && y ? std::optional<POINT>(POINT{*x, *y}) : std::nullopt);
        pixels.push_back(places.back().value_or(POINT{}));
    }
    if (!pixels.empty())
        ::LPtoDP(dc, pixels.data(), static_cast<int>(pixels.size()));

    bool goesOn = false;
    POINT lastPixel = {};
    for (int i = first; i <= last; ++i) {
        const auto& at = places[static_cast<std::size_t>(i - first)];
        const POINT pixel = pixels[static_cast<std::size_t>(i - first)];
        if (i == mark.index) {
            double value = 0;
            series.dataset->GetYData(i, value);
            if (const std::optional<int> x = place(i); x && !std::isnan(value))
                DrawMarkAt(dc, mark, *x);
        }
        if (!at) {
            goesOn = false;
            continue;
        }
        if (!goesOn)
            ::MoveToEx(dc, at->x, at->y, nullptr);
        else if (pixel.x != lastPixel.x || pixel.y != lastPixel.y)
            ::LineTo(dc, at->x, at->y);
        lastPixel = pixel;
        goesOn = true;
        DrawMarkerShape(dc, series.dataset->GetMarkerType(), at->x, at->y);
    }
}

template <class Control> void Graph<Control>::Walk(CDC& dc) {
    const CRect& plot = m_rectPlot;
    const Scale y{m_YVisibleMin, m_YVisibleMax, plot.bottom, -plot.Height()};
    const Scale y2{m_Y2VisibleMin, m_Y2VisibleMax, plot.bottom, -plot.Height()};
    const Mark mark{m_SelectionMarkPos, this->m_LineCursorColor, plot.top, plot.bottom};
    const bool twoAxis = m_GraphStyle == CGraphCtrl::GraphStyleTwoAxis;
    const HGDIOBJ brush = ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(NULL_BRUSH));
    for (int i = twoAxis ? 1 : CGraphCtrl::DatasetCount - 1; i >= 0; --i) {
        const CDataset& dataset = m_Datasets[i];
        if (!dataset.m_Visible)
            continue;
        int first = 0, last = 0;
        Range(dataset.GetSize(), first, last);
        const HPEN pen = ::CreatePen(PS_SOLID, dataset.GetLineSize(), dataset.GetColor());
        const HGDIOBJ before = ::SelectObject(dc.GetSafeHdc(), pen);
        DrawLine(dc.GetSafeHdc(), {&dataset, twoAxis && i == 1 ? y2 : y}, first, last, mark,
                 [this](int index) { return PlaceOf(index); });
        ::SelectObject(dc.GetSafeHdc(), before);
        ::DeleteObject(pen);
    }
    ::SelectObject(dc.GetSafeHdc(), brush);
}

template <class Control> bool Graph<Control>::ReachesFarWithAWidePen() const {
    CRect close = m_rectPlot;
    close.InflateRect(900, 900);
    for (int i = 0; i < CGraphCtrl::DatasetCount; ++i) {
        const CDataset& dataset = m_Datasets[i];
        const bool isY2 = m_GraphStyle == CGraphCtrl::GraphStyleTwoAxis && i == 1;
        const Scale y{isY2 ? m_Y2VisibleMin : m_YVisibleMin, isY2 ? m_Y2VisibleMax : m_YVisibleMax,
                      m_rectPlot.bottom, -m_rectPlot.Height()};
        int first = 0, last = -1;
        if (dataset.m_Visible && dataset.GetLineSize() >= 45)
            Range(dataset.GetSize(), first, last);
        for (int k = first; k <= last; ++k) {
            double value = 0;
            dataset.GetYData(k, value);
            if (!close.PtInRect(CPoint(PlaceOf(k).value_or(close.left), y.Place(value).value_or(close.top))))
                return true;
        }
    }
    return false;
}

template <> void Graph<CGraphCtrl>::Range(int size, int& first, int& last) const {
    first = 0;
    last = size - 1;
}
template <> std::optional<int> Graph<CGraphCtrl>::PlaceOf(int index) const {
    return Scale{m_XVisibleMin, m_XVisibleMax, static_cast<int>(m_rectPlot.left), m_rectPlot.Width()}.Place(
        index);
}

template <> void Graph<CScrollGraphCtrl>::Range(int size, int& first, int& last) const {
    // The samples in view and one more on either side.
    const int end = GetCurDataIndex();
    const int begin = LowerBound(m_dScrollPos);
    first = std::max(begin - 1, 0);
    last = std::min({std::min(UpperBound(begin, 0), end - 1) + 1, end - 1, size - 1});
}
template <> std::optional<int> Graph<CScrollGraphCtrl>::PlaceOf(int index) const {
    const double x = static_cast<std::int32_t>(static_cast<std::uint32_t>(GetXOffset(index)) * 20u);
    return Scale{m_dScrollPos, m_dScrollPos + m_dViewWidth, static_cast<int>(m_rectPlot.left),
                 m_rectPlot.Width()}
        .Place(x);
}
template <> double& Graph<CScrollGraphCtrl>::ViewPos() {
    return m_dScrollPos;
}

template class Graph<CGraphCtrl>;
template class Graph<CScrollGraphCtrl>;

} // namespace plain

// SPDX-License-Identifier: MIT
// CChartLegend: the list of the datasets of a chart window.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <memory>

class CChartDraw;
namespace kavlix {
struct ChartDrawState;
struct ChartLegendState;
} // namespace kavlix

/// The legend of a CChartDraw, see CChartDraw::GetLegend: a row for each dataset that has a name, as wide and
/// high as its rows. The chart owns its legend. Setters do not repaint.
class KAVLIX_API CChartLegend {
public:
    /// Where the legend stands.
    enum Place {
        Hidden,      ///< no legend; the default
        TopLeft,     ///< inside the plot
        TopRight,    ///< inside the plot
        BottomLeft,  ///< inside the plot
        BottomRight, ///< inside the plot
        Right,       ///< beside the plot, one row below the other
        Bottom       ///< below the X axis, rows side by side and wrapped
    };
    /// @{
    /// Place of the legend. When there is too little room for it beside a plot of readable size, it is left out.
    void SetPlace(Place place);
    Place GetPlace() const;
    /// @}
    /// Whether a click on a row hides or shows its dataset, and the mouse over a row highlights the dataset;
    /// default TRUE. Works without CChartDraw::SetViewFlags, and only while the legend is shown.
    void SetInteractive(BOOL bInteractive);
    /// Colours of texts, background and border; defaults dark grey, white and light grey.
    void SetColors(COLORREF text, COLORREF background, COLORREF border);
    /// The dataset whose row contains a position in client pixels, -1 for none.
    int HitTest(CPoint point) const;
    /// The legend's rectangle at the last layout, in client pixels; empty when it is not drawn.
    CRect GetRect() const;

    CChartLegend(const CChartLegend&) = delete;
    CChartLegend& operator=(const CChartLegend&) = delete;

private:
    friend struct kavlix::ChartDrawState;
    friend class CChartDraw;
    explicit CChartLegend(CChartDraw& chart);
    ~CChartLegend();

    std::unique_ptr<kavlix::ChartLegendState> m_State;
};

KAVLIX_CHECK_HOST(CChartLegend)

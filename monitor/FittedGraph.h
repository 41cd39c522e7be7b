// SPDX-License-Identifier: MIT
// The base of CMonitorGraph and CMonitorScrollGraph.
#pragma once

#include <kavlix/GraphCtrl.h>
#include <kavlix/ScrollGraphCtrl.h>

#include <string>
#include <vector>

#include "monitor/GraphSettings.h"
#include "monitor/recording/GraphUnits.h"
#include "monitor/recording/ValueScale.h"

namespace kavlix::monitor {

/// The common part of the Monitor's graphs: colours, texts cut to the available room, and notifications
/// beyond the control's own. A function repaints only if its comment says so. Lengths are in logical units
/// (1/30 pixel).
template <class Control> class CFittedGraph : public Control {
public:
    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Whether a point (client pixels) is on the maximize icon.
    bool IsOnIcon(CPoint point) const;

    /// Chooses the form of the maximize icon: to restore when the graph fills the window, else to maximize.
    void ShowFilling(bool filling) { this->ShowIconMaximize(TRUE, filling); }

protected:
    static constexpr int kPixel = recording::kUnitsPerPixel;
    static constexpr int kTickFontHeight = 350; ///< logical units: font height of value labels and legend
    static constexpr int kTickLabelGap = 200;   ///< logical units: space on the left of the tick labels

    /// Largest distance in logical units, along the time axis, at which a sample counts as under the pointer.
    static constexpr int kPointerReach = 10 * kPixel;
    /// Most samples on either side of the pointer among which a series' nearest value is searched.
    static constexpr int kPointerSamples = 1000;

    struct Layout {
        int valueTicks = 0; ///< number of ticks of the value axes
        CSize plot;         ///< size of the plot in logical units
    };

    /// Sets style, grid, legend and colours of the graph, and the look of each dataset i from `series[i]`.
    void ApplyLook(const GraphSettings& settings, const std::vector<SeriesSettings>& series);

    /// Computes the layout of the next paint.
    Layout MeasureLayout();

    /// Sets the legend's texts, each cut to the legend's share of the window's width. Returns the width that
    /// the legend needs.
    int FitLegend(const std::vector<SeriesSettings>& series);

    /// The width that the labels of a scale need beside the axis.
    int TickLabelWidth(const recording::ValueScale& scale);

    /// The text, cut to be at most `room` wide in a font of this height and weight.
    std::string FitText(const std::string& text, int room, int height, int weight);

    /// Sets the caption band's text: the first of `texts` that fits, or the last one cut.
    void FitCaption(const std::vector<std::string>& texts);

    CSize TextSize(const std::string& text, int height, int weight);

    /// Asks Windows for WM_MOUSELEAVE. The derived class calls this function for every mouse move.
    void WatchPointer();

    /// Sends MGN_MOUSELEAVE to the parent. The derived class calls this function for WM_MOUSELEAVE.
    void PointerLeft();

    /// Copies the picture to the clipboard and sends MGN_COPIED or MGN_NOTCOPIED to the parent.
    void CopyAndTell();

    void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) override;
    void DrawGraphData(CDC& dc) override;

private:
    bool m_watchingLeave = false; ///< Windows will send WM_MOUSELEAVE
    bool m_measuring = false;     ///< the current paint only computes the layout
};

extern template class CFittedGraph<CGraphCtrl>;
extern template class CFittedGraph<CScrollGraphCtrl>;

} // namespace kavlix::monitor

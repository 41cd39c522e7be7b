#pragma once

#include "monitor/GraphSettings.h"
#include "monitor/recording/ValueScale.h"

#include <kavlix/GraphCtrl.h>
#include <kavlix/ScrollGraphCtrl.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

// Codes of further WM_NOTIFY messages to the parent, sent with a plain NMHDR.
constexpr UINT MGN_MOUSELEAVE = 1400; ///< the mouse pointer left the window
constexpr UINT MGN_COPIED = 1401;     ///< the picture is on the clipboard
constexpr UINT MGN_NOTCOPIED = 1402;  ///< somebody else holds the clipboard, or there was no memory

/// What the Monitor's graphs have in common, whichever control draws them: colours, texts that fit into the
/// room there is, and what the parent is told beyond the control's own notifications. Members that choose
/// something do not repaint. Lengths in logical units (1/30 pixel).
template <class Control> class CFittedGraph : public Control {
public:
    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Whether a point (client pixels) is on the maximize icon.
    bool IsOnIcon(CPoint point) const;

    /// Shows the maximize icon in the form that goes with filling the window or not.
    void ShowFilling(bool filling) { this->ShowIconMaximize(TRUE, filling); }

protected:
    static constexpr int kPixel = 30;
    static constexpr int kTickFontHeight = 350; ///< of the value axes' labels and the legend
    static constexpr int kTickLabelGap = 200;   ///< between tick labels and what is left of them
    static constexpr int kRegular = 400;        ///< weights of fonts
    static constexpr int kBold = 700;

    struct Layout {
        int valueTicks = 0; ///< ticks of the value axes
        CSize plot;         ///< size of the plot
    };

    /// Sets style, switches and colours, and of dataset i what series i has.
    void ApplyLook(const GraphSettings& settings, const std::vector<SeriesSettings>& series);

    /// The layout that the next paint will have.
    Layout MeasureLayout();

    /// Sets the legend's texts, each cut to what a legend may take of the window's width.
    /// @return the width that the legend needs
    int FitLegend(const std::vector<SeriesSettings>& series);

    /// Room that the labels of a scale need beside the axis.
    int TickLabelWidth(const recording::ValueScale& scale);

    /// The text with its end cut so far that it fits into `room`, in a font of this height and weight.
    std::string FitText(const std::string& text, int room, int height, int weight);

    /// Sets the caption band's text: the first that fits into the band, or the last with its end cut.
    void FitCaption(const std::vector<std::string>& texts);

    CSize TextSize(const std::string& text, int height, int weight);

    /// To be called at every mouse move, so that the parent hears when the pointer leaves.
    void WatchPointer();
    void PointerLeft();

    /// Copies the picture to the clipboard and tells the parent how that went.
    void CopyAndTell();

    void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) override;
    void DrawGraphData(CDC& dc) override;

private:
    void Tell(UINT code);

    bool m_watchingLeave = false; ///< the system tells when the pointer leaves
    bool m_measuring = false;     ///< a paint only finds the layout
};

extern template class CFittedGraph<CGraphCtrl>;
extern template class CFittedGraph<CScrollGraphCtrl>;

} // namespace kavlix::monitor

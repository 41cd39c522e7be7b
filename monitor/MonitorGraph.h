#pragma once

#include "monitor/GraphSettings.h"
#include "monitor/Reduction.h"

#include <memory>
#include <optional>
#include <string>

namespace kavlix::monitor {

/// What a graph shows.
struct GraphSource {
    std::shared_ptr<const recording::Recording> recording; ///< null: nothing
    recording::ValueSpan axisCovers; ///< values that the value axis covers whatever the samples are
    std::string valueLabel;          ///< text along the value axis when several series share it
    std::size_t samplesAtLeast = 0;  ///< the time axis has room for so many
};

/// The graph control with a recording in it. It chooses what follows from the data and from the window's
/// size: which samples are handed over, ranges with round labels, the room for labels and legend.
class CMonitorGraph : public CGraphCtrl {
public:
    /// Where a sample of the picture comes from.
    struct Mark {
        int index = -1; ///< sample of the picture, -1: no mark
        recording::Time time = 0;
        std::vector<double> values; ///< one a series, NaN where there is none
    };

    CMonitorGraph() = default;

    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows all of another recording with other settings. Repaints.
    void Show(GraphSource source, GraphSettings settings);

    /// Goes on with a recording that has lost `removed` samples at its head and got others at its end, its
    /// series the same. The selection mark stays on its sample as long as it is there. Repaints.
    void ShowGrown(GraphSource source, std::size_t removed);

    /// Changes the settings; the samples stay. Repaints.
    void SetSettings(GraphSettings settings);
    const GraphSettings& Settings() const { return m_settings; }

    const GraphSource& Source() const { return m_source; }

    /// The part of the recording that is visible; all of it by default. Repaints. The selection mark goes.
    void SetVisible(recording::VisibleRange range);
    recording::VisibleRange Visible() const { return m_visible; }
    bool ShowsAll() const;

    /// Samples of the recording behind each sample of the picture.
    std::size_t SamplesEach() const { return m_shown.samplesEach; }

    /// The selection mark.
    Mark SelectionMark() const;

    /// Sample of the recording at the selection mark.
    std::optional<std::size_t> MarkedSample() const;

protected:
    void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) override;
    void DrawGraphData(CDC& dc) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    struct Layout {
        int valueTicks = 0; ///< ticks of the value axes
        CSize plot;         ///< size of the plot in logical units
    };

    /// Texts along the axes, before they are cut to the room there is.
    struct AxisTexts {
        std::vector<std::string> x; ///< the same at decreasing length
        std::string y;
        std::string y2;
    };

    void Fit();
    void ApplySettings();
    Layout MeasureLayout();
    void FeedSamples(const Layout& layout);
    void FeedAll();
    void FeedTail(std::size_t first);
    void FitRanges(const Layout& layout);
    void FitTimeRange();
    void FitLegend();
    AxisTexts ChooseAxisTexts();
    void FitTexts(const AxisTexts& texts, const Layout& layout);
    std::size_t SampleLimit(const Layout& layout) const;
    ShownSamples Reduce(std::size_t limit) const;
    CSize TextSize(const std::string& text, int height, int weight);
    std::string FitText(const std::string& text, int room, int height, int weight);
    std::string FitCaption(const std::vector<std::string>& texts);

    GraphSource m_source;
    GraphSettings m_settings;
    recording::VisibleRange m_visible;
    ShownSamples m_shown;
    recording::TimeLabelStyle m_labels;
    int m_timeLabels = 1; ///< labels of the time axis there is room for
    std::string m_timeTitle;
    bool m_fed = false;         ///< the control holds m_shown
    bool m_fedBars = false;     ///< m_shown was reduced for bars
    std::size_t m_fedLimit = 0; ///< the limit m_shown was reduced to
    bool m_measuring = false;   ///< a paint only finds the layout
};

} // namespace kavlix::monitor

#pragma once

#include "monitor/FittedGraph.h"
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
class CMonitorGraph : public CFittedGraph<CGraphCtrl> {
public:
    /// Where a sample of the picture comes from.
    struct Mark {
        int index = -1; ///< sample of the picture, -1: no mark
        recording::Time time = 0;
        std::vector<double> values; ///< one a series, NaN where there is none
        /// When each value was read. Files that were joined have their samples at different times: what is
        /// told of a series then is the sample beside the mark, if it is no farther than its file's rows are
        /// apart.
        std::vector<recording::Time> times;
    };

    /// A sample of one series that stands under the mouse pointer.
    struct Pointed {
        recording::Time time = 0;
        std::size_t series = 0;
        double value = 0;
    };

    /// Shows all of another recording with other settings. Repaints.
    void Show(GraphSource source, GraphSettings settings);

    /// Goes on with a recording that has lost `removed` samples at its head and got others at its end, its
    /// series the same. The selection mark stays on its sample as long as it is there. Repaints.
    /// @param changed settings that go with it; given them, the values of the samples that stay may differ,
    /// too
    void ShowGrown(GraphSource source, std::size_t removed, std::optional<GraphSettings> changed = {});

    /// Goes on with a recording that has lost `removed` samples at its head. What was visible and is left
    /// stays visible. The selection mark goes. Repaints.
    void ShowRest(GraphSource source, std::size_t removed, GraphSettings settings);

    /// Changes the settings. The selection mark stays on its sample. Repaints.
    void SetSettings(GraphSettings settings);
    const GraphSettings& Settings() const { return m_settings; }

    const GraphSource& Source() const { return m_source; }

    /// The part of the recording that is visible; all of it by default. Repaints. The selection mark stays on
    /// its sample as long as that is visible.
    void SetVisible(recording::VisibleRange range);
    recording::VisibleRange Visible() const { return m_visible; }
    bool ShowsAll() const;

    /// Samples of the recording behind each sample of the picture.
    std::size_t SamplesEach() const { return m_shown.samplesEach; }

    /// The selection mark.
    Mark SelectionMark() const;

    /// Sample of the recording at the selection mark.
    std::optional<std::size_t> MarkedSample() const;

    /// First sample of the recording that a sample of the picture stands for.
    std::size_t FirstSampleOf(int index) const;

    /// Of the sample nearest to the pointer the series that is nearest: in the line styles the one whose
    /// point is at most as far above or below as any other's, in the bar style the one whose bar is. Hidden
    /// series and those without a value thereabouts do not count. Costs the same however many samples there
    /// are.
    /// @param point client pixels
    /// @return nothing outside the plot or when no sample is there
    std::optional<Pointed> SampleUnder(CPoint point);

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCopy();
    DECLARE_MESSAGE_MAP()

private:
    /// Texts along the axes, before they are cut to the room there is.
    struct AxisTexts {
        std::vector<std::string> x; ///< the same at decreasing length
        std::string y;
        std::string y2;
    };

    /// The sample of the recording that was marked, for as long as the mark stands where it was put. In a
    /// reduced picture the mark alone would not tell it any more.
    struct HeldMark {
        int index = -1;
        std::size_t sample = 0;
    };

    void Fit();
    void MarkSample(std::size_t sample);
    std::size_t VisibleCount() const { return m_visible.last - m_visible.first + 1; }
    double ValueOf(std::size_t series, std::size_t index) const;
    std::size_t SampleBeside(std::size_t series, std::size_t index) const;
    std::vector<double> DistancesFrom(CPoint logical, std::size_t index, std::vector<std::size_t>& indices);
    void FeedSamples(const Layout& layout);
    void FeedAll();
    void FeedTail(std::size_t first);
    void FitRanges(const Layout& layout);
    void FitTimeRange();
    AxisTexts ChooseAxisTexts();
    void FitTexts(const AxisTexts& texts, const Layout& layout);
    std::size_t SampleLimit(const Layout& layout) const;
    ShownSamples Reduce(std::size_t limit) const;

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
    HeldMark m_heldMark;
    std::optional<std::size_t> m_markToKeep; ///< sample to mark when the control gets other samples
};

} // namespace kavlix::monitor

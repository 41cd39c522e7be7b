// SPDX-License-Identifier: MIT
// The graph control of the graph page and of the settings dialog's preview.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "monitor/FittedGraph.h"
#include "monitor/GraphSettings.h"
#include "monitor/recording/Reduction.h"
#include "monitor/recording/ViewChoice.h"

namespace kavlix::monitor {

/// What a graph shows.
struct GraphSource {
    std::shared_ptr<const recording::Recording> recording; ///< null: nothing
    recording::ValueSpan axisCovers;                       ///< values that the value axis always covers
    std::string valueLabel;         ///< text along the value axis when several series share it
    std::size_t samplesAtLeast = 0; ///< the time axis has room for at least this many samples
};

/// The graph control with a recording. The graph chooses everything that follows from the data and the
/// window's size: the samples for the control, ranges with round labels, and the room for labels and legend.
class CMonitorGraph : public CFittedGraph<CGraphCtrl> {
public:
    /// The selection mark and the values there.
    struct Mark {
        int index = -1; ///< the control's sample; -1: no mark
        recording::Time time = 0;
        std::vector<double> values; ///< one for each series; NaN: no value
        /// The time of each value. When the recording joins several files, the time of a value may differ
        /// from `time`; see recording::SampleBeside.
        std::vector<recording::Time> times;
    };

    /// The sample of one series under the mouse pointer.
    struct Pointed {
        recording::Time time = 0;
        std::size_t series = 0;
        double value = 0;
    };

    /// Shows another recording, all of it. Repaints.
    void Show(GraphSource source, GraphSettings settings);

    /// Shows the same series after `removed` samples were removed at the head and others were added at the
    /// end. The selection mark stays on its sample while that sample exists. `changed` holds new settings, if
    /// any; with them, the values of the remaining samples may differ too. Repaints.
    void ShowGrown(GraphSource source, std::size_t removed, std::optional<GraphSettings> changed = {});

    /// Shows the same recording after `removed` samples were removed at the head. The visible samples that
    /// remain stay visible. The selection mark is removed. Repaints.
    void ShowRest(GraphSource source, std::size_t removed, GraphSettings settings);

    /// Changes the settings. The selection mark stays on its sample. Repaints.
    void SetSettings(GraphSettings settings);
    const GraphSettings& Settings() const { return m_settings; }

    const GraphSource& Source() const { return m_source; }

    /// Sets the visible part of the recording. The selection mark stays on its sample if that sample is
    /// visible. Repaints.
    void SetVisible(recording::VisibleRange range);
    recording::VisibleRange Visible() const { return m_visible; }
    bool ShowsAll() const;

    /// Number of the recording's samples in each run of the reduction; 1: not reduced.
    std::size_t SamplesEach() const { return m_shown.samplesEach; }

    Mark SelectionMark() const;

    /// The recording's sample at the selection mark; none without a mark.
    std::optional<std::size_t> MarkedSample() const;

    /// The first sample of the recording that the control's sample `index` stands for.
    std::size_t FirstSampleOf(int index) const;

    /// The sample under a point (client pixels). The sample is the nearest one in time. The series is the
    /// nearest one there: with lines, the series whose value is the least distance above or below the point;
    /// with bars, the series whose bar is nearest. Hidden series, and series without a value near the point,
    /// do not count. None outside the plot. The time it takes is bounded for any number of samples.
    std::optional<Pointed> SampleUnder(CPoint point);

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCopy();
    DECLARE_MESSAGE_MAP()

private:
    /// Texts along the axes, not yet cut to the available room.
    struct AxisTexts {
        std::vector<std::string> x; ///< several forms, the longest first
        std::string y;
        std::string y2;
    };

    /// The recording's sample of the selection mark, valid while the mark is at `index`. In a reduced picture
    /// the control's mark identifies only a run of samples.
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
    recording::ShownSamples Reduce(std::size_t limit) const;

    GraphSource m_source;
    GraphSettings m_settings;
    recording::VisibleRange m_visible;
    recording::ShownSamples m_shown; ///< the samples that the control gets
    recording::TimeLabelStyle m_labels;
    int m_timeLabels = 1; ///< number of labels for which the time axis has room
    std::string m_timeTitle;
    bool m_fed = false;         ///< the control holds m_shown
    bool m_fedBars = false;     ///< m_shown was reduced for bars
    std::size_t m_fedLimit = 0; ///< the sample limit of the reduction that made m_shown
    HeldMark m_heldMark;
    std::optional<std::size_t> m_markToKeep; ///< sample to mark after the next FeedAll
};

} // namespace kavlix::monitor

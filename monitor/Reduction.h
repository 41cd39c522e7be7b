#pragma once

#include "monitor/recording/ViewChoice.h"

#include <cstddef>

namespace kavlix::monitor {

/// What of a recording is handed to the graph.
struct ShownSamples {
    recording::Recording recording; ///< times and series; of the files only what the time axis needs
    std::size_t samplesEach = 1;    ///< samples of the source in each run that is shown together
    std::size_t pointsEach = 1;     ///< samples shown for each run: 2 where lines were reduced

    // Samples of the source are counted here from the first of the part that is shown.

    /// First sample of the run that a shown sample stands for.
    std::size_t RunOf(std::size_t shown) const { return shown / pointsEach * samplesEach; }

    /// The sample whose time a shown sample has.
    /// @param count samples of the part that is shown
    std::size_t SampleOf(std::size_t shown, std::size_t count) const;

    /// The shown sample that a sample of the source went into, the latest whose time is not after it.
    std::size_t ShownFor(std::size_t sample, std::size_t count) const;
};

/// A part of a recording for lines: as it is when it has at most `limit` samples; otherwise each run of
/// samples becomes two, its lowest and its highest value in their order, so that no peak is lost. Runs
/// without any value stay gaps. The range is cut to the recording; a limit below 2 counts as 2.
///
/// Where files were joined, a series has no value at the other files' times. That is no gap in it: as long as
/// its neighbouring values are no farther apart than its own file's rows usually are, the line goes on
/// between them.
ShownSamples ReduceForLines(const recording::Recording& source, recording::VisibleRange range,
                            std::size_t limit);

/// A part of a recording for bars: as it is when it has at most `limit` samples; otherwise each run of
/// samples becomes one, the mean of its values, at the time of its first. A limit of 0 counts as 1.
ShownSamples ReduceForBars(const recording::Recording& source, recording::VisibleRange range,
                           std::size_t limit);

} // namespace kavlix::monitor

// Reduces a long recording to the samples that are handed to the graph control.
#pragma once

#include <cstddef>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The samples that are handed to the graph control. The source's samples are divided into runs of equal
/// length, and each run is shown as one or two samples. Samples of the source are counted from the first of
/// the part that is shown.
struct ShownSamples {
    Recording recording;         ///< times and series; of the files only what the time axis needs
    std::size_t samplesEach = 1; ///< samples of the source in each run
    std::size_t pointsEach = 1;  ///< shown samples for each run: 2 for reduced lines

    /// First sample of the run that a shown sample stands for.
    std::size_t RunOf(std::size_t shown) const { return shown / pointsEach * samplesEach; }

    /// The sample that has the time of a shown sample. `count` is the number of samples of the part.
    std::size_t SampleOf(std::size_t shown, std::size_t count) const;

    /// The shown sample of the run that `sample` is in; of two, the latest whose time is not after
    /// the sample's.
    std::size_t ShownFor(std::size_t sample, std::size_t count) const;
};

/// A part of a recording for lines, unchanged when it has at most `limit` samples (at least 2). Otherwise
/// each run becomes two samples, its lowest and its highest value in the order in which they occur, so that
/// no peak is lost. A run without any value is a gap. The range is cut to the recording.
///
/// In joined files, a series has no value at the other files' times. These rows are no gap: between values
/// that are not farther apart than LongestStep of their file, they get the values of the connecting line.
ShownSamples ReduceForLines(const Recording& source, VisibleRange range, std::size_t limit);

/// A part of a recording for bars, unchanged when it has at most `limit` samples (at least 1). Otherwise each
/// run becomes one sample, the mean of the run's values, at the time of its first sample.
ShownSamples ReduceForBars(const Recording& source, VisibleRange range, std::size_t limit);

} // namespace kavlix::recording

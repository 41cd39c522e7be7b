// SPDX-License-Identifier: MIT
// Reduces a long recording to the samples that are handed to the graph control.
#pragma once

#include <cstddef>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The samples that are handed to the graph control: the shown samples. They are made from a part of a source
/// recording. The samples of this part are divided into runs of equal length (the last run may be shorter),
/// and each run becomes one or two shown samples. The functions count the source's samples from the first one
/// of the part.
struct ShownSamples {
    Recording recording;         ///< times and series; of the files only what the time axis needs
    std::size_t samplesEach = 1; ///< samples of the source in each run
    std::size_t pointsEach = 1;  ///< shown samples for each run: 2 for reduced lines, otherwise 1

    /// The source's first sample in the run that a shown sample stands for.
    std::size_t RunOf(std::size_t shown) const { return shown / pointsEach * samplesEach; }

    /// The source's sample that has the time of a shown sample. `count` is the number of the source's samples
    /// in the part.
    std::size_t SampleOf(std::size_t shown, std::size_t count) const;

    /// The shown sample that stands for the run with the source's `sample`. Of two shown samples, the second
    /// one if the run has several samples and `sample` is the sample that gives the second its time, or a
    /// later one; otherwise the first.
    std::size_t ShownFor(std::size_t sample, std::size_t count) const;
};

/// Makes the shown samples for lines from the part `range`, which is cut to the recording. A part of at most
/// `limit` samples is not reduced; a `limit` below 2 counts as 2. Otherwise each run becomes two samples: the
/// lowest and the highest value of a series, in the order in which they occur, so that no peak is lost. A run
/// without any value is a gap.
///
/// In joined files, a series usually has no value in the rows of other files. These rows must not break the
/// series' line. So if the values before and after them are not farther apart than LongestStep of the series'
/// file, the rows get values on the straight line between these two values.
ShownSamples ReduceForLines(const Recording& source, VisibleRange range, std::size_t limit);

/// Makes the shown samples for bars from the part `range`, which is cut to the recording. A part of at most
/// `limit` samples is not reduced; a `limit` of 0 counts as 1. Otherwise each run becomes one sample: the
/// mean of a series' values in the run, at the time of the run's first sample.
ShownSamples ReduceForBars(const Recording& source, VisibleRange range, std::size_t limit);

} // namespace kavlix::recording

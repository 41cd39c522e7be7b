// SPDX-License-Identifier: MIT
// Sizes and texts that layout and painting of a chart share.
#pragma once

namespace kavlix {

constexpr int kTickLength = 5;       ///< pixels
constexpr int kMinorTickLength = 3;  ///< pixels
constexpr int kTickLabelGap = 3;     ///< pixels between a tick and its label
constexpr double kCaptionGap = 0.3;  ///< text heights between a caption and the scale beside it
constexpr double kChartMargin = 0.6; ///< text heights between the chart's edge and its content

} // namespace kavlix

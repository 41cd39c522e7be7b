// SPDX-License-Identifier: MIT
// Lengths and colours that several sources of the graph share.
#pragma once

#include <windows.h>

namespace kavlix {

// A pixel is a screen pixel, on paper too: see GraphFrame.
constexpr double kEdge = 2;          ///< pixels kept free between a text and the picture's edge or a caption
constexpr double kLabelDistance = 6; ///< pixels between the plot and the labels beside it
constexpr double kLabelGap = 6;      ///< least number of pixels between two labels below the plot
constexpr double kCaptionLeft = 5;   ///< pixels between the picture's left edge and the Y caption
constexpr double kCaptionBottom = 7; ///< pixels between the X caption and the picture's lower edge

constexpr int kUpwards = 90; ///< degrees: the turn of a text that reads upwards

constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kGrey = RGB(128, 128, 128);

} // namespace kavlix

// Lengths and colours that several sources of the graph share.
#pragma once

#include <windows.h>

namespace kavlix {

// Lengths in pixels of the screen.
constexpr double kEdge = 2;          ///< stays free between a text and the picture's edge
constexpr double kLabelDistance = 6; ///< between the plot and the labels beside it
constexpr double kLabelGap = 6;      ///< between two labels
constexpr double kCaptionLeft = 5;   ///< between the picture's left edge and the Y caption
constexpr double kCaptionBottom = 7; ///< between the X caption and the picture's lower edge

constexpr int kUpwards = 90; ///< degrees: the turn of a text that reads upwards

constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kGrey = RGB(128, 128, 128);

} // namespace kavlix

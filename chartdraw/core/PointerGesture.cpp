// SPDX-License-Identifier: MIT
// Presses, drags and boxes of the mouse.
#include "chartdraw/core/PointerGesture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace kavlix {

bool PointerGesture::Press(MouseButton button, Point at, DragPurpose purpose, int dragWidth, int dragHeight) {
    if (m_isPressed)
        return false;
    m_isPressed = true;
    m_isDragging = false;
    m_button = button;
    m_purpose = purpose;
    m_start = m_last = at;
    m_dragWidth = std::max(dragWidth, 1);
    m_dragHeight = std::max(dragHeight, 1);
    return true;
}

PointerGesture::Step PointerGesture::Move(Point at) {
    if (!m_isPressed || at == m_last)
        return Step::None;
    m_last = at;
    if (m_isDragging)
        return Step::Drag;
    if (std::abs(at.x - m_start.x) < m_dragWidth && std::abs(at.y - m_start.y) < m_dragHeight)
        return Step::None;
    m_isDragging = true;
    return Step::Begin;
}

PointerGesture::Step PointerGesture::Release(MouseButton button) {
    if (!m_isPressed || button != m_button)
        return Step::None;
    m_isPressed = false;
    return std::exchange(m_isDragging, false) ? Step::Drop : Step::Click;
}

bool PointerGesture::Cancel() {
    m_isPressed = false;
    return std::exchange(m_isDragging, false);
}

DragBox BoxBetween(const Rect& plot, Point from, Point to, AxisSet allowed, int least) {
    constexpr int kStrip = 4; // sides shorter than this many times `least` make a strip
    const auto side = [](int a, int b, int first, int behind) {
        const int last = std::max(behind - 1, first);
        return std::pair(std::clamp(std::min(a, b), first, last),
                         std::clamp(std::max(a, b), first, last) + 1);
    };
    const auto [left, right] = side(from.x, to.x, plot.left, plot.right);
    const auto [top, bottom] = side(from.y, to.y, plot.top, plot.bottom);
    DragBox box{allowed, plot};
    if (box.axes == kAllAxes && bottom - top < kStrip * least && right - left > bottom - top)
        box.axes = kAxisX;
    else if (box.axes == kAllAxes && right - left < kStrip * least)
        box.axes = kAxesY;
    if ((box.axes & kAxisX) != 0) {
        box.area.left = left;
        box.area.right = right;
    }
    if ((box.axes & kAxesY) != 0) {
        box.area.top = top;
        box.area.bottom = bottom;
    }
    const bool isWide = (box.axes & kAxisX) != 0 && right - left > least;
    const bool isHigh = (box.axes & kAxesY) != 0 && bottom - top > least;
    return isWide || isHigh ? box : DragBox{};
}

double WheelFactor(int delta) {
    constexpr double kNotch = 0.8; // width of the view after one notch, as a share of the width before
    constexpr double kDelta = 120;
    return std::pow(kNotch, delta / kDelta);
}

} // namespace kavlix

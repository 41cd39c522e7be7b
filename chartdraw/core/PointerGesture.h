// SPDX-License-Identifier: MIT
// What a press of a mouse button becomes: a click or a drag, and the box that a drag draws.
#pragma once

#include "chartdraw/core/ChartView.h"
#include "plot/Shapes.h"

namespace kavlix {

enum class MouseButton { Left, Right };

/// What dragging does, decided when the button goes down.
enum class DragPurpose { None, Pan, Box, Object };

/// Follows the mouse from the press of a button to its release. While one button is down, the other one is
/// ignored. Positions are in pixels.
class PointerGesture {
public:
    enum class Step {
        None,  ///< nothing to do
        Begin, ///< the pointer has left the place of the press: a drag begins, from Start() to Last()
        Drag,  ///< the drag goes on to Last()
        Drop,  ///< the button was released and ends the drag at Last()
        Click, ///< the button was released near the place of the press
    };

    /// Takes the press of a button. `dragWidth` and `dragHeight` say how far from the place of the press a
    /// drag begins. False when another button is down.
    bool Press(MouseButton button, Point at, DragPurpose purpose, int dragWidth, int dragHeight);
    Step Move(Point at);
    /// Takes the release of a button. Call Move with the place of the release first.
    Step Release(MouseButton button);
    /// Forgets the press. True when a drag has to be undone.
    bool Cancel();

    bool IsPressed() const { return m_isPressed; }
    bool IsPressed(MouseButton button) const { return m_isPressed && m_button == button; }
    bool IsDragging() const { return m_isDragging; }
    /// Whether a drag with this purpose is under way.
    bool IsDragging(DragPurpose purpose) const { return m_isDragging && m_purpose == purpose; }
    DragPurpose Purpose() const { return m_purpose; }
    Point Start() const { return m_start; }
    Point Last() const { return m_last; }

private:
    bool m_isPressed = false;
    bool m_isDragging = false;
    MouseButton m_button = MouseButton::Left;
    DragPurpose m_purpose = DragPurpose::None;
    Point m_start;
    Point m_last;
    int m_dragWidth = 1;
    int m_dragHeight = 1;
};

/// The part of the plot that a box chooses.
struct DragBox {
    AxisSet axes = 0; ///< the axes that the box zooms; 0, with an empty area, when the box is too small
    Rect area;        ///< the plot's whole width or height for an axis that the box does not zoom
};

/// The box from one corner to the other, cut at the plot's edges, which zooms at most `allowed`. If both axes
/// are allowed, a flat box zooms only X and a narrow one only Y: one with a side below 4 * `least` pixels.
/// A box with a side of less than `least` pixels on every axis that it zooms is too small.
DragBox BoxBetween(const Rect& plot, Point from, Point to, AxisSet allowed, int least);

/// The factor by which a wheel's turn changes the width of the view. A `delta` of 120 is one notch, which
/// zooms in by a fifth. Many small turns zoom as much as their sum.
double WheelFactor(int delta);

} // namespace kavlix

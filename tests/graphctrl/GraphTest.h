#pragma once

#include "tests/graphctrl/OpenGraph.h"
#include "tests/support/DibSurface.h"
#include "tests/support/MetafileRecorder.h"
#include "tests/support/RecordingParent.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

using Strings = std::vector<std::string>;

/// The plot of a control of 300 x 200 pixels with default settings, logical units.
constexpr int kPlotLeft = 2230, kPlotTop = 1100, kPlotRight = 5600, kPlotBottom = 3800;
constexpr int kPlotWidth = kPlotRight - kPlotLeft, kPlotHeight = kPlotBottom - kPlotTop;
/// Default colours of datasets 0, 1 and 2, as the recorder writes them.
constexpr const char* kColour0 = "F000B1";
constexpr const char* kColour1 = "7D7DA9";
constexpr const char* kColour2 = "99CC00";

/// The fonts that live with a control, as the recorder writes them: a recording does not see their end.
inline const Strings kControlFonts = {"Arial 350", "Arial 300 @900", "Arial 450", "Arial 350"};

/// A control in a visible parent. The control's window is `width` x `height` pixels of client area without
/// any frame.
class GraphTest : public testing::Test {
protected:
    static constexpr int kControlId = 77;

    void SetUp() override;
    void TearDown() override;

    /// Gives the control's window another size.
    void Resize(int width, int height);
    /// Appends values to a dataset.
    void Add(int dataset, std::initializer_list<double> values);
    /// The X range fixed to [min, max].
    void FixX(double min, double max);
    /// All texts in white on white boards, so that pictures differ in no letter.
    void HideTexts();

    /// The whole picture as records.
    std::unique_ptr<testkit::MetafileRecorder> Record();
    /// The whole picture as pixels of a bitmap of the control's size.
    std::unique_ptr<testkit::DibSurface> Paint();
    /// Paints into a DC of the caller's, with the control's mapping.
    void PaintInto(HDC dc);
    /// Brings the window's picture up to date and leaves nothing to repaint.
    void Settle();
    /// The part of the window that waits for repainting; empty when there is none.
    CRect UpdateRect();
    /// A rectangle in logical units, in device units as the platform converts it.
    CRect ToDevice(CRect logical) const;
    CRect ClientRect() const;

    testkit::RecordingParent parent;
    OpenGraph graph;
};

/// "l,t,r,b", for messages and comparisons.
std::string Text(const CRect& rect);

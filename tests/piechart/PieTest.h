// SPDX-License-Identifier: MIT
// The fixture of the pie's tests: a control in a visible parent.
#pragma once

#include <kavlix/PieChartCtrl.h>

#include "tests/support/DibSurface.h"
#include "tests/support/MetafileRecorder.h"
#include "tests/support/RecordingParent.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

using Strings = std::vector<std::string>;

/// The control with its protected members made public. It records messages that reach the default procedure.
class OpenPie : public CPieChartCtrl {
public:
    using CPieChartCtrl::DrawPie;
    using CPieChartCtrl::m_arrPieces;
    using CPieChartCtrl::m_crBack;
    using CPieChartCtrl::m_crOutline;
    using CPieChartCtrl::m_crSelected;
    using CPieChartCtrl::m_fontLarge;
    using CPieChartCtrl::m_fontSmall;
    using CPieChartCtrl::m_nStartAngle;
    using CPieChartCtrl::m_nWaitMode;
    using CPieChartCtrl::m_rcPie;
    using CPieChartCtrl::m_strWait;

    CPieChartPiece& At(int index) { return *static_cast<CPieChartPiece*>(m_arrPieces.GetAt(index)); }
    int Selected() const;
    Strings defaulted; ///< "button" for each WM_LBUTTONDOWN that reached the default window procedure

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// The fill colour of piece `index` in the tests; the first forty differ.
COLORREF PieceColour(int index);

/// A control of 300 x 200 pixels without a frame, in a visible parent.
class PieTest : public testing::Test {
protected:
    static constexpr int kControlId = 77;

    void SetUp() override;
    void TearDown() override;

    void Resize(int width, int height);
    /// Adds pieces of `values` percent without label texts, piece i in PieceColour(i).
    void Add(std::initializer_list<double> values);

    std::unique_ptr<testkit::DibSurface> Paint();
    std::unique_ptr<testkit::MetafileRecorder> Record();
    void Settle();
    CRect UpdateRect();
    void Click(CPoint point, WPARAM flags = MK_LBUTTON);
    CRect Client();
    /// The pixel at an angle from twelve o'clock, `part` radii from the centre.
    CPoint At(double angle, double part);

    testkit::RecordingParent parent;
    OpenPie pie;
};

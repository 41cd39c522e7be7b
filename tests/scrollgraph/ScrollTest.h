// SPDX-License-Identifier: MIT
// The fixture of the scrolling graph's tests.
#pragma once

#include "tests/support/GraphFixture.h"

#include <kavlix/ScrollGraphCtrl.h>

#include <initializer_list>

/// The scrolling control with everything protected open.
class OpenScrollGraph : public testkit::OpenGraphOf<CScrollGraphCtrl> {
public:
    using CScrollGraphCtrl::m_bFollowed;
    using CScrollGraphCtrl::m_dScrollMax;
    using CScrollGraphCtrl::m_dScrollMin;
    using CScrollGraphCtrl::m_dScrollPos;
    using CScrollGraphCtrl::m_dViewWidth;
    using CScrollGraphCtrl::m_nDrawFirst;
    using CScrollGraphCtrl::m_nDrawLast;
    using CScrollGraphCtrl::m_strSelectionMarkTime;
    using CScrollGraphCtrl::m_wndScrollBar;

    /// The time axis alone, with room for `nTicks` labels.
    void PaintXAxis(CDC& dc, int nTicks) {
        CScrollGraphCtrl::DrawXAxis(dc, m_rectXTickLabel, m_rectXAxis, nTicks);
    }
};

/// 2023-11-14 22:13:20 UTC, a time stamp like any other.
constexpr long kSomeTime = 1700000000;

/// The plot of a control of 300 x 200 pixels with default settings, logical units.
constexpr int kPlotLeft = 2230, kPlotTop = 1100, kPlotRight = 5600, kPlotBottom = 3800;
constexpr int kPlotWidth = kPlotRight - kPlotLeft, kPlotHeight = kPlotBottom - kPlotTop;

class ScrollTest : public testkit::GraphFixture<OpenScrollGraph> {
protected:
    /// Appends time stamps.
    void Stamp(std::initializer_list<long> times);
    /// `count` samples a second apart, from `start` on, in datasets 0 to `datasets` - 1, with the values 0 to
    /// 99 over and over; the view stays.
    void Load(int count, long start = kSomeTime, int datasets = 1);
    /// "pos 0 max 1200 min 0 width 1200".
    std::string View() const;
    /// What the scroll bar was told: "0..1200 page 1197 pos 0".
    std::string Bar();
    /// The time axis alone as records, with room for `ticks` labels in the layout of the last paint.
    std::unique_ptr<testkit::MetafileRecorder> RecordXAxis(int ticks);
    /// Its labels: "11/14 22:13:20", "22:13:40".
    Strings Labels(int ticks);
    /// The labels of an axis `minutes` wide with a sample at `start` at its left edge.
    Strings LabelsFrom(long start, double minutes, int ticks);
    /// The part of the scroll bar that waits for repainting.
    CRect BarUpdateRect();
};

/// "line x1,y1 x2,y2 pen P", as the recorder writes it.
std::string Stroke(int x1, int y1, int x2, int y2, const std::string& pen);

// SPDX-License-Identifier: MIT
// CDataset: one series of a graph control, its samples and how they are drawn.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <memory>
#include <utility>

namespace kavlix {
class SampleStore;
}

/// One series of a graph control: its samples in order of arrival and how they are drawn. A sample's X is its
/// index 0, 1, 2, ... and takes no memory.
///
/// A graph control owns a fixed array of datasets. No member of this class repaints.
class KAVLIX_API CDataset : public CObject {
public:
    /// Marker at each point of a line. A marker extends 90 logical units (3 pixels) from its point to every
    /// side, a triangle only 60 downwards. Values not listed draw none.
    enum MarkerType : int {
        MarkerNone = 0,
        MarkerSquare = 1,   ///< outline of a square
        MarkerDiamond = 2,  ///< outline of a square standing on its corner
        MarkerTriangle = 3, ///< outline of a triangle pointing up
        MarkerCircle = 4,   ///< outline of a circle
        MarkerCross = 5,    ///< upright cross
        MarkerTypeCount     ///< number of values above; draws no marker
    };

    /// The widest line that is drawn, in logical units (1/30 pixel). Larger line sizes draw this width.
    enum : int { MaxLineSize = 1000 };

    /// An empty series.
    CDataset();
    ~CDataset() override;
    CDataset(const CDataset&) = delete;
    CDataset& operator=(const CDataset&) = delete;

    /// Appends the sample `y`. `*pX` receives the sample's X unless `pX` is null. Result 1. Result 0, after a
    /// message box, when memory ran out: nothing is stored and `*pX` is not written. Never throws.
    BOOL AddData(double y, double* pX);
    /// Appends the sample `y`. Results as those of AddData.
    BOOL AddYData(double y);

    /// Stores X and value of sample `i` in `x` and `y`. Result 0, outputs unchanged, when there is
    /// no sample `i`.
    BOOL GetData(int i, double& x, double& y) const;
    /// Stores the value of sample `i` in `y`. Result 0, `y` unchanged, when there is no sample `i`.
    BOOL GetYData(int i, double& y) const;

    /// Removes `count` samples, the first of which is sample `i`. A count beyond the end removes all up to
    /// the end, a count below 1 none. Result 0 when there is no sample `i`. Removing from the head takes time
    /// in proportion to `count`, however many samples remain.
    BOOL RemoveYData(int i, int count);
    /// Removes all samples but the first. An empty series gets one sample of the value 0. Result 1. Result 0,
    /// after a message box, when memory ran out for this sample.
    BOOL KeepOne();
    /// Removes all samples and frees their memory. Colour, marker, line size, legend and visibility stay.
    void RemoveAll();

    /// Number of samples.
    int GetSize() const;
    /// The samples, for painting.
    const kavlix::SampleStore& Samples() const { return *m_Samples; }

    MarkerType GetMarkerType() const { return m_MarkerType; }    ///< see m_MarkerType
    int GetLineSize() const { return m_LineSize; }               ///< see m_LineSize
    COLORREF GetColor() const { return m_Color; }                ///< see m_Color
    void SetLegend(CString text) { m_Legend = std::move(text); } ///< see m_Legend

private:
    BOOL AppendReporting(double y);

    std::unique_ptr<kavlix::SampleStore> m_Samples;

public:
    COLORREF m_Color = RGB(204, 58, 183); ///< colour of line, bars and markers
    MarkerType m_MarkerType = MarkerNone; ///< marker at each point, stored unchecked
    int m_LineSize = 0;    ///< line width in logical units, stored unchecked; 0 draws one pixel
    CString m_Legend;      ///< text of the legend row; no row if empty
    BOOL m_Visible = TRUE; ///< whether the series is drawn
};

KAVLIX_CHECK_HOST(CDataset)

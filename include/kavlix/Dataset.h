#pragma once

#include <afxwin.h>

#include <memory>
#include <utility>

#include <kavlix/Export.h>

namespace kavlix {
class SampleStore;
}

/// One series of a graph control: its samples in order of arrival and how they are drawn.
///
/// A control owns a fixed array of them. The X value of a sample is always its index 0, 1, 2, ... and takes
/// no storage. Nothing here repaints.
class KAVLIX_API CDataset : public CObject {
public:
    /// Marker drawn at each point, 90 logical units (3 pixels) to every side. Other values draw nothing.
    enum MarkerType : int {
        MarkerNone = 0,
        MarkerSquare = 1,   ///< outline of a square
        MarkerDiamond = 2,  ///< outline of a square standing on its corner
        MarkerTriangle = 3, ///< outline of a triangle pointing up
        MarkerCircle = 4,   ///< outline of a circle
        MarkerCross = 5,    ///< upright cross
        MarkerTypeCount     ///< how many types there are; draws nothing
    };

    /// An empty, visible series: colour RGB(204,58,183), no marker, line size 0, no legend text.
    CDataset();
    ~CDataset() override;
    CDataset(const CDataset&) = delete;
    CDataset& operator=(const CDataset&) = delete;

    /// Appends a sample. If `pX` is not null it receives the sample's X, which is its index.
    /// When memory runs out, a message box says so and the result is 0: the sample is not stored, `*pX` is
    /// not written. No exception leaves.
    BOOL AddData(double y, double* pX);
    /// Appends a sample whose place on the X axis is kept elsewhere. Fails as AddData does.
    BOOL AddYData(double y);

    /// Position and value of sample `i`. Result 0, and neither output written, when `i` is not a sample.
    BOOL GetData(int i, double& x, double& y) const;
    /// Value of sample `i`. Result 0, and `y` not written, when `i` is not a sample.
    BOOL GetYData(int i, double& y) const;

    /// Removes `count` samples from sample `i` on; a count beyond the end removes all up to the end, one
    /// below 1 removes none. Result 0 when `i` is not a sample. Removing from the head costs what is removed,
    /// not what remains.
    BOOL RemoveYData(int i, int count);
    /// Keeps the first sample alone, or a single 0 when there is none, which fails as AddData does.
    BOOL KeepOne();
    /// Removes every sample and frees the storage; colour, marker, line size, legend and visibility stay.
    void RemoveAll();

    /// Number of samples.
    int GetSize() const;
    /// The samples, for painting.
    const kavlix::SampleStore& Samples() const { return *m_Samples; }

    MarkerType GetMarkerType() const { return m_MarkerType; }
    /// Width of the line in logical units of 1/30 pixel.
    int GetLineSize() const { return m_LineSize; }
    COLORREF GetColor() const { return m_Color; }
    /// Sets the text of the legend row; an empty text takes no row.
    void SetLegend(CString text) { m_Legend = std::move(text); }

private:
    BOOL AppendReporting(double y);

    std::unique_ptr<kavlix::SampleStore> m_Samples;

public:
    COLORREF m_Color;        ///< line, bar and marker colour
    MarkerType m_MarkerType; ///< marker at each point; stored as given
    int m_LineSize;          ///< pen width in logical units, 0 for one pixel; drawn as 0 to 1000
    CString m_Legend;        ///< text of the legend row, empty for none
    BOOL m_Visible;          ///< whether the series is drawn
};

// SPDX-License-Identifier: MIT
// CGraphSeries: a named series of whole numbers for CGraph.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <unordered_map>

/// A number with a key: the value of a series for a group, or the colour of a group.
class KAVLIX_API CGraphValue : public CStatic {
public:
    CGraphValue(int aKey, int aValue) : key(aKey), value(aValue) {} ///< a number with its key
    ~CGraphValue() override;

    int key;   ///< the group, or the X value of a point
    int value; ///< the data value; for a colour the COLORREF 0x00BBGGRR
};

/// A series of a CGraph: a label, and a whole number for each group. The key of a number is its group.
///
/// The host creates a series with `new`, fills it and passes it to CGraph::AddSeries, which takes ownership.
/// No member repaints.
///
/// Groups count from 0. In XY line and scatter graphs the key is the X value of a point. In bar graphs with
/// quadrant types 2 and 4, key -1 - j is group j on the negative side. A group without a value is a gap in a
/// line, and has no part in a stack.
class KAVLIX_API CGraphSeries : public CStatic {
public:
    /// A series without label and values.
    CGraphSeries();
    /// Deletes the values.
    ~CGraphSeries() override;
    CGraphSeries(const CGraphSeries&) = delete;
    CGraphSeries& operator=(const CGraphSeries&) = delete;

    /// @{
    /// The text at the axis; CGraph::RemoveSeries finds a series by its label.
    void SetLabel(CString label) { seriesLabel = label; }
    CString GetLabel() const { return seriesLabel; }
    /// @}

    /// Stores the value of a group. An existing value of the group is replaced in its place in the list.
    /// Takes constant time on average. When memory runs out, nothing changes and the exception passes on.
    void SetData(int group, int value);
    /// Appends a point, also when the series has one with the same X. XY line, scatter and box-whisker graphs
    /// use every point. GetData, SetData and the other graph types use only the first of several points with
    /// the same X. When memory runs out, nothing changes and the exception passes on.
    void AddPoint(int x, int y);
    /// The first value of `group`; 0 when `group` has none.
    int GetData(int group) const;
    /// The number of values, points with the same key included.
    int GetDataCount() const;
    /// The values as CGraphValue objects, in the order in which the host stored them. The series owns them.
    const CObList& GetDataList() const { return *dataValues; }

private:
    friend class CGraph;

    CString seriesLabel;
    CObList* dataValues = nullptr;
    std::unordered_map<int, CGraphValue*>
        firstRecords; ///< the first value of each key; `dataValues` owns them
};

KAVLIX_CHECK_HOST(CGraphValue)
KAVLIX_CHECK_HOST(CGraphSeries)

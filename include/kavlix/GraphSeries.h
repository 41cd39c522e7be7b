#pragma once

#include <afxwin.h>

#include <unordered_map>

#include <kavlix/Export.h>

/// One keyed number: a series' value for a group, or a group's colour.
class KAVLIX_API CGraphValue : public CStatic {
public:
    CGraphValue(int aKey, int aValue) : key(aKey), value(aValue) {}
    ~CGraphValue() override;

    int key;   ///< the group index
    int value; ///< the data value; of a colour the COLORREF 0x00BBGGRR
};

/// A series of a CGraph: a name, and one whole number for each group, under the group's index as its key.
///
/// The host makes it with `new`, fills it and hands it to CGraph::AddSeries, which owns it from then on.
/// Nothing here repaints.
///
/// Groups count from 0. In XY line and scatter graphs a key is the point's X value. In bar graphs of quadrant
/// types 2 and 4, key -1 - j is group j on the negative side. A group without a value is a gap in lines and
/// takes no room in stacks.
class KAVLIX_API CGraphSeries : public CStatic {
public:
    /// Without a name and without values.
    CGraphSeries();
    /// Deletes the values.
    ~CGraphSeries() override;
    CGraphSeries(const CGraphSeries&) = delete;
    CGraphSeries& operator=(const CGraphSeries&) = delete;

    /// The name: what stands at the axis, and what CGraph::RemoveSeries looks for.
    void SetLabel(CString label) { seriesLabel = label; }
    CString GetLabel() const { return seriesLabel; }

    /// Stores the value of a group; one that is already there is replaced and keeps its place in the order.
    /// Costs the same for any order of keys and any number of values. Changes nothing when memory runs out.
    void SetData(int group, int value);
    /// Appends a point, also when there is one with the same X: XY line and scatter graphs and the statistics
    /// of a box use every point. Everything else (GetData, SetData, the other types) takes the first record
    /// of a key. Changes nothing when memory runs out.
    void AddPoint(int x, int y);
    /// The value first stored for `group`; 0 when there is none.
    int GetData(int group) const;
    /// Number of values stored.
    int GetDataCount() const;
    /// The values, CGraphValue records in order of arrival. Owned by the series; for reading.
    const CObList& GetDataList() const { return *dataValues; }

private:
    friend class CGraph;

    CString seriesLabel;
    CObList* dataValues;
    std::unordered_map<int, CGraphValue*> firstRecords; ///< of each key; owned by dataValues
};

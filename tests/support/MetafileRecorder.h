// SPDX-License-Identifier: MIT
// Records what the code under test draws, as text lines that tests compare.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace testkit {

/// Kinds of metafile records, as bits so that a test can pick several.
enum RecordKind : unsigned {
    kLine = 1, ///< one straight stroke, from the current position or inside a polyline
    kRectangle = 2,
    kEllipse = 4,
    kPolygon = 8,
    kRegion = 16, ///< a filled region
    kText = 32,
    kClip = 64,   ///< any change of the clip region
    kOther = 128, ///< any other drawing record; its text is the record's number
    kDrawing = kLine | kRectangle | kEllipse | kPolygon | kRegion | kText | kOther,
    kAll = kDrawing | kClip
};

/// The state of the recorded DC at a record. Pens, brushes and fonts are described by text, not by handles.
struct MetafileState {
    std::string pen = "solid 0 000000"; ///< style, width in logical units, RRGGBB; or "null"
    std::string brush = "FFFFFF";       ///< RRGGBB of a solid brush; or "null"
    std::string font = "stock";         ///< face, height, "bold" from weight 700, "@" escapement when not 0
    COLORREF textColor = RGB(0, 0, 0);
    UINT textAlign = TA_LEFT | TA_TOP;
    int mapMode = MM_TEXT;
    POINT position = {0, 0};
    bool clipped = false;
    RECT clip = {0, 0, 0, 0}; ///< bounds of the clip region in device units, when clipped
};

/// One record that draws or clips. Coordinates are logical units, as the code under test passed them; those
/// of clip regions are device units.
struct MetafileRecord {
    RecordKind kind;
    RECT box = {0, 0, 0, 0};   ///< of a rectangle, ellipse, region or clip
    std::vector<POINT> points; ///< of a line or polygon; the reference point of a text
    std::string text;          ///< of a text, in the process code page; UTF-8 in UNICODE programs
    std::string brush;         ///< what fills a region
    MetafileState state;       ///< of the DC at this record

    /// The record as one line of text:
    ///   line 0,0 10,20 pen solid 0 FF0000
    ///   rect 0,0,10,20 pen null brush FFFFFF        (ellipse alike)
    ///   polygon 0,0 5,5 9,0 pen solid 0 FF0000 brush null
    ///   region 0,0,10,20 brush FF0000
    ///   text 10,20 right|top 3F7F4D Arial 350 "75"
    ///   clip 0,0,299,199      and      clip none
    std::string Line() const;
    /// The bounds of the clip region at this record: "0,0,299,199", or "none".
    std::string ClipText() const;
};

/// "RRGGBB" of a colour.
std::string ColourText(COLORREF colour);
/// "left,top,right,bottom".
std::string BoxText(const RECT& box);

/// An enhanced metafile. The code under test paints into it, then the test reads its records.
class MetafileRecorder {
public:
    /// `frame` is the frame of the picture in 0.01 mm; null for the bounds of what is drawn.
    explicit MetafileRecorder(const RECT* frame = nullptr);
    MetafileRecorder(const MetafileRecorder&) = delete;
    MetafileRecorder& operator=(const MetafileRecorder&) = delete;
    ~MetafileRecorder();

    /// The DC to paint into; nullptr after Close().
    HDC Dc() const { return m_dc; }
    /// Ends the recording and reads the records. Call this once, before all following members.
    void Close();

    const std::vector<MetafileRecord>& Records() const { return m_records; }
    /// The lines of the records of these kinds, in order.
    std::vector<std::string> Lines(unsigned kinds) const;
    /// The same, each line followed by " in " and its ClipText. Empty texts draw nothing and are left out.
    std::vector<std::string> ClippedLines(unsigned kinds) const;
    /// The records whose line begins with `start`.
    std::vector<std::string> LinesFrom(const std::string& start) const;
    /// The strokes drawn with a pen of this text form, in order.
    std::vector<std::string> Strokes(const std::string& pen) const;
    /// The texts alone, in order, without the empty ones.
    std::vector<std::string> Texts() const;
    /// The DC's state after the last record.
    const MetafileState& FinalState() const { return m_state; }

    /// Checks the use of GDI objects: all objects made during the recording are deleted, none while it is
    /// selected, and none is selected at the end. Empty when this is so, otherwise a text for each fault.
    /// `lasting` holds the text forms of objects that may outlive the recording, one for each object.
    std::string ObjectFaults(std::vector<std::string> lasting = {}) const;

    /// The closed metafile. Owned by the recorder.
    HENHMETAFILE Handle() const { return m_metafile; }

private:
    struct Object {
        char kind;
        std::string value;
    };
    using Header = ENHMETARECORD;

    static int CALLBACK Enumerate(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM self);
    template <class Wanted, class Text> std::vector<std::string> Collect(Wanted wanted, Text text) const;
    void Read(const Header& record);
    void ReadShape(const Header& record, DWORD lastMade);
    void ReadClip(const Header& record);
    void ReadText(const Header& record);
    void Select(DWORD handle);
    void SelectStock(DWORD handle);
    void Restore(LONG level);
    void Make(const Header& record, char kind, const std::string& value);
    void Delete(DWORD handle);
    void Stroke(const POINT& to);
    void StrokePath(const std::vector<POINT>& points, bool isFromPosition);
    MetafileRecord& Add(RecordKind kind);

    HDC m_dc;
    HENHMETAFILE m_metafile = nullptr;
    std::vector<MetafileRecord> m_records;
    MetafileState m_state;
    std::vector<MetafileState> m_saved;
    std::map<DWORD, Object> m_objects;
    std::map<char, DWORD> m_selected;
    std::string m_faults;
    DWORD m_lastMade = 0; ///< the object that the previous record made; 0 for none
};

} // namespace testkit

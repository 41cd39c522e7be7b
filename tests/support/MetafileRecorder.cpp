// SPDX-License-Identifier: MIT
// Reads the records of a metafile, and keeps track of the DC's state and of the objects in use.
#include "tests/support/MetafileRecorder.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace testkit {
namespace {

constexpr DWORD kStockObject = 0x80000000;
/// Records of state that no test reads.
constexpr DWORD kUnread[] = {EMR_SETBKCOLOR,        EMR_SETROP2,        EMR_SETPOLYFILLMODE,
                             EMR_SETSTRETCHBLTMODE, EMR_SETWINDOWORGEX, EMR_SETVIEWPORTORGEX,
                             EMR_SETBRUSHORGEX,     EMR_SETMITERLIMIT,  EMR_SETLAYOUT,
                             EMR_SETBKMODE,         EMR_SETWINDOWEXTEX, EMR_SETVIEWPORTEXTEX};

template <class T> const T& As(const ENHMETARECORD& record) {
    return reinterpret_cast<const T&>(record);
}

std::string PenText(UINT style, int width, COLORREF colour) {
    static const char* const names[] = {"solid", "dash", "dot", "dashdot", "dashdotdot"};
    const UINT kind = style & PS_STYLE_MASK;
    if (kind == PS_NULL)
        return "null";
    std::ostringstream text;
    text << (kind < 5 ? names[kind] : "other") << " " << width << " " << ColourText(colour);
    return text.str();
}

std::string BrushText(UINT style, COLORREF colour) {
    if (style == BS_NULL)
        return "null";
    return style == BS_SOLID ? ColourText(colour) : "pattern";
}

std::string FontText(const LOGFONTW& font) {
    std::string face;
    for (const WCHAR* letter = font.lfFaceName; *letter != 0; ++letter)
        face += static_cast<char>(*letter);
    std::ostringstream text;
    text << face << " " << font.lfHeight;
    if (font.lfWeight >= FW_BOLD)
        text << " bold";
    if (font.lfEscapement != 0)
        text << " @" << font.lfEscapement;
    return text.str();
}

/// The text as the tests of the character set write it: in UTF-8, or in the code page of the process.
std::string Narrow(const WCHAR* text, UINT length) {
    constexpr UINT kCodePage = sizeof(TCHAR) == sizeof(WCHAR) ? CP_UTF8 : CP_ACP;
    if (length == 0)
        return {};
    const int wide = static_cast<int>(length);
    const int size = WideCharToMultiByte(kCodePage, 0, text, wide, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(kCodePage, 0, text, wide, &narrow[0], size, nullptr, nullptr);
    return narrow;
}

POINT ToPoint(const POINTL& point) {
    return {point.x, point.y};
}

RECT ToRect(const RECTL& box) {
    return {box.left, box.top, box.right, box.bottom};
}

/// The code under test draws in the compatible graphics mode, so GDI records boxes without their right and
/// bottom edges.
RECT FullBox(const RECTL& box) {
    return {box.left, box.top, box.right + 1, box.bottom + 1};
}

RECT RegionBounds(const BYTE* data) {
    return reinterpret_cast<const RGNDATA*>(data)->rdh.rcBound;
}

/// `first` points to the first element of an array that is declared with one element and holds more.
template <class Point> std::vector<POINT> PointsOf(const Point* first, DWORD count) {
    std::vector<POINT> points;
    for (const Point* point = first; point != first + count; ++point)
        points.push_back({point->x, point->y});
    return points;
}

} // namespace

MetafileRecorder::MetafileRecorder(const RECT* frame)
    : m_dc(CreateEnhMetaFileA(nullptr, nullptr, frame, nullptr)) {
    if (m_dc == nullptr)
        throw std::runtime_error("no metafile could be made");
}

MetafileRecorder::~MetafileRecorder() {
    if (m_dc != nullptr)
        m_metafile = CloseEnhMetaFile(m_dc);
    DeleteEnhMetaFile(m_metafile);
}

void MetafileRecorder::Close() {
    m_metafile = CloseEnhMetaFile(m_dc);
    m_dc = nullptr;
    if (m_metafile == nullptr)
        throw std::runtime_error("the metafile could not be closed");
    EnumEnhMetaFile(nullptr, m_metafile, &MetafileRecorder::Enumerate, this, nullptr);
    for (const auto& entry : m_selected)
        if (entry.second != 0 && m_objects.count(entry.second) != 0)
            m_faults += "still selected at the end: " + m_objects[entry.second].value + "; ";
}

template <class Wanted, class Text>
std::vector<std::string> MetafileRecorder::Collect(Wanted wanted, Text text) const {
    std::vector<std::string> lines;
    for (const MetafileRecord& record : m_records)
        if (wanted(record))
            lines.push_back(text(record));
    return lines;
}

std::vector<std::string> MetafileRecorder::Lines(unsigned kinds) const {
    return Collect([&](auto& record) { return (record.kind & kinds) != 0; },
                   std::mem_fn(&MetafileRecord::Line));
}

std::vector<std::string> MetafileRecorder::ClippedLines(unsigned kinds) const {
    return Collect(
        [&](auto& record) {
            return (record.kind & kinds) != 0 && (record.kind != kText || !record.text.empty());
        },
        [](auto& record) { return record.Line() + " in " + record.ClipText(); });
}

std::vector<std::string> MetafileRecorder::LinesFrom(const std::string& start) const {
    return Collect([&](auto& record) { return record.Line().compare(0, start.size(), start) == 0; },
                   std::mem_fn(&MetafileRecord::Line));
}

std::vector<std::string> MetafileRecorder::Strokes(const std::string& pen) const {
    return Collect([&](auto& record) { return record.kind == kLine && record.state.pen == pen; },
                   std::mem_fn(&MetafileRecord::Line));
}

std::vector<std::string> MetafileRecorder::Texts() const {
    return Collect([](auto& record) { return record.kind == kText && !record.text.empty(); },
                   std::mem_fn(&MetafileRecord::text));
}

std::string MetafileRecorder::ObjectFaults(std::vector<std::string> lasting) const {
    std::string faults = m_faults;
    for (const auto& entry : m_objects) {
        const auto excused = std::find(lasting.begin(), lasting.end(), entry.second.value);
        if (excused == lasting.end())
            faults += "never deleted: " + entry.second.value + "; ";
        else
            lasting.erase(excused);
    }
    return faults;
}

int CALLBACK MetafileRecorder::Enumerate(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM self) {
    reinterpret_cast<MetafileRecorder*>(self)->Read(*record);
    return 1;
}

void MetafileRecorder::Read(const Header& record) {
    if (record.iType == EMR_HEADER || record.iType == EMR_EOF || record.iType == EMR_GDICOMMENT)
        return;
    const DWORD lastMade = std::exchange(m_lastMade, 0);
    switch (record.iType) {
    case EMR_CREATEPEN: {
        const LOGPEN& pen = As<EMRCREATEPEN>(record).lopn;
        return Make(record, 'p', PenText(pen.lopnStyle, pen.lopnWidth.x, pen.lopnColor));
    }
    case EMR_EXTCREATEPEN: {
        const auto& pen = As<EMREXTCREATEPEN>(record).elp;
        return Make(record, 'p', PenText(pen.elpPenStyle, static_cast<int>(pen.elpWidth), pen.elpColor));
    }
    case EMR_CREATEBRUSHINDIRECT: {
        const auto& brush = As<EMRCREATEBRUSHINDIRECT>(record).lb;
        return Make(record, 'b', BrushText(brush.lbStyle, brush.lbColor));
    }
    case EMR_EXTCREATEFONTINDIRECTW:
        return Make(record, 'f', FontText(As<EMREXTCREATEFONTINDIRECTW>(record).elfw.elfLogFont));
    case EMR_SELECTOBJECT:
        return Select(As<EMRSELECTOBJECT>(record).ihObject);
    case EMR_DELETEOBJECT:
        return Delete(As<EMRDELETEOBJECT>(record).ihObject);
    case EMR_SETTEXTCOLOR:
        m_state.textColor = As<EMRSETTEXTCOLOR>(record).crColor;
        return;
    case EMR_SETTEXTALIGN:
        m_state.textAlign = As<EMRSETTEXTALIGN>(record).iMode;
        return;
    case EMR_SETMAPMODE:
        m_state.mapMode = static_cast<int>(As<EMRSETMAPMODE>(record).iMode);
        return;
    case EMR_SAVEDC:
        return m_saved.push_back(m_state);
    case EMR_RESTOREDC:
        return Restore(As<EMRRESTOREDC>(record).iRelative);
    case EMR_EXTSELECTCLIPRGN:
    case EMR_INTERSECTCLIPRECT:
    case EMR_EXCLUDECLIPRECT:
    case EMR_OFFSETCLIPRGN:
        return ReadClip(record);
    default:
        ReadShape(record, lastMade);
    }
}

MetafileRecord& MetafileRecorder::Add(RecordKind kind) {
    m_records.push_back({});
    m_records.back().kind = kind;
    m_records.back().state = m_state;
    return m_records.back();
}

void MetafileRecorder::Make(const Header& record, char kind, const std::string& value) {
    const DWORD handle = As<EMRSELECTOBJECT>(record).ihObject; // all records of objects begin with the handle
    m_objects[handle] = {kind, value};
    m_lastMade = handle;
}

void MetafileRecorder::Delete(DWORD handle) {
    const auto found = m_objects.find(handle);
    if (found == m_objects.end())
        return;
    if (m_selected[found->second.kind] == handle)
        m_faults += "deleted while selected: " + found->second.value + "; ";
    m_objects.erase(found);
}

void MetafileRecorder::Select(DWORD handle) {
    if ((handle & kStockObject) != 0) {
        SelectStock(handle & ~kStockObject);
        return;
    }
    const auto found = m_objects.find(handle);
    if (found == m_objects.end()) {
        m_faults += "selected without being made; ";
        return;
    }
    const Object& object = found->second;
    m_selected[object.kind] = handle;
    (object.kind == 'p' ? m_state.pen : object.kind == 'b' ? m_state.brush : m_state.font) = object.value;
}

void MetafileRecorder::SelectStock(DWORD index) {
    const HGDIOBJ object = GetStockObject(static_cast<int>(index));
    switch (GetObjectType(object)) {
    case OBJ_PEN: {
        LOGPEN pen = {};
        GetObject(object, sizeof pen, &pen);
        m_selected['p'] = 0;
        m_state.pen = PenText(pen.lopnStyle, 0, pen.lopnColor);
        break;
    }
    case OBJ_BRUSH: {
        LOGBRUSH brush = {};
        GetObject(object, sizeof brush, &brush);
        m_selected['b'] = 0;
        m_state.brush = BrushText(brush.lbStyle, brush.lbColor);
        break;
    }
    case OBJ_FONT:
        m_selected['f'] = 0;
        m_state.font = "stock";
        break;
    default:
        break;
    }
}

void MetafileRecorder::Restore(LONG level) {
    const auto depth = static_cast<LONG>(m_saved.size());
    const LONG target = level < 0 ? depth + level : level - 1;
    if (target < 0 || target >= depth)
        return;
    m_state = m_saved[static_cast<std::size_t>(target)];
    m_saved.resize(static_cast<std::size_t>(target));
    // The restored state holds values. The objects selected since then are not in use any more.
    m_selected.clear();
}

void MetafileRecorder::ReadClip(const Header& record) {
    MetafileRecord& clip = Add(kClip);
    if (record.iType == EMR_EXTSELECTCLIPRGN) {
        const auto& select = As<EMREXTSELECTCLIPRGN>(record);
        m_state.clipped = select.cbRgnData >= sizeof(RGNDATAHEADER);
        if (m_state.clipped)
            clip.box = m_state.clip = RegionBounds(select.RgnData);
        else
            clip.text = "none";
        if (select.iMode != RGN_COPY)
            clip.text = "mode " + std::to_string(select.iMode) + " " + BoxText(clip.box);
    } else if (record.iType == EMR_INTERSECTCLIPRECT) {
        clip.box = ToRect(As<EMRINTERSECTCLIPRECT>(record).rclClip);
        clip.text = "with logical " + BoxText(clip.box);
        m_state.clipped = true;
    } else {
        clip.text = "by record " + std::to_string(record.iType);
    }
}

void MetafileRecorder::Stroke(const POINT& to) {
    Add(kLine).points = {m_state.position, to};
    m_state.position = to;
}

void MetafileRecorder::StrokePath(const std::vector<POINT>& points, bool isFromPosition) {
    const POINT before = m_state.position;
    for (const POINT& point : points) {
        if (&point != &points.front() || isFromPosition)
            Stroke(point);
        m_state.position = point;
    }
    if (!isFromPosition)
        m_state.position = before;
}

void MetafileRecorder::ReadShape(const Header& record, DWORD lastMade) {
    const auto addBox = [&](RecordKind kind, const RECT& box) { Add(kind).box = box; };
    const auto addPolygon = [&](std::vector<POINT> points) { Add(kPolygon).points = std::move(points); };
    switch (record.iType) {
    case EMR_MOVETOEX:
        m_state.position = ToPoint(As<EMRMOVETOEX>(record).ptl);
        return;
    case EMR_LINETO:
        return Stroke(ToPoint(As<EMRLINETO>(record).ptl));
    case EMR_RECTANGLE:
        return addBox(kRectangle, FullBox(As<EMRRECTANGLE>(record).rclBox));
    case EMR_ELLIPSE:
        return addBox(kEllipse, FullBox(As<EMRELLIPSE>(record).rclBox));
    case EMR_POLYGON:
        return addPolygon(PointsOf(As<EMRPOLYGON>(record).aptl, As<EMRPOLYGON>(record).cptl));
    case EMR_POLYGON16:
        return addPolygon(PointsOf(As<EMRPOLYGON16>(record).apts, As<EMRPOLYGON16>(record).cpts));
    case EMR_POLYLINE:
    case EMR_POLYLINETO:
        return StrokePath(PointsOf(As<EMRPOLYLINE>(record).aptl, As<EMRPOLYLINE>(record).cptl),
                          record.iType == EMR_POLYLINETO);
    case EMR_POLYLINE16:
    case EMR_POLYLINETO16:
        return StrokePath(PointsOf(As<EMRPOLYLINE16>(record).apts, As<EMRPOLYLINE16>(record).cpts),
                          record.iType == EMR_POLYLINETO16);
    case EMR_FILLRGN: {
        const auto& fill = As<EMRFILLRGN>(record);
        addBox(kRegion, RegionBounds(fill.RgnData));
        const auto brush = m_objects.find(fill.ihBrush);
        m_records.back().brush = brush == m_objects.end() ? "unknown" : brush->second.value;
        // GDI records a brush of its own for each fill and does not delete this brush.
        if (brush != m_objects.end() && fill.ihBrush == lastMade)
            m_objects.erase(brush);
        return;
    }
    case EMR_PAINTRGN:
        addBox(kRegion, RegionBounds(As<EMRINVERTRGN>(record).RgnData));
        m_records.back().brush = m_state.brush;
        return;
    case EMR_EXTTEXTOUTA:
    case EMR_EXTTEXTOUTW:
        return ReadText(record);
    default:
        if (std::count(std::begin(kUnread), std::end(kUnread), record.iType) == 0)
            Add(kOther).text = std::to_string(record.iType);
    }
}

void MetafileRecorder::ReadText(const Header& record) {
    MetafileRecord& text = Add(kText);
    const auto& out = As<EMREXTTEXTOUTW>(record).emrtext;
    const auto* letters = reinterpret_cast<const char*>(&record) + out.offString;
    text.points = {ToPoint(out.ptlReference)};
    text.text = record.iType == EMR_EXTTEXTOUTW ? Narrow(reinterpret_cast<const WCHAR*>(letters), out.nChars)
                                                : std::string(letters, out.nChars);
}

} // namespace testkit

// SPDX-License-Identifier: MIT
// The text form of one metafile record.
#include "tests/support/MetafileRecorder.h"

#include <cstdio>
#include <sstream>

namespace testkit {
namespace {

std::string AlignText(UINT align) {
    const UINT across = align & TA_CENTER;
    const UINT upright = align & TA_BASELINE;
    std::string text = across == TA_CENTER ? "center" : across == TA_RIGHT ? "right" : "left";
    return text + (upright == TA_BASELINE ? "|baseline" : upright == TA_BOTTOM ? "|bottom" : "|top");
}

} // namespace

std::string BoxText(const RECT& box) {
    std::ostringstream text;
    text << box.left << "," << box.top << "," << box.right << "," << box.bottom;
    return text.str();
}

std::string ColourText(COLORREF colour) {
    char text[16];
    std::snprintf(text, sizeof text, "%02X%02X%02X", GetRValue(colour), GetGValue(colour), GetBValue(colour));
    return text;
}

std::string MetafileRecord::Line() const {
    std::ostringstream line;
    const auto write_points = [&line](const std::vector<POINT>& all) {
        for (const POINT& point : all)
            line << " " << point.x << "," << point.y;
    };
    switch (kind) {
    case kRectangle:
    case kEllipse:
        line << (kind == kRectangle ? "rect " : "ellipse ") << BoxText(box) << " pen " << state.pen
             << " brush " << state.brush;
        break;
    case kLine:
    case kPolygon:
        line << (kind == kLine ? "line" : "polygon");
        write_points(points);
        line << " pen " << state.pen << (kind == kLine ? "" : " brush " + state.brush);
        break;
    case kRegion:
        line << "region " << BoxText(box) << " brush " << brush;
        break;
    case kText:
        line << "text";
        write_points(points);
        line << " " << AlignText(state.textAlign) << " " << ColourText(state.textColor) << " " << state.font
             << " \"" << text << "\"";
        break;
    case kClip:
        line << "clip " << (text.empty() ? BoxText(box) : text);
        break;
    default:
        line << "other " << text;
        break;
    }
    return line.str();
}

std::string MetafileRecord::ClipText() const {
    return state.clipped ? BoxText(state.clip) : "none";
}

} // namespace testkit

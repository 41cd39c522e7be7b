// SPDX-License-Identifier: MIT
// The plain painter's paper: the facts of a graph, and the records of what is drawn. The painter is slow and
// plain: OracleFrame.h, OracleAxes.h and OracleSeries.h each add a layer.
#pragma once

#include "tests/graph/MultiGraphTest.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <map>
#include <tuple>

#include "plot/Numeric.h"

namespace oracle {

/// The properties and contents of a graph, as a host sets them.
struct GraphFacts {
    struct Series {
        std::string label;
        std::vector<std::pair<int, int>> points; ///< key and value, in order of arrival
    };
    int type = 0, width = 500, height = 400, angle = 0;
    std::string title, xCaption, yCaption;
    int labelFont = 12, numberFont = 12, legendFont = 12; ///< at least 1
    bool bySeries = false, grid = false, vertical = true;
    int min = 0, max = 100, step = 10;
    int quadrants = 0; ///< 0: chosen by the graph
    double depth = 0.05;
    std::vector<std::string> legend;
    std::vector<COLORREF> colours;
    std::vector<Series> series;
};

using Record = testkit::MetafileRecord;

struct Place {
    double x, y;
};

struct Size {
    double width, height;
};

inline constexpr COLORREF kWhite = RGB(255, 255, 255), kGrey = RGB(128, 128, 128);

inline POINT Rounded(Place place) {
    return {static_cast<LONG>(std::floor(place.x + 0.5)), static_cast<LONG>(std::floor(place.y + 0.5))};
}

inline COLORREF Lit(COLORREF colour, double light) {
    const auto part = [&](int value) {
        return static_cast<int>((light <= 1 ? value * light : value + (255 - value) * (light - 1)) + 0.5);
    };
    return RGB(part(GetRValue(colour)), part(GetGValue(colour)), part(GetBValue(colour)));
}

inline COLORREF Outline(COLORREF colour) {
    return Lit(colour, 0.55);
}

inline int Normal(int angle) {
    return (angle % 360 + 360) % 360;
}

/// The box of a turned text, relative to the upper left corner of the text itself.
struct Turned {
    Turned(Size size, int angle) {
        const int turn = Normal(angle);
        sin = turn % 180 == 0 ? 0 : std::sin(turn * kavlix::kPi / 180);
        cos = turn % 180 == 90 ? 0 : std::cos(turn * kavlix::kPi / 180);
        for (const Place p : {At(0, 0), At(size.width, 0), At(0, size.height), At(size.width, size.height)}) {
            left = std::min(left, p.x), right = std::max(right, p.x);
            top = std::min(top, p.y), bottom = std::max(bottom, p.y);
        }
    }
    Place At(double along, double below) const {
        return {along * cos + below * sin, -along * sin + below * cos};
    }
    double sin, cos;
    double left = 0, top = 0, right = 0, bottom = 0;
};

/// The lines of the records that show inside a picture. Empty texts are left out.
inline Strings VisibleLines(const std::vector<Record>& records, int width, int height) {
    Strings lines;
    for (const Record& record : records) {
        LONG left = record.box.left, top = record.box.top, right = record.box.right,
             bottom = record.box.bottom;
        if (!record.points.empty()) {
            left = top = INT_MAX, right = bottom = INT_MIN;
            for (const POINT& point : record.points) {
                left = std::min(left, point.x), right = std::max(right, point.x);
                top = std::min(top, point.y), bottom = std::max(bottom, point.y);
            }
        }
        // Texts that begin outside the picture are compared only when they are sure to show.
        const bool text = record.kind == testkit::kText,
                   turned = record.state.font.find('@') != std::string::npos;
        const int cell = text ? std::stoi(record.state.font.substr(6)) : 0;
        const int length = cell * static_cast<int>(record.text.size()) / 2,
                  beyond = text && turned ? length : 0;
        // An empty box leaves no record, and a box of one pixel is filled, which is another kind of record.
        const bool dot = record.kind == testkit::kOther ||
                         (record.kind == testkit::kRectangle && (right - left) * (bottom - top) <= 1);
        if (!dot && !(text && record.text.empty()) && left <= width + beyond && right >= -length &&
            top <= height + beyond && bottom >= -std::max(cell, beyond))
            lines.push_back(record.Line());
    }
    return lines;
}

/// Draws into a list of records. Places are rounded when they are recorded.
class Paper {
public:
    explicit Paper(const GraphFacts& facts) : f(facts) { dc.CreateCompatibleDC(nullptr); }

    /// The lines of the records since the last call.
    Strings TakeLines() { return VisibleLines(std::exchange(records, {}), f.width, f.height); }
    /// The lines of the texts over the series.
    Strings LinesOver() const { return VisibleLines(over, f.width, f.height); }
    bool Is(std::initializer_list<int> types) const {
        return std::find(types.begin(), types.end(), f.type) != types.end();
    }

protected:
    void Pen(int width, COLORREF colour) {
        state.pen = "solid " + std::to_string(width) + " " + testkit::ColourText(colour);
    }
    void Brush(COLORREF colour) { state.brush = testkit::ColourText(colour); }
    void Add(testkit::RecordKind kind, RECT box, std::vector<POINT> points) {
        records.push_back({kind, box, std::move(points), "", "", state});
    }
    void Line(Place a, Place b) { Add(testkit::kLine, {}, {Rounded(a), Rounded(b)}); }
    void Rectangle(double l, double t, double r, double b) {
        const POINT first = Rounded({l, t}), last = Rounded({r, b});
        Add(testkit::kRectangle, {first.x, first.y, last.x, last.y}, {});
    }
    void Circle(Place centre, double radius) {
        const POINT first = Rounded({centre.x - radius, centre.y - radius});
        const POINT last = Rounded({centre.x + radius + 1, centre.y + radius + 1});
        Add(testkit::kEllipse, {first.x, first.y, last.x, last.y}, {});
    }
    void Polygon(const std::vector<Place>& corners) {
        std::vector<POINT> points;
        for (const Place& corner : corners)
            points.push_back(Rounded(corner));
        Add(testkit::kPolygon, {}, std::move(points));
    }
    void Text(Place place, const std::string& text, int size, int weight = FW_NORMAL, int angle = 0) {
        Record record{testkit::kText, {}, {Rounded(place)}, text, "", state};
        record.state.textColor = kInk;
        record.state.font = "Arial " + std::to_string(size) + (weight >= FW_BOLD ? " bold" : "") +
                            (angle != 0 ? " @" + std::to_string(angle * 10) : "");
        records.push_back(record);
    }
    /// A text over the series, on white.
    void Over(Place place, const std::string& text, int size, int weight = FW_NORMAL, int angle = 0) {
        const testkit::MetafileState kept = state;
        const Turned box(Measure(text, size, weight), angle);
        records.swap(over);
        Pen(1, kWhite);
        Brush(kWhite);
        Rectangle(place.x + box.left, place.y + box.top, place.x + box.right, place.y + box.bottom);
        Text(place, text, size, weight, angle);
        records.swap(over);
        state = kept;
    }

    template <class Read> auto WithFont(int size, int weight, int angle, Read read) {
        CFont& font = fonts[{size, weight, angle}];
        if (font.GetSafeHandle() == nullptr)
            font.CreateFont(size, 0, angle * 10, 0, weight, 0, 0, 0, 0, 0, 0, 0, 16, _T("Arial"));
        CFont* const before = dc.SelectObject(&font);
        const auto result = read();
        dc.SelectObject(before);
        return result;
    }
    Size Measure(const std::string& text, int size, int weight = FW_NORMAL) {
        return WithFont(size, weight, 0, [&] {
            const CSize extent = dc.GetTextExtent(CString(text.c_str()));
            return Size{static_cast<double>(extent.cx), static_cast<double>(extent.cy)};
        });
    }
    /// Average width and height of a character.
    Size Average(int size, int weight = FW_BOLD, int angle = 0) {
        return WithFont(size, weight, angle, [&] {
            TEXTMETRIC metrics{};
            dc.GetTextMetrics(&metrics);
            return Size{static_cast<double>(metrics.tmAveCharWidth), static_cast<double>(metrics.tmHeight)};
        });
    }
    static int Fit(int size, int length, int room) {
        while (size > 1 && size / 2 * length > room)
            size -= 2;
        return std::max(size, 1);
    }
    std::string Shortened(const std::string& text, double room, int size, int weight = FW_NORMAL) {
        if (Measure(text, size, weight).width <= room)
            return text;
        for (std::size_t length = text.size(); --length > 0;)
            if (Measure(text.substr(0, length) + "...", size, weight).width <= room)
                return text.substr(0, length) + "...";
        return "";
    }

    const GraphFacts& f;

private:
    CDC dc;
    std::map<std::tuple<int, int, int>, CFont> fonts; ///< by height, weight and angle
    testkit::MetafileState state;
    std::vector<Record> records;
    std::vector<Record> over;
};

} // namespace oracle

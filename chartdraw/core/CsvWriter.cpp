// SPDX-License-Identifier: MIT
// CSV: merging columns by x, texts of numbers and times, quoting.
#include "chartdraw/core/CsvWriter.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "plot/Calendar.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

/// A text that goes to a sink in large pieces.
class TextStream {
public:
    explicit TextStream(const CsvSink& sink) : m_sink(sink) { m_text.reserve(kPiece + kLongestNumber); }

    void Add(char c) { m_text += c; }
    void Add(const std::string& text) { m_text += text; }
    void AddNumber(double value) {
        char digits[kLongestNumber];
        m_text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
    }
    /// Adds `value` with at least `width` digits.
    void AddDigits(std::int64_t value, int width) {
        char digits[kLongestNumber];
        for (int i = width; i-- > 0; value /= 10)
            digits[i] = static_cast<char>('0' + value % 10);
        m_text.append(digits, static_cast<std::size_t>(width));
    }
    void AddQuoted(const std::string& text) {
        if (text.find_first_of(",\"\r\n") == std::string::npos)
            return Add(text);
        Add('"');
        for (const char c : text) {
            if (c == '"')
                Add('"');
            Add(c);
        }
        Add('"');
    }
    /// Ends a line. False when the sink refuses the text.
    bool EndLine() {
        m_text += "\r\n";
        return m_text.size() < kPiece || Flush();
    }
    bool Flush() {
        const bool taken = m_sink(m_text.data(), m_text.size());
        m_text.clear();
        return taken;
    }

private:
    static constexpr std::size_t kPiece = 1 << 16;
    static constexpr std::size_t kLongestNumber = 32;

    const CsvSink& m_sink;
    std::string m_text;
};

/// Texts of the times of a table.
class TimeFormat {
public:
    explicit TimeFormat(double origin) : m_origin(std::floor(origin)), m_originFraction(origin - m_origin) {}

    /// Looks at a time that will be written.
    void Consider(double x) {
        if (m_decimals == kMostDecimals || !IsInCalendar(x))
            return;
        // Half the distance of neighbouring doubles, and what the computation of the fraction loses.
        const double size = std::abs(x);
        const double exactness = (std::nextafter(size, kInfinity) - size) / 2 + kLoss;
        while (m_decimals < kMostDecimals) {
            const double units = Fraction(x) * m_unitsPerSecond;
            if (std::abs(std::round(units) - units) <= exactness * m_unitsPerSecond)
                break;
            m_decimals += 3;
            m_unitsPerSecond *= 1000;
        }
    }

    void Write(double x, TextStream& stream) const {
        if (!IsInCalendar(x))
            return stream.AddNumber(m_origin + m_originFraction + x);
        auto seconds = static_cast<std::int64_t>(m_origin + std::floor(x));
        auto units = static_cast<std::int64_t>(std::round(Fraction(x) * m_unitsPerSecond));
        const auto unitsPerSecond = static_cast<std::int64_t>(m_unitsPerSecond);
        seconds += units / unitsPerSecond;
        units %= unitsPerSecond;
        const CalendarStamp stamp = StampOf(seconds);
        stream.AddDigits(stamp.year, 4);
        WritePart('-', stamp.month, stream);
        WritePart('-', stamp.day, stream);
        WritePart('T', stamp.hour, stream);
        WritePart(':', stamp.minute, stream);
        WritePart(':', stamp.second, stream);
        if (m_decimals > 0) {
            stream.Add('.');
            stream.AddDigits(units, m_decimals);
        }
        stream.Add('Z');
    }

private:
    static constexpr int kMostDecimals = 9;
    static constexpr double kLoss = 4e-16; // seconds
    static constexpr double kYear0 = -62167219200.0;
    static constexpr double kYear10000 = 253402300800.0;

    /// With a second to spare, because fractions can be rounded up.
    bool IsInCalendar(double x) const {
        const double seconds = m_origin + x;
        return seconds >= kYear0 && seconds < kYear10000 - 3;
    }
    /// Seconds behind floor(x) + m_origin, 0 to 2.
    double Fraction(double x) const { return x - std::floor(x) + m_originFraction; }
    static void WritePart(char separator, int value, TextStream& stream) {
        stream.Add(separator);
        stream.AddDigits(value, 2);
    }

    double m_origin; // a whole number of seconds
    double m_originFraction;
    int m_decimals = 0;
    double m_unitsPerSecond = 1; // 10 to the power of m_decimals
};

/// The points of a column, one after another.
class ColumnReader {
public:
    ColumnReader(const CsvColumn& column, const std::optional<ValueBounds>& view)
        : m_column(column), m_view(view) {
        Find();
    }

    bool IsAtEnd() const { return m_next == m_column.points->Size(); }
    double X() const { return m_x; }
    double Y() const { return m_y; }
    void Advance() {
        ++m_next;
        Find();
    }

private:
    /// Moves to the next point in view.
    void Find() {
        for (; !IsAtEnd(); ++m_next) {
            const ChartPoint point = (*m_column.points)[m_next];
            m_x = point.x + m_column.offset;
            m_y = point.y;
            if (!m_view || (m_x >= m_view->min && m_x <= m_view->max))
                return;
        }
    }

    const CsvColumn& m_column;
    const std::optional<ValueBounds>& m_view;
    int m_next = 0;
    double m_x = 0;
    double m_y = 0;
};

/// x of the next line: NaN if a column has it, otherwise the smallest one. Empty at the end of all columns.
std::optional<double> NextX(const std::vector<ColumnReader>& readers) {
    std::optional<double> least;
    for (const ColumnReader& reader : readers) {
        if (reader.IsAtEnd())
            continue;
        if (std::isnan(reader.X()))
            return reader.X();
        if (!least || reader.X() < *least)
            least = reader.X();
    }
    return least;
}

bool IsIn(const ColumnReader& reader, double x) {
    return !reader.IsAtEnd() && (reader.X() == x || (std::isnan(x) && std::isnan(reader.X())));
}

void WriteX(const CsvTable& table, const TimeFormat& times, double x, TextStream& stream) {
    if (std::isnan(x))
        return;
    if (table.isTime)
        times.Write(x, stream);
    else
        stream.AddNumber(x);
}

/// The values of all columns at `x`. Only one column has a value in a line of NaN.
void WriteValues(std::vector<ColumnReader>& readers, double x, TextStream& stream) {
    bool isTaken = false;
    for (ColumnReader& reader : readers) {
        stream.Add(',');
        if (!IsIn(reader, x) || (isTaken && std::isnan(x)))
            continue;
        if (!std::isnan(reader.Y()))
            stream.AddNumber(reader.Y());
        reader.Advance();
        isTaken = true;
    }
}

} // namespace

bool WriteCsv(const CsvTable& table, const CsvSink& sink) {
    TextStream stream(sink);
    stream.AddQuoted(table.xName);
    TimeFormat times(table.origin);
    std::vector<ColumnReader> readers;
    readers.reserve(table.columns.size());
    for (const CsvColumn& column : table.columns) {
        stream.Add(',');
        stream.AddQuoted(column.name);
        if (table.isTime)
            for (ColumnReader reader(column, table.view); !reader.IsAtEnd(); reader.Advance())
                times.Consider(reader.X());
        readers.emplace_back(column, table.view);
    }
    bool isTaken = stream.EndLine();
    for (auto x = NextX(readers); x && isTaken; x = NextX(readers)) {
        WriteX(table, times, *x, stream);
        WriteValues(readers, *x, stream);
        isTaken = stream.EndLine();
    }
    return isTaken && stream.Flush();
}

} // namespace kavlix

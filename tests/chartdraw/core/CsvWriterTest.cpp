// SPDX-License-Identifier: MIT
// Tables of random datasets, read back and compared with the points.
#include "chartdraw/core/CsvWriter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "plot/Calendar.h"
#include "tests/support/Numbers.h"

using namespace kavlix;

namespace {

using Line = std::vector<std::string>;

std::string Written(const CsvTable& table) {
    std::string text;
    EXPECT_TRUE(WriteCsv(table, [&](const char* pText, std::size_t length) {
        text.append(pText, length);
        return true;
    }));
    return text;
}

/// Reads a table as RFC 4180 describes it.
std::vector<Line> Parsed(const std::string& text) {
    std::vector<Line> lines(1, Line(1));
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"' && isQuoted && text[i + 1] == '"')
            lines.back().back() += text[i++];
        else if (c == '"')
            isQuoted = !isQuoted;
        else if (isQuoted || (c != ',' && c != '\r'))
            lines.back().back() += c;
        else if (c == ',')
            lines.back().emplace_back();
        else if (text[++i] == '\n')
            lines.emplace_back(1);
    }
    EXPECT_EQ(lines.back(), Line(1)) << "the last line ends";
    lines.pop_back();
    return lines;
}

double NumberOf(const std::string& field) {
    return field.empty() ? std::nan("") : std::strtod(field.c_str(), nullptr);
}

/// Seconds of a time such as 2026-11-22T14:05:00.250Z behind `origin`, whose fraction is 0.
double TimeOf(const std::string& field, double origin) {
    CalendarStamp stamp;
    char separators[6] = {};
    int length = 0;
    EXPECT_GE(std::sscanf(field.c_str(), "%4d%c%2d%c%2d%c%2d%c%2d%c%2d%n", &stamp.year, &separators[0],
                          &stamp.month, &separators[1], &stamp.day, &separators[2], &stamp.hour,
                          &separators[3], &stamp.minute, &separators[4], &stamp.second, &length),
              11);
    EXPECT_STREQ(separators, "--T::");
    EXPECT_EQ(field.back(), 'Z');
    const std::string fraction = "0" + field.substr(static_cast<std::size_t>(length),
                                                    field.size() - 1 - static_cast<std::size_t>(length));
    return static_cast<double>(static_cast<long double>(SecondsOf(stamp)) - origin +
                               std::strtold(fraction.c_str(), nullptr));
}

bool IsSame(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

TEST(CsvWriterTest, RandomDatasetsAreReadBack) {
    testkit::Numbers numbers(31);
    const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
    const std::string names[] = {"",
                                 "a",
                                 "a, b",
                                 "\"",
                                 "say \"x\"\r\nand\n",
                                 " \xC2\xB0"
                                 "C "};
    for (int round = 0; round < 300; ++round) {
        const bool isSorted = numbers.OneIn(2);
        std::vector<ChartSeries> series(static_cast<std::size_t>(numbers.Below(5)));
        CsvTable table;
        table.xName = names[numbers.Below(6)];
        if (numbers.OneIn(3))
            table.view = ValueBounds{3, 30};
        Line header{table.xName};
        std::vector<std::vector<ChartPoint>> expected;
        std::map<double, std::size_t> linesAt; // of sorted datasets
        for (ChartSeries& points : series) {
            double x = 0;
            std::map<double, std::size_t> countAt;
            table.columns.push_back({names[numbers.Below(6)], &points, numbers.OneIn(3) ? 0.5 : 0});
            header.push_back(table.columns.back().name);
            expected.emplace_back();
            for (int i = numbers.Below(40); i > 0; --i) {
                x = isSorted ? x + numbers.Below(3) / 2.0 : numbers.OneIn(9) ? nan : numbers.Below(80) / 2.0;
                const double y = numbers.OneIn(9) ? nan
                                 : numbers.OneIn(9)
                                     ? -inf
                                     : std::ldexp(numbers.Next() - 2e9, numbers.Below(80) - 40);
                points.Append(x, y);
                const double shown = x + table.columns.back().offset;
                if (table.view && !(shown >= 3 && shown <= 30))
                    continue;
                ++countAt[shown];
                if (!std::isnan(y))
                    expected.back().push_back({shown, y});
            }
            for (const auto& [place, count] : countAt)
                linesAt[place] = std::max(linesAt[place], count);
        }
        const std::vector<Line> lines = Parsed(Written(table));
        ASSERT_EQ(lines[0], header);
        std::vector<std::vector<ChartPoint>> found(series.size());
        std::map<double, std::size_t> foundAt;
        for (std::size_t i = 1; i < lines.size(); ++i) {
            ASSERT_EQ(lines[i].size(), header.size());
            const double x = NumberOf(lines[i][0]);
            ++foundAt[x];
            EXPECT_TRUE(!isSorted || i == 1 || NumberOf(lines[i - 1][0]) <= x);
            for (std::size_t column = 0; column < series.size(); ++column)
                if (!lines[i][column + 1].empty())
                    found[column].push_back({x, NumberOf(lines[i][column + 1])});
        }
        for (std::size_t column = 0; column < series.size(); ++column) {
            ASSERT_EQ(found[column].size(), expected[column].size());
            for (std::size_t i = 0; i < found[column].size(); ++i)
                EXPECT_TRUE(IsSame(found[column][i].x, expected[column][i].x) &&
                            found[column][i].y == expected[column][i].y);
        }
        EXPECT_TRUE(!isSorted || foundAt == linesAt) << "points with the same x share a line";
    }
}

TEST(CsvWriterTest, TimesAreExactAndHaveAsManyDecimalsAsTheyNeed) {
    const double year = 365.25 * 86400;
    const struct {
        double origin, scale, perSecond;
        std::size_t decimals;
    } cases[] = {{0, 1, 1, 0},          {0, 1, 1e3, 3},        {0, 1, 4, 3},
                 {0, 1, 1e6, 6},        {0, 1, 1e9, 9},        {1.7e9, 1e-9, 1, 0},
                 {1.7e9, 1e-9, 1e3, 3}, {1.7e9, 1e-9, 1e6, 6}, {1.7e9, 1e-9, 1e9, 9}};
    testkit::Numbers numbers(7);
    for (const auto& each : cases) {
        ChartSeries points;
        for (int i = 0; i < 1000; ++i)
            points.Append(std::round((numbers.Next() / 4294967296.0 * 8100 - 1970) * year * each.scale *
                                     each.perSecond) /
                              each.perSecond,
                          i);
        CsvTable table;
        table.isTime = true;
        table.origin = each.origin;
        table.columns.push_back({"y", &points});
        const std::vector<Line> lines = Parsed(Written(table));
        ASSERT_EQ(lines.size(), 1001u);
        for (std::size_t i = 1; i < lines.size(); ++i) {
            const double x = points[static_cast<int>(NumberOf(lines[i][1]))].x;
            // The last bit of strtold differs between run-time libraries.
            ASSERT_NEAR(TimeOf(lines[i][0], each.origin), x, std::abs(x) * 2.3e-16) << lines[i][0];
            ASSERT_EQ(lines[i][0].size(), 20 + each.decimals + (each.decimals > 0)) << lines[i][0];
        }
    }
    ChartSeries points;
    for (const double x : {1795356300.25, 1e300})
        points.Append(x, 1);
    CsvTable table;
    table.isTime = true;
    table.xName = "t";
    table.columns.push_back({"y", &points});
    EXPECT_EQ(Written(table), "t,y\r\n2026-11-22T14:05:00.250Z,1\r\n1e+300,1\r\n");
}

TEST(CsvWriterTest, EndsWhenTheSinkRefuses) {
    ChartSeries points;
    for (int i = 0; i < 20000; ++i)
        points.Append(i, i);
    CsvTable table;
    table.columns.push_back({"y", &points});
    int pieces = 0;
    const auto refusing = [&](int piece) {
        pieces = 0;
        return !WriteCsv(table, [&](const char*, std::size_t) { return ++pieces != piece; });
    };
    EXPECT_FALSE(refusing(0));
    const int all = pieces;
    EXPECT_GT(all, 2);
    for (int piece = 1; piece <= all; ++piece)
        EXPECT_TRUE(refusing(piece) && pieces == piece);
}

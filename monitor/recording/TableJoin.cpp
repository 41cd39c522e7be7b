// SPDX-License-Identifier: MIT
// Joins tables on time and makes the names of their series distinct.

#include "monitor/recording/TableJoin.h"

#include <algorithm>
#include <set>
#include <utility>

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

/// The series' name. If another file has a series of the same name: the name with the file's stem (FileStem)
/// in front, or the stem alone for a file with one series.
std::string NameInFile(const std::vector<Table>& tables, std::size_t file, const std::string& name,
                       const std::string& path) {
    for (std::size_t other = 0; other < tables.size(); ++other) {
        const std::vector<std::string>& names = tables[other].names;
        if (other != file && std::find(names.begin(), names.end(), name) != names.end()) {
            const std::string stem = ToValidUtf8(FileStem(path));
            return tables[file].names.size() == 1 ? stem : stem + ": " + name;
        }
    }
    return name;
}

std::string MakeDistinct(std::set<std::string>& taken, const std::string& name) {
    std::string distinct = name;
    for (int number = 2; !taken.insert(distinct).second; ++number)
        distinct = name + " (" + std::to_string(number) + ")";
    return distinct;
}

void NameSeries(const std::vector<Table>& tables, Recording& recording) {
    std::set<std::string> taken;
    for (std::size_t file = 0; file < tables.size(); ++file) {
        for (std::size_t i = 0; i < tables[file].names.size(); ++i) {
            Series series;
            series.file = file;
            series.name = MakeDistinct(
                taken, NameInFile(tables, file, tables[file].names[i], recording.files[file].path));
            recording.files[file].series[i].name = series.name;
            recording.series.push_back(std::move(series));
        }
    }
}

/// Walks through several tables in the order of time. Every step takes the rows of the earliest time that is
/// left, at most one from each table, so that equal times within a table stay separate rows.
class Merge {
public:
    explicit Merge(const std::vector<Table>& tables)
        : m_tables(tables), m_next(tables.size(), 0), m_taken(tables.size()) {}

    /// Takes the next rows and returns their time in `time`; false when no row is left.
    bool Step(Time& time) {
        bool any = false;
        for (std::size_t file = 0; file < m_tables.size(); ++file) {
            if (HasRow(file) && (!any || Head(file) < time)) {
                time = Head(file);
                any = true;
            }
        }
        for (std::size_t file = 0; any && file < m_tables.size(); ++file) {
            m_taken[file] = HasRow(file) && Head(file) == time;
            m_next[file] += m_taken[file] ? 1 : 0;
        }
        return any;
    }

    /// Whether the current step took a row from the file.
    bool HasTaken(std::size_t file) const { return m_taken[file]; }

    /// The value in the current step's row; kNoValue when the step took no row from the file.
    double Value(std::size_t file, std::size_t column) const {
        return m_taken[file] ? m_tables[file].columns[column][m_next[file] - 1] : kNoValue;
    }

private:
    bool HasRow(std::size_t file) const { return m_next[file] < m_tables[file].times.size(); }
    Time Head(std::size_t file) const { return m_tables[file].times[m_next[file]]; }

    const std::vector<Table>& m_tables;
    std::vector<std::size_t> m_next;
    std::vector<bool> m_taken;
};

void MergeRows(const std::vector<Table>& tables, Recording& recording) {
    std::size_t longest = 0;
    for (const Table& table : tables)
        longest = std::max(longest, table.times.size());
    recording.times.reserve(longest);
    recording.rowsOf.resize(tables.size());
    for (Series& series : recording.series)
        series.values.reserve(longest);
    Merge merge(tables);
    for (Time time = 0; merge.Step(time);) {
        recording.times.push_back(time);
        std::size_t target = 0;
        for (std::size_t file = 0; file < tables.size(); ++file) {
            recording.rowsOf[file].push_back(merge.HasTaken(file));
            for (std::size_t column = 0; column < tables[file].columns.size(); ++column)
                recording.series[target++].values.push_back(merge.Value(file, column));
        }
    }
}

} // namespace

std::string FileStem(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const std::size_t point = name.rfind('.');
    const std::string stem = point == std::string::npos || point == 0 ? name : name.substr(0, point);
    return stem.empty() ? "file" : stem;
}

void JoinTables(std::vector<Table> tables, Recording& recording) {
    NameSeries(tables, recording);
    const auto hasRows = [](const Table& table) { return !table.times.empty(); };
    if (std::count_if(tables.begin(), tables.end(), hasRows) != 1) {
        MergeRows(tables, recording);
        return;
    }
    Table& only = *std::find_if(tables.begin(), tables.end(), hasRows);
    recording.times = std::move(only.times);
    for (std::size_t i = 0; i < only.columns.size(); ++i)
        recording.series[i].values = std::move(only.columns[i]);
}

} // namespace kavlix::recording

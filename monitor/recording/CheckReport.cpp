// SPDX-License-Identifier: MIT
// Puts the reports together from the files' summaries.

#include "monitor/recording/CheckReport.h"

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

std::string Counted(std::uint64_t count, const char* singular, const char* plural) {
    return FormatCount(count) + ' ' + (count == 1 ? singular : plural);
}

std::string Rows(std::uint64_t count) {
    return Counted(count, "row", "rows");
}

std::string SeriesLine(const FileSummary::SeriesSummary& series) {
    std::string line =
        "  series " + QuoteForMessage(series.name, 100) + ": " + Counted(series.values, "sample", "samples");
    if (series.values > 0)
        line += ", " + FormatNumber(series.min) + " to " + FormatNumber(series.max);
    if (series.gaps == 0)
        return line + ", no gaps\n";
    return line + ", " + Counted(series.gaps, "gap", "gaps") + " (" +
           Counted(series.absent, "value", "values") + " absent)\n";
}

std::string TimeLines(const FileSummary& file) {
    std::string text =
        "  time: " + FormatExact(file.first) + " to " + FormatExact(file.last) + (file.zoned ? " (UTC)" : "");
    if (file.interval > 0)
        text += ", every " + FormatDuration(file.interval);
    text += "\n  time gaps: ";
    if (file.timeGaps == 0)
        return text + "none\n";
    return text + FormatCount(file.timeGaps) + ", the longest " + FormatDuration(file.longestGap) + '\n';
}

std::string MessageLines(const MessageLog& log, const char* indent) {
    std::string text;
    for (const std::string& line : log.Lines())
        text += indent + line + '\n';
    return text;
}

std::string FileReport(const FileSummary& file) {
    std::string text = file.path + '\n';
    if (file.leftOut) {
        text += "  nothing of it is kept\n";
    } else {
        text += "  rows: " + FormatCount(file.rows) + '\n';
        for (const FileSummary::SeriesSummary& series : file.series)
            text += SeriesLine(series);
        text += TimeLines(file);
    }
    text += "  rows left out: " + FormatCount(file.rowsLeftOut) + '\n';
    if (file.log.Total() > 0)
        text += "  wrong:\n" + MessageLines(file.log, "    ");
    return text;
}

std::uint64_t MessageCount(const Recording& recording) {
    std::uint64_t count = 0;
    for (const FileSummary& file : recording.files)
        count += file.log.Total();
    return count;
}

std::string Total(const Recording& recording) {
    std::string text = "in all: " + Counted(recording.times.size(), "time stamp", "time stamps") + ", " +
                       FormatCount(recording.series.size()) + " series";
    if (!recording.times.empty())
        text += ", " + FormatExact(recording.times.front()) + " to " + FormatExact(recording.times.back());
    return text + "; rows left out: " + FormatCount(recording.RowsLeftOut()) + '\n';
}

} // namespace

std::string CheckReport(const Recording& recording) {
    std::string text;
    for (const FileSummary& file : recording.files)
        text += FileReport(file);
    text += Total(recording);
    if (recording.Empty())
        text += "nothing can be shown\n";
    return text;
}

std::string MessageReport(const Recording& recording) {
    if (MessageCount(recording) == 0 && recording.RowsLeftOut() == 0)
        return {};
    std::string text;
    for (const FileSummary& file : recording.files)
        text += MessageLines(file.log, "");
    text += "rows left out: " + FormatCount(recording.RowsLeftOut()) + '\n';
    if (recording.Empty())
        text += "nothing can be shown\n";
    return text;
}

std::string StatusLine(const Recording& recording) {
    std::string text = Rows(recording.times.size()) + ", " + FormatCount(recording.series.size()) + " series";
    const std::uint64_t leftOut = recording.RowsLeftOut();
    const std::uint64_t messages = MessageCount(recording);
    if (recording.removed > 0)
        text += "; " + Rows(recording.removed) + " removed";
    if (leftOut > 0)
        text += "; " + Rows(leftOut) + " left out";
    if (messages > 0)
        text += "; " + Counted(messages, "message", "messages");
    return recording.cancelled ? text + "; cancelled" : text;
}

} // namespace kavlix::recording

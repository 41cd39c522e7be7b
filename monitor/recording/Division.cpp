#include "monitor/recording/Division.h"

#include "monitor/recording/NearestPoint.h"

#include <algorithm>
#include <cmath>

namespace kavlix::recording {

namespace {

/// A value of a joined series is looked for in so many rows on either side.
constexpr std::size_t kBesideRows = 1000;
constexpr std::size_t kLastRows = 100;

std::string Listed(const std::vector<std::size_t>& indices, const std::vector<std::string>& names,
                   const char* reason) {
    std::string text;
    for (const std::size_t index : indices)
        text += (text.empty() ? "" : ", ") + names[index];
    return text.empty() ? text : text + " (" + reason + ")";
}

} // namespace

Division Divide(const std::vector<double>& values) {
    Division division;
    double highest = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!std::isfinite(values[i]))
            division.missing.push_back(i);
        else if (values[i] < 0)
            division.negative.push_back(i);
        else
            division.parts.push_back({i, values[i], 0});
        if (std::isfinite(values[i]))
            highest = std::max(highest, values[i]);
    }
    if (highest == 0)
        return division;
    // In units of the highest value, since the sum itself may be beyond the numbers.
    double sum = 0;
    for (const Division::Part& part : division.parts)
        sum += part.value / highest;
    for (Division::Part& part : division.parts) {
        part.share = part.value / highest / sum;
        division.total += part.value;
    }
    return division;
}

std::string LeftOutText(const Division& division, const std::vector<std::string>& names) {
    const std::string negative = Listed(division.negative, names, "negative");
    const std::string missing = Listed(division.missing, names, "no value");
    if (negative.empty() && missing.empty())
        return {};
    return "Left out: " + negative + (negative.empty() || missing.empty() ? "" : ", ") + missing;
}

std::vector<double> ValuesAt(const Recording& recording, std::size_t row) {
    std::vector<double> values;
    for (const Series& series : recording.series) {
        std::size_t taken = row;
        if (recording.files.size() > 1 && series.file < recording.files.size()) {
            const auto beside = NearestValue(series.values.data(), series.values.size(), row, kBesideRows);
            if (beside && std::abs(recording.times[*beside] - recording.times[row]) <
                              recording.files[series.file].interval)
                taken = *beside;
        }
        values.push_back(series.values[taken]);
    }
    return values;
}

std::size_t LastRow(const Recording& recording) {
    const std::size_t count = recording.times.size();
    std::size_t best = count == 0 ? 0 : count - 1;
    std::size_t most = 0;
    for (std::size_t i = 0; i < kLastRows && i < count && most < recording.series.size(); ++i) {
        const std::vector<double> values = ValuesAt(recording, count - 1 - i);
        const auto known = static_cast<std::size_t>(
            std::count_if(values.begin(), values.end(), [](double value) { return std::isfinite(value); }));
        if (known > most) {
            most = known;
            best = count - 1 - i;
        }
        if (recording.files.size() < 2)
            break;
    }
    return best;
}

} // namespace kavlix::recording

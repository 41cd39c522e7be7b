// SPDX-License-Identifier: MIT
// Adding and removing live readings, and the history that is made of them.

#include "monitor/LiveReadings.h"

#include <windows.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kavlix::monitor {
namespace {

using recording::MachineRates;

// One entry for each series.
constexpr std::optional<double> MachineRates::*kReadings[] = {
    &MachineRates::processorPercent, &MachineRates::memoryPercent, &MachineRates::bytesInPerSecond,
    &MachineRates::bytesOutPerSecond};
constexpr const char* kNames[] = {"CPU", "Memory", "Network in", "Network out"};
constexpr bool kIsRate[] = {false, false, true, true};

std::string PercentText(double value) {
    if (std::isnan(value))
        return "not available";
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", value);
    return text;
}

std::string RateText(double value) {
    return std::isnan(value) ? "not available" : recording::FormatRate(value);
}

} // namespace

LiveReadings::LiveReadings() : m_unit(recording::ChooseRateUnit(0)) {
}

recording::ValueSpan LiveReadings::AxisSpan() {
    recording::ValueSpan span;
    span.Take(0);
    span.Take(100);
    return span;
}

LiveReadings::Change LiveReadings::Add(recording::Time now, const MachineRates& rates) {
    // The times ascend even when the machine's clock was set back.
    if (!m_times.empty() && now <= m_times.back())
        now = m_times.back() + 1;
    m_times.push_back(now);
    Values values{};
    for (std::size_t i = 0; i < kSeries; ++i) {
        const std::optional<double>& reading = rates.*kReadings[i];
        values[i] = reading.value_or(recording::kNoValue);
        m_had[i] = m_had[i] || reading.has_value();
    }
    m_values.push_back(values);
    return Trim(m_times.size() - std::min(m_times.size(), m_most));
}

LiveReadings::Change LiveReadings::RemoveHead(std::size_t count) {
    return Trim(m_times.empty() ? 0 : std::min(count, m_times.size() - 1));
}

LiveReadings::Change LiveReadings::KeepAtMost(std::size_t count) {
    m_most = std::max<std::size_t>(count, 1);
    return Trim(m_times.size() - std::min(m_times.size(), m_most));
}

/// Removes the `removed` oldest readings, and chooses the history and the unit of its rates anew.
LiveReadings::Change LiveReadings::Trim(std::size_t removed) {
    m_times.erase(m_times.begin(), m_times.begin() + static_cast<std::ptrdiff_t>(removed));
    m_values.erase(m_values.begin(), m_values.begin() + static_cast<std::ptrdiff_t>(removed));
    m_first += removed;
    Change change;
    const std::uint64_t historyFirst = std::max(m_historyFirst, End() - std::min(m_times.size(), kHistory));
    change.removed = static_cast<std::size_t>(historyFirst - m_historyFirst);
    m_historyFirst = historyFirst;
    double highest = 0;
    for (std::uint64_t reading = m_historyFirst; reading < End(); ++reading) {
        for (std::size_t i = 0; i < kSeries; ++i)
            if (IsRate(i) && ValueOf(reading, i) > highest)
                highest = ValueOf(reading, i);
    }
    const recording::RateUnit unit = recording::ChooseRateUnit(highest);
    change.unitChanged = !(unit == m_unit);
    m_unit = unit;
    m_recording.reset();
    return change;
}

std::shared_ptr<const recording::Recording> LiveReadings::History() const {
    if (!m_recording)
        m_recording = MakeHistory();
    return m_recording;
}

std::shared_ptr<const recording::Recording> LiveReadings::MakeHistory() const {
    auto rebuilt = std::make_shared<recording::Recording>();
    rebuilt->times.assign(m_times.begin() + static_cast<std::ptrdiff_t>(Index(m_historyFirst)),
                          m_times.end());
    const std::vector<std::string> names = SeriesNames();
    for (std::size_t i = 0; i < kSeries; ++i) {
        recording::Series series;
        series.name = names[i];
        for (std::uint64_t reading = m_historyFirst; reading < End(); ++reading)
            series.values.push_back(ValueOf(reading, i) / (IsRate(i) ? m_unit.bytesPerSecond : 1));
        rebuilt->series.push_back(std::move(series));
    }
    return rebuilt;
}

double LiveReadings::ValueOf(std::uint64_t reading, std::size_t series) const {
    return m_values[Index(reading)][series];
}

const char* LiveReadings::NameOf(std::size_t series) {
    return kNames[series];
}

bool LiveReadings::IsRate(std::size_t series) {
    return kIsRate[series];
}

std::vector<std::string> LiveReadings::SeriesNames() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kSeries; ++i) {
        const bool had = m_times.empty() || m_had[i];
        const std::string unit = kIsRate[i] ? m_unit.text : std::string("%");
        names.push_back(std::string(kNames[i]) + (had ? ", " + unit : std::string(" (not available)")));
    }
    return names;
}

std::string LiveReadings::LatestText() const {
    if (m_values.empty())
        return "Waiting for the first reading";
    return TextOf({m_values.back().begin(), m_values.back().end()});
}

std::string LiveReadings::TextOf(const std::vector<double>& values) {
    return "CPU " + PercentText(values[0]) + "   Memory " + PercentText(values[1]) + "   Network in " +
           RateText(values[2]) + ", out " + RateText(values[3]);
}

std::string LiveReadings::AxisText() const {
    return "% and " + m_unit.text;
}

recording::Time LocalTimeNow() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    recording::CivilTime civil;
    civil.year = now.wYear;
    civil.month = now.wMonth;
    civil.day = now.wDay;
    civil.hour = now.wHour;
    civil.minute = now.wMinute;
    civil.second = now.wSecond;
    return recording::FromCivil(civil);
}

} // namespace kavlix::monitor

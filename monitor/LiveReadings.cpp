#include "monitor/LiveReadings.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <limits>

namespace kavlix::monitor {

namespace {

using Reading = std::optional<double> MachineRates::*;

constexpr Reading kReadings[] = {&MachineRates::processorPercent, &MachineRates::memoryPercent,
                                 &MachineRates::bytesInPerSecond, &MachineRates::bytesOutPerSecond};
constexpr const char* kNames[] = {"CPU", "Memory", "Network in", "Network out"};
constexpr bool kIsRate[] = {false, false, true, true};

std::string PercentText(const std::optional<double>& value) {
    if (!value)
        return "not available";
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", *value);
    return text;
}

std::string RateText(const std::optional<double>& value) {
    return value ? FormatRate(*value) : "not available";
}

} // namespace

LiveReadings::LiveReadings() : m_unit(ChooseRateUnit(0)) {
    Rebuild();
}

recording::ValueSpan LiveReadings::AxisSpan() {
    recording::ValueSpan span;
    span.Take(0);
    span.Take(100);
    return span;
}

LiveReadings::Change LiveReadings::Add(recording::Time now, const MachineRates& rates) {
    // A clock that was set back would put the new reading before older ones.
    if (!m_times.empty() && now <= m_times.back())
        now = m_times.back() + 1;
    m_times.push_back(now);
    m_rates.push_back(rates);
    return Trim(m_times.size() - std::min(m_times.size(), kHistory));
}

LiveReadings::Change LiveReadings::RemoveHead(std::size_t count) {
    return Trim(m_times.empty() ? 0 : std::min(count, m_times.size() - 1));
}

LiveReadings::Change LiveReadings::Trim(std::size_t removed) {
    Change change;
    change.removed = removed;
    m_times.erase(m_times.begin(), m_times.begin() + static_cast<std::ptrdiff_t>(removed));
    m_rates.erase(m_rates.begin(), m_rates.begin() + static_cast<std::ptrdiff_t>(removed));
    double highest = 0;
    for (const MachineRates& reading : m_rates)
        highest =
            std::max({highest, reading.bytesInPerSecond.value_or(0), reading.bytesOutPerSecond.value_or(0)});
    const RateUnit unit = ChooseRateUnit(highest);
    change.unitChanged = !(unit == m_unit);
    m_unit = unit;
    Rebuild();
    return change;
}

void LiveReadings::Rebuild() {
    auto rebuilt = std::make_shared<recording::Recording>();
    rebuilt->times = m_times;
    const std::vector<std::string> names = SeriesNames();
    for (std::size_t i = 0; i < std::size(kReadings); ++i) {
        recording::Series series;
        series.name = names[i];
        for (const MachineRates& rates : m_rates) {
            const std::optional<double>& reading = rates.*kReadings[i];
            series.values.push_back(reading ? *reading / (kIsRate[i] ? m_unit.bytesPerSecond : 1)
                                            : std::numeric_limits<double>::quiet_NaN());
        }
        rebuilt->series.push_back(std::move(series));
    }
    m_recording = std::move(rebuilt);
}

std::vector<std::string> LiveReadings::SeriesNames() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::size(kReadings); ++i) {
        const bool had =
            m_rates.empty() || std::any_of(m_rates.begin(), m_rates.end(), [i](const MachineRates& rates) {
                return (rates.*kReadings[i]).has_value();
            });
        const std::string unit = kIsRate[i] ? m_unit.text : std::string("%");
        names.push_back(std::string(kNames[i]) + (had ? ", " + unit : std::string(" (not available)")));
    }
    return names;
}

std::string LiveReadings::LatestText() const {
    if (m_rates.empty())
        return "Waiting for the first reading";
    const MachineRates& latest = m_rates.back();
    return "CPU " + PercentText(latest.processorPercent) + "   Memory " + PercentText(latest.memoryPercent) +
           "   Network in " + RateText(latest.bytesInPerSecond) + ", out " +
           RateText(latest.bytesOutPerSecond);
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

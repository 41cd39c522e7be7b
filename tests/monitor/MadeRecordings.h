// SPDX-License-Identifier: MIT
// Recordings made in memory for tests of the graph and the settings dialog.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "monitor/MonitorGraph.h"

namespace kavlix::test {

/// A recording of these series, with one sample a minute.
inline monitor::GraphSource MakeSource(std::size_t samples, const std::vector<std::string>& names,
                                       double (*value)(std::size_t sample, std::size_t series)) {
    auto recording = std::make_shared<recording::Recording>();
    for (std::size_t i = 0; i < samples; ++i)
        recording->times.push_back(static_cast<recording::Time>(i) * recording::kMicrosPerMinute);
    for (std::size_t s = 0; s < names.size(); ++s) {
        recording->series.push_back({names[s], 0, {}});
        for (std::size_t i = 0; i < samples; ++i)
            recording->series[s].values.push_back(value(i, s));
    }
    monitor::GraphSource source;
    source.recording = std::move(recording);
    return source;
}

/// The settings that the recording begins with.
inline monitor::GraphSettings SettingsOf(const monitor::GraphSource& source,
                                         CGraphCtrl::GraphStyle style = CGraphCtrl::GraphStyleLine) {
    std::vector<std::string> names;
    for (const auto& series : source.recording->series)
        names.push_back(series.name);
    return monitor::DefaultSettings("Title", names, source.recording->times.size(), style);
}

} // namespace kavlix::test

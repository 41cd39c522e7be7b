// SPDX-License-Identifier: MIT
// Writes the time, names and values of a sample.

#include "monitor/recording/SampleText.h"

#include <cmath>
#include <cstdio>
#include <utility>

#include "monitor/recording/NumberText.h"
#include "monitor/recording/TextCut.h"

namespace kavlix::recording {
namespace {

constexpr std::size_t kNameBytes[] = {32, 10, 0}; // longest name in each form, in bytes; 0: no names
constexpr std::size_t kDateBytes = 11;            // `YYYY-MM-DD` and a blank

std::string ValueText(double value, ValueDigits digits) {
    if (digits == ValueDigits::AsRead)
        return FormatNumber(value);
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

/// The text before a value: the name, cut to `limit` bytes so that the value stays visible.
std::string NameText(const std::string& name, std::size_t limit) {
    if (limit == 0)
        return {};
    return CutToFit(name, [limit](const std::string& tried) { return tried.size() <= limit; }) + ": ";
}

std::string OwnTime(Time own, Time asked) {
    const std::string text = FormatExact(own);
    return " (" + (FormatDate(own) == FormatDate(asked) ? text.substr(kDateBytes) : text) + ")";
}

} // namespace

std::vector<std::string> SampleTexts(Time time, const std::vector<NamedValue>& values, ValueDigits digits) {
    std::vector<std::string> texts;
    for (const std::size_t limit : kNameBytes) {
        std::string text = FormatExact(time);
        for (const NamedValue& one : values) {
            if (std::isnan(one.value))
                continue;
            const bool bare = limit == 0;
            text += "   " + NameText(one.name, limit) +
                    ValueText(one.value, bare ? ValueDigits::Computed : digits);
            if (!bare && one.time && *one.time != time)
                text += OwnTime(*one.time, time);
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace kavlix::recording

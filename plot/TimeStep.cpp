// SPDX-License-Identifier: MIT
// The table of round time steps.
#include "plot/TimeStep.h"

namespace kavlix {

double TimeStep::ShortestSeconds() const {
    constexpr double kDay = 86400;
    const auto number = static_cast<double>(count);
    switch (unit) {
    case Unit::Nanosecond:
        return number * 1e-9;
    case Unit::Second:
        return number;
    case Unit::Day:
        return number * kDay;
    case Unit::Month:
        break;
    }
    return IsYears() ? number / 12 * 365 * kDay : count == 1 ? 28 * kDay : number * 30 * kDay;
}

bool TimeStep::IsMultipleOf(const TimeStep& finer) const {
    if (unit == finer.unit)
        return count % finer.count == 0;
    const bool isWeek = finer.unit == Unit::Day && finer.count != 1;
    return unit > finer.unit && !isWeek;
}

int TimeStep::FractionDigits() const {
    int digits = unit == Unit::Nanosecond ? 9 : 0;
    for (std::int64_t rest = count; digits > 0 && rest % 10 == 0; rest /= 10)
        --digits;
    return digits;
}

const std::vector<TimeStep>& RoundTimeSteps() {
    static const std::vector<TimeStep> steps = [] {
        using Unit = TimeStep::Unit;
        std::vector<TimeStep> all;
        for (std::int64_t power = 1; power < 1000000000; power *= 10)
            for (const int mantissa : {1, 2, 5})
                all.push_back({Unit::Nanosecond, mantissa * power});
        for (const int unit : {1, 60})
            for (const int count : {1, 5, 15, 30})
                all.push_back({Unit::Second, count * unit});
        for (const int hours : {1, 3, 6, 12})
            all.push_back({Unit::Second, hours * 3600});
        for (const int days : {1, 2, 7})
            all.push_back({Unit::Day, days});
        for (const int months : {1, 3})
            all.push_back({Unit::Month, months});
        for (const int power : {1, 10, 100, 1000})
            for (const int mantissa : {1, 2, 5})
                all.push_back({Unit::Month, std::int64_t{12} * mantissa * power});
        return all;
    }();
    return steps;
}

} // namespace kavlix

// SPDX-License-Identifier: MIT
// The ticks of a logarithmic axis.
#pragma once

#include <string>
#include <vector>

namespace kavlix {

/// Ticks of an axis on which equal distances are equal ratios. The finest that leaves room for the labels is taken
/// of: round steps as on a linear axis, in ranges with fewer than two ticks of the others; 1, 2 and 5 times every
/// power of ten; every power of ten; every second, third, fifth, tenth … one. Where the room is too small for two
/// of them, the first and the last power of ten have labels, closer together.
class LogScale {
public:
    LogScale() = default; ///< no ticks
    /// The range is `min` to `max`, 0 < `min` < `max`, both finite; without ticks otherwise. `length` is the
    /// distance of the two in pixels, `room` the least distance of the centres of two labels.
    LogScale(double min, double max, int length, int room);

    /// The values with labels, ascending.
    const std::vector<double>& Ticks() const { return m_ticks; }
    /// The multiples of the powers of ten between the ticks, as far as they stand kMinorTickRoom pixels apart;
    /// powers of ten where not every one has a label.
    const std::vector<double>& MinorTicks() const { return m_minorTicks; }
    /// The label of tick `i`: all with a power of ten ("1e-12") or none, whatever is shorter.
    std::string Label(int i) const;

    static constexpr int kMinorTickRoom = 3; ///< pixels

private:
    std::string PlainLabel(double value) const;

    std::vector<double> m_ticks;
    int m_decimals =
        -1; ///< of round steps as on a linear axis; otherwise -1, and every label has its own number
    std::vector<double> m_minorTicks;
};

} // namespace kavlix

// SPDX-License-Identifier: MIT
// Colours between two others.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// A colour between `first` and `second`: `percent` is the share of `second`, 0 to 100.
inline COLORREF MixColors(COLORREF first, COLORREF second, int percent) {
    const auto mix = [percent](int a, int b) { return (a * (100 - percent) + b * percent) / 100; };
    return RGB(mix(GetRValue(first), GetRValue(second)), mix(GetGValue(first), GetGValue(second)),
               mix(GetBValue(first), GetBValue(second)));
}

} // namespace kavlix

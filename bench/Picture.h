// SPDX-License-Identifier: MIT
// A memory picture of a control, and the measurement of whole repaints.
#pragma once

#include "bench/Common.h"

namespace bench {

/// A picture in memory. A control paints into it through WM_PRINTCLIENT.
class Picture {
public:
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    /// Lets the whole control paint itself, without the window system.
    void Take(CWnd& control);
    HDC Dc() const { return m_dc; }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

/// Adds the medians and minima of whole repaints of a control of kWidth x kHeight pixels to `row`: through
/// its window, and into memory. The members' names begin with `name`.
Row& AddPaints(Row& row, CWnd& control, const std::string& name = "");

} // namespace bench

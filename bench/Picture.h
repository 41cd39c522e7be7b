#pragma once

#include "bench/Common.h"

namespace bench {

/// A picture in memory that a control paints into by WM_PRINTCLIENT.
class Picture {
public:
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    /// The whole control paints: what its picture costs without the traffic with the window system.
    void Take(CWnd& control);
    HDC Dc() const { return m_dc; }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

/// Adds medians and minima of whole repaints of a control of kWidth x kHeight: through its window, and into
/// memory. `name` goes before the members' names.
Row& AddPaints(Row& row, CWnd& control, const std::string& name = "");

} // namespace bench

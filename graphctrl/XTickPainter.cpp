// SPDX-License-Identifier: MIT
// Paints one tick of the X axis and its label.
#include "graphctrl/XTickPainter.h"

#include "gdi/Guards.h"
#include "gdi/Text.h"

namespace kavlix {

void DrawXTick(CDC& dc, int x, const CRect& rectAxis, CPen& axisPen, DottedPen* gridPen, int plotTop) {
    if (gridPen != nullptr)
        Select(dc, axisPen);
    dc.MoveTo(x, rectAxis.bottom);
    dc.LineTo(x, rectAxis.top);
    if (gridPen != nullptr && !gridPen->Draw(CPoint(x, rectAxis.top), CPoint(x, plotTop))) {
        Select(dc, gridPen->Pen());
        dc.LineTo(x, plotTop);
    }
}

void DrawTwoLines(CDC& dc, int x, int y, const CString& upper, const CString& lower) {
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    DrawTextAt(dc, x + kUpperLineShift, y, upper);
    dc.SetTextAlign(TA_RIGHT);
    DrawTextAt(dc, x, y, lower);
}

void DrawXTickLabel(CDC& dc, int x, int y, const CString& up, const CString& down, int longest) {
    if (!down.IsEmpty()) {
        DrawTwoLines(dc, x, y, up, down);
    } else if (const int cut = LengthOfCharacters(up, up.GetLength(), longest); cut < up.GetLength()) {
        CString first = up.Left(cut);
        CString second = up.Mid(cut);
        first.TrimRight();
        second.TrimLeft();
        DrawTwoLines(dc, x, y, first, second);
    } else {
        dc.SetTextAlign(TA_RIGHT | TA_BASELINE);
        DrawTextAt(dc, x + kSingleLineShift, y, up);
    }
}

} // namespace kavlix

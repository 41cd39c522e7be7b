// SPDX-License-Identifier: MIT
// Printing: the picture of DrawGraph, laid out in twips between the margins and on the page.
#include <kavlix/Graph.h>

#include <afxext.h>

#include <algorithm>
#include <cstdint>

#include "gdi/Guards.h"
#include "graph/GraphCanvas.h"
#include "graph/core/PrintedBottom.h"
#include "plot/Numeric.h"

using namespace kavlix;

namespace {

constexpr int kTwipsPerPixel = 1440 / 96;

/// The lower edge of the page in twips. `dc` is in MM_TWIPS; `area` is the page in device units.
int PageBottom(CDC& dc, CRect area) {
    dc.DPtoLP(&area);
    return std::min(area.top, area.bottom);
}

} // namespace

void CGraph::PrintGraph(CDC* pDC, CPrintInfo* pInfo) {
    if (pDC == nullptr || pDC->GetSafeHdc() == nullptr)
        return;
    const SavedDcGuard saved(*pDC);
    CRect page(0, 0, pDC->GetDeviceCaps(HORZRES), pDC->GetDeviceCaps(VERTRES));
    if (pInfo != nullptr && pInfo->m_rectDraw.Width() != 0 && pInfo->m_rectDraw.Height() != 0) {
        page = pInfo->m_rectDraw;
        pDC->LPtoDP(&page);
    }
    pDC->SetMapMode(MM_TWIPS);
    pDC->SetWindowOrg(0, 0);

    printBottom = std::max(PrintedBottom(printTop, bottomMargin), PageBottom(*pDC, page));
    GraphFrame frame;
    frame.left = printLeft;
    frame.top = printTop;
    frame.width = ToCoordinate(std::int64_t{printRight} - printLeft);
    frame.height = ToCoordinate(std::int64_t{printTop} - printBottom);
    frame.pixel = kTwipsPerPixel;
    frame.up = true;
    if (frame.width <= 0 || frame.height <= 0)
        return;
    DrawPicture(*pDC, frame);
    xApexPoint = ToCoordinate(std::int64_t{printLeft} + xApexPoint);
    yApexPoint = ToCoordinate(std::int64_t{printTop} - yApexPoint);
}

// SPDX-License-Identifier: MIT
// CChartDraw: copies the picture to the clipboard and saves it to files.
#include <kavlix/ChartDraw.h>
#include <kavlix/PictureFile.h>

#include <afxdlgs.h>

#include <algorithm>
#include <vector>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/DibBlock.h"
#include "gdi/Guards.h"
#include "gdi/OutOfMemory.h"
#include "gdi/PictureClipboard.h"
#include "plot/RoundScale.h"

using namespace kavlix;

namespace {

/// Makes a palette of the colours that the system shows now. The palette holds at most 255 colours, not 256:
/// hosts rely on that.
void MakeSystemPalette(CDC& dc, CPalette& palette) {
    constexpr WORD kVersion = 0x300;
    constexpr UINT kEntriesAskedFor = 255;
    constexpr std::size_t kBlockBytes = 1032; // LOGPALETTE with 256 entries, and 4 bytes to spare
    std::vector<BYTE> block(kBlockBytes);
    auto& record = *reinterpret_cast<LOGPALETTE*>(block.data());
    const UINT count = ::GetSystemPaletteEntries(dc.GetSafeHdc(), 0, kEntriesAskedFor, record.palPalEntry);
    record.palVersion = kVersion;
    record.palNumEntries = static_cast<WORD>(std::min(count, kEntriesAskedFor));
    palette.CreatePalette(&record);
}

} // namespace

bool CChartDraw::PrepareExport() {
    if (m_hWnd == nullptr)
        return false;
    CRect client;
    GetClientRect(&client);
    if (m_Changed || m_rectChart.IsRectEmpty() || client.Size() != m_CalcSize)
        CalcDatas();
    return true;
}

bool CChartDraw::CopyToClipboard() {
    return UnlessRefused([&] {
        if (!PrepareExport())
            return false;
        CSize size = m_rectChart.Size();
        CClientDC(this).DPtoHIMETRIC(&size);
        const CRect frame(CPoint(0, 0), size);
        return CopyPicture(
            *this, &frame, [this](CDC& dc) { DrawChart(dc); });
    });
}

bool CChartDraw::CopyToFile() {
    return UnlessRefused([&] {
        CFileDialog dialog(FALSE, _T("BMP"), _T("Chart"),
                           OFN_LONGNAMES | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, _T("Bitmap |*.bmp|"));
        return dialog.DoModal() == IDOK && CopyToFile(dialog.GetPathName());
    });
}

bool CChartDraw::CopyToFile(CString strFileName) {
    return UnlessRefused([&] { return WriteBitmapFile(strFileName); });
}

bool CChartDraw::WriteBitmapFile(const CString& name) {
    if (!PrepareExport() || m_rectChart.IsRectEmpty())
        return false;
    CBitmap bitmap;
    CPalette palette;
    {
        CWindowDC windowDc(this);
        CDC memoryDc;
        if (!memoryDc.CreateCompatibleDC(&windowDc) ||
            !bitmap.CreateCompatibleBitmap(&windowDc, m_rectChart.Width(), m_rectChart.Height()))
            return false;
        SelectGuard selected(memoryDc, bitmap);
        DrawChart(memoryDc);
        if (memoryDc.GetDeviceCaps(RASTERCAPS) & RC_PALETTE)
            MakeSystemPalette(memoryDc, palette);
    }

    const DibBlock block(DDBToDIB(bitmap, BI_RGB, &palette));
    CFile file;
    if (block.Get() == nullptr || !file.Open(name, CFile::modeCreate | CFile::modeWrite))
        return false;
    SaveDIB(block.Get(), file); // the result is true even if SaveDIB writes nothing: hosts rely on that
    return true;
}

bool CChartDraw::SaveImage(CString strFileName) {
    return UnlessRefused([&] {
        return PrepareExport() && SavePicture(
                                      strFileName, m_rectChart.Size(), [this](CDC& dc) { DrawChart(dc); });
    });
}

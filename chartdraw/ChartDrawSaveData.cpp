// SPDX-License-Identifier: MIT
// CChartDraw: saves the points as a table. CsvWriter writes the text.
#include <kavlix/ChartDraw.h>

#include <afxdlgs.h>

#include <string>

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartLink.h"
#include "chartdraw/LoadedText.h"
#include "chartdraw/core/CsvWriter.h"
#include "gdi/FileReplacement.h"
#include "gdi/OutOfMemory.h"
#include "gdi/StringIds.h"
#include "gdi/Text.h"

using namespace kavlix;

namespace {

std::string ToUtf8(const CString& text) {
    const std::wstring wide = ToWide(text, text.GetLength());
    const int length = static_cast<int>(wide.size());
    std::string result(static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, wide.data(), length,
                                                                      nullptr, 0, nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, &result[0], static_cast<int>(result.size()),
                          nullptr, nullptr);
    return result;
}

} // namespace

CsvTable ChartDrawState::Table(bool visibleOnly) {
    const ChartAxisState& axis = *xAxis.m_State;
    CsvTable table;
    table.isTime = axis.kind == CChartAxis::Time;
    table.origin = axis.origin;
    table.xName = chart.m_XLabel.IsEmpty() ? "x" : ToUtf8(chart.m_XLabel);
    for (int i = 0; i < DatasetCount(); ++i) {
        const CChartDraw::Dataset& dataset = Dataset(i);
        if (!dataset.visible)
            continue;
        const std::string name = dataset.name.IsEmpty() ? "y" + std::to_string(i + 1) : ToUtf8(dataset.name);
        table.columns.push_back({name, &dataset.points, ToAxis(dataset, 0)});
    }
    if (!visibleOnly)
        return table;
    if (const auto range = ShownRange())
        table.view = ValueBounds{range->min, range->max};
    return table;
}

bool CChartDraw::SaveData() {
    ASSERT(m_State->IsOwnerThread());
    return UnlessRefused([&] {
        CFileDialog dialog(FALSE, _T("csv"), _T("Chart"),
                           OFN_LONGNAMES | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                           LoadedText(IDS_CHART_DATA_FILTER));
        if (dialog.DoModal() != IDOK)
            return false;
        const bool isSaved = SaveData(dialog.GetPathName(), TRUE);
        if (!isSaved)
            m_State->TellNotSaved(dialog.GetPathName());
        return isSaved;
    });
}

bool CChartDraw::SaveData(CString strFileName, BOOL bVisibleOnly) {
    ASSERT(m_State->IsOwnerThread());
    return UnlessRefused([&] {
        const CsvTable table = m_State->Table(bVisibleOnly != FALSE);
        FileReplacement file(strFileName);
        return WriteCsv(table,
                        [&](const char* pText, std::size_t length) { return file.Write(pText, length); }) &&
               file.PutInPlace();
    });
}

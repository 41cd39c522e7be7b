// SPDX-License-Identifier: MIT
// CChartDraw: the context menu and its commands.
#include <kavlix/ChartDraw.h>

#include <afxdlgs.h>

#include <iterator>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"
#include "chartdraw/LoadedText.h"
#include "gdi/OutOfMemory.h"
#include "gdi/StringIds.h"

using namespace kavlix;

namespace {

/// The extensions of the rows of IDS_CHART_PICTURE_FILTER.
constexpr LPCTSTR kPictureExtensions[] = {_T(".png"), _T(".bmp"), _T(".emf")};

void Append(CMenu& menu, UINT command, UINT textId, bool isEnabled = true) {
    menu.AppendMenu(MF_STRING | (isEnabled ? MF_ENABLED : MF_GRAYED), command, LoadedText(textId));
}

void FillMenu(CMenu& menu, const ChartInputState& input) {
    Append(menu, ID_EDIT_COPY, IDS_MENU_COPY);
    Append(menu, ID_CHART_SAVE_PICTURE, IDS_CHART_SAVE_PICTURE);
    Append(menu, ID_CHART_SAVE_DATA, IDS_CHART_SAVE_DATA);
    if (input.Has(CChartDraw::ViewMenuPrint))
        Append(menu, ID_FILE_PRINT, IDS_CHART_PRINT);
    menu.AppendMenu(MF_SEPARATOR);
    Append(menu, ID_CHART_FIT, IDS_CHART_FIT);
    Append(menu, ID_CHART_BACK, IDS_CHART_BACK, input.view.CanGoBack());
}

/// `name` with the extension of the dialog's row if it has none of the extensions that pictures have.
CString WithExtension(CString name, DWORD row) {
    for (const LPCTSTR extension : kPictureExtensions)
        if (name.Right(lstrlen(extension)).CompareNoCase(extension) == 0)
            return name;
    const bool isRow = row >= 1 && row <= std::size(kPictureExtensions);
    return name + kPictureExtensions[isRow ? row - 1 : 0];
}

} // namespace

void CChartDraw::OnContextMenu(CWnd*, CPoint point) {
    const HWND window = m_hWnd;
    if (!m_State->input->Has(ViewMenu)) {
        Default();
        return;
    }
    if (!EndDrag(*m_State, true))
        return;
    // For the keyboard's request Windows sends the position (-1, -1).
    CPoint client = m_rectChart.CenterPoint();
    if (point == CPoint(-1, -1)) {
        point = client;
        ClientToScreen(&point);
    } else {
        client = point;
        ScreenToClient(&client);
    }
    CMenu menu;
    if (!menu.CreatePopupMenu())
        return;
    FillMenu(menu, *m_State->input);
    NMCHARTDRAW record = {};
    record.hdr.code = CDN_MENU;
    record.hMenu = menu.m_hMenu;
    record.pt = client;
    bool isAlive = true;
    if (m_State->Notify(record, isAlive) != 0 || !isAlive)
        return;
    // The menu runs a message loop, in which the host may destroy the window or delete this chart.
    const UINT command = static_cast<UINT>(::TrackPopupMenu(menu.m_hMenu, TPM_RIGHTBUTTON | TPM_RETURNCMD,
                                                            point.x, point.y, 0, window, nullptr));
    if (command == 0 || !kavlix::IsAlive(window, this) || OnCommand(MAKEWPARAM(command, 0), 0) ||
        !kavlix::IsAlive(window, this))
        return;
    // The message map has no entry for these two: hosts route the same commands of their own menus through the chart.
    if (command == ID_EDIT_COPY)
        OnEditCopy();
    else if (command == ID_FILE_PRINT)
        OnFilePrint();
    else if (GetParent() != nullptr) // a command that the parent has added
        GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(command, 0), 0);
}

void ChartDrawState::TellNotSaved(const CString& path) {
    CString text;
    AfxFormatString1(text, IDS_CHART_NOT_SAVED, path);
    AfxMessageBox(text, MB_OK | MB_ICONEXCLAMATION);
}

void CChartDraw::OnEditCopy() {
    CopyToClipboard();
}

void CChartDraw::OnSavePicture() {
    WithinResources([&] {
        CFileDialog dialog(FALSE, nullptr, nullptr, OFN_LONGNAMES | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                           LoadedText(IDS_CHART_PICTURE_FILTER));
        if (dialog.DoModal() != IDOK)
            return;
        const CString path = WithExtension(dialog.GetPathName(), dialog.m_ofn.nFilterIndex);
        if (!SaveImage(path))
            m_State->TellNotSaved(path);
    });
}

void CChartDraw::OnSaveData() {
    SaveData();
}

void CChartDraw::OnFilePrint() {
    NMCHARTDRAW record = {};
    record.hdr.code = CDN_PRINT;
    bool isAlive = true;
    m_State->Notify(record, isAlive);
}

void CChartDraw::OnFit() {
    FitAll(
        *m_State, ViewCause::User, [this] { CalcDatas(); });
}

void CChartDraw::OnBack() {
    GoBack(
        *m_State, ViewCause::User, [this] { CalcDatas(); });
}

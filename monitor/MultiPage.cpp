// SPDX-License-Identifier: MIT
// The multi page's layout, copy and print.

#include "monitor/MultiPage.h"

#include <afxdlgs.h>
#include <afxres.h>

#include <algorithm>
#include <string>
#include <vector>

#include "monitor/PictureCopy.h"
#include "monitor/TextConversion.h"
#include "monitor/resource.h"

namespace kavlix::monitor {
namespace {

constexpr int kTwipsPerInch = 1440;

} // namespace

BEGIN_MESSAGE_MAP(CMultiPage, CMonitorPage)
    ON_WM_CREATE()

    ON_COMMAND(ID_EDIT_COPY, &CMultiPage::OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CMultiPage::OnUpdateWithGraph)
    ON_COMMAND(ID_FILE_PRINT, &CMultiPage::OnFilePrint)
    ON_UPDATE_COMMAND_UI(ID_FILE_PRINT, &CMultiPage::OnUpdateWithGraph)
END_MESSAGE_MAP()

int CMultiPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CMonitorPage::OnCreate(lpCreateStruct) == failed || !m_view.CreateChild(*this, IDC_MULTI_VIEW) ||
        !m_panel.CreateChild(*this, [this] { Rebuild(); }))
        return failed;
    CRect panel;
    m_panel.GetWindowRect(&panel);
    m_panelWidth = panel.Width();
    return 0;
}

void CMultiPage::Update() {
    auto recording = Content().Source().recording;
    if (recording == m_recording && Content().settings == m_settings)
        return;
    m_recording = std::move(recording);
    m_settings = Content().settings;
    std::vector<std::string> names;
    for (const SeriesSettings& series : m_settings.series)
        names.push_back(series.name);
    m_panel.OfferSeries(names);
    Rebuild();
}

void CMultiPage::Rebuild() {
    m_view.Show(m_recording.get(), m_settings, m_panel.Options());
}

void CMultiPage::ShowFilling(bool filling) {
    m_filling = filling;
    m_panel.ShowWindow(filling ? SW_HIDE : SW_SHOWNA);
    if (filling && m_panel.IsChild(GetFocus()))
        m_view.SetFocus();
    CRect client;
    GetClientRect(&client);
    LayOut(client.Size());
}

void CMultiPage::LayOut(CSize size) {
    const int panel = m_filling ? 0 : std::min<int>(m_panelWidth, size.cx);
    m_panel.MoveWindow(0, 0, panel, size.cy);
    m_view.MoveWindow(panel, 0, size.cx - panel, size.cy);
}

CWnd& CMultiPage::FocusWindow() {
    if (m_filling)
        return m_view;
    return *m_panel.GetDlgItem(IDC_MULTI_TYPE);
}

void CMultiPage::OnEditCopy() {
    Host().Say(CopyTextOf(CopyAsMetafile(
        m_view, [this](CDC& dc) { m_view.Draw(dc); })));
}

void CMultiPage::OnFilePrint() {
    CPrintDialog dialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_NOSELECTION, this);
    const bool chosen = dialog.DoModal() == IDOK;
    CDC printer;
    const bool ready = chosen && printer.Attach(dialog.GetPrinterDC());
    const bool printed = ready && PrintOn(printer);
    ::GlobalFree(dialog.m_pd.hDevMode);
    ::GlobalFree(dialog.m_pd.hDevNames);
    if (printed)
        Host().Say("Printed: the graph is with the printer");
    else if (chosen)
        AfxMessageBox(_T("The graph was not printed: the printer took no page."), MB_OK | MB_ICONEXCLAMATION);
}

bool CMultiPage::PrintOn(CDC& printer) {
    const auto twips = [&printer](int pixels, int pixelsPerInch) {
        return ::MulDiv(printer.GetDeviceCaps(pixels), kTwipsPerInch, printer.GetDeviceCaps(pixelsPerInch));
    };
    const CString title = ToText(m_settings.title);
    DOCINFO document{};
    document.cbSize = sizeof document;
    document.lpszDocName = title;
    if (printer.StartDoc(&document) <= 0)
        return false;
    if (printer.StartPage() <= 0) {
        printer.AbortDoc();
        return false;
    }
    m_view.Print(printer, CSize(twips(HORZRES, LOGPIXELSX), twips(VERTRES, LOGPIXELSY)));
    return printer.EndPage() > 0 && printer.EndDoc() > 0;
}

void CMultiPage::OnUpdateWithGraph(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_recording != nullptr);
}

} // namespace kavlix::monitor

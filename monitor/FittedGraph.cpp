#include "monitor/FittedGraph.h"

#include "monitor/recording/TextCut.h"

#include <algorithm>

namespace kavlix::monitor {

namespace {

// Logical units.
constexpr int kTickDistance = 500; // the control puts a tick of the value axis every so often
constexpr int kLegendGap = 450;    // right of the text of a legend row
constexpr int kMinLegendText = 600;
constexpr int kLegendShare = 3; // the legend takes at most one part in so many of the width

constexpr const char* kCaptionFace = "Arial";
constexpr int kCaptionSize = 90;   // tenths of a point
constexpr int kCaptionMargin = 10; // pixels beside the caption's text

} // namespace

template <class Control> bool CFittedGraph<Control>::CreateChild(CWnd& parent, UINT id) {
    ShowFilling(false);
    return this->Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), &parent,
                        id) != FALSE;
}

template <class Control> void CFittedGraph<Control>::ApplyLook(const GraphSettings& settings,
                                                               const std::vector<SeriesSettings>& series) {
    this->SetGraphStyle(settings.style);
    this->SetTitleStyle(settings.titleStyle);
    this->SetGrid(settings.gridX, settings.gridY);
    this->ShowLegend(settings.legend && settings.style != CGraphCtrl::GraphStyleTwoAxis);
    for (std::size_t i = 0; i < series.size() && i < CGraphCtrl::DatasetCount; ++i) {
        const int dataset = static_cast<int>(i);
        this->SetColor(dataset, series[i].color);
        this->SetLineSize(dataset, series[i].lineSize);
        this->SetMarkerType(dataset, series[i].marker);
        this->ShowDataset(dataset, series[i].visible);
    }

    constexpr COLORREF ink = RGB(70, 75, 85);
    this->SetTitleColor(ink);
    this->SetXLabelColor(ink);
    this->SetXTickLabelColor(ink);
    this->SetAxisColor(RGB(150, 155, 165));
    this->SetGridColor(RGB(205, 208, 214));
    this->SetCaptionColor(RGB(55, 71, 98));
    this->SetLegendColor(RGB(246, 247, 249));
    this->SetLegendTextColor(ink);
    this->SetCaptionFont(kCaptionSize, kCaptionFace);
    // In the two-axis style the control gives each value axis the colour of its series.
    if (settings.style != CGraphCtrl::GraphStyleTwoAxis) {
        this->SetYLabelColor(ink);
        // Without any series there is nothing the labels could be true of.
        this->SetYTickLabelColor(series.empty() ? this->m_BkColor : ink);
    }
}

template <class Control> typename CFittedGraph<Control>::Layout CFittedGraph<Control>::MeasureLayout() {
    // The control lays itself out while it paints. A paint into one pixel, without samples, tells the layout
    // before anything is seen.
    CClientDC client(this);
    CDC dc;
    CBitmap bitmap;
    if (!dc.CreateCompatibleDC(&client) || !bitmap.CreateBitmap(1, 1, 1, 1, nullptr))
        return {};
    CBitmap* old = dc.SelectObject(&bitmap);
    this->SetMapModeAnisotropic(dc);
    m_measuring = true;
    this->DrawGraph(dc);
    m_measuring = false;
    dc.SelectObject(old);
    return {this->m_rectPlot.Height() / kTickDistance, this->m_rectPlot.Size()};
}

template <class Control>
void CFittedGraph<Control>::DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) {
    if (!m_measuring)
        Control::DrawXAxis(dc, rectLabel, rectAxis, nTicks);
}

template <class Control> void CFittedGraph<Control>::DrawGraphData(CDC& dc) {
    if (!m_measuring)
        Control::DrawGraphData(dc);
}

template <class Control> int CFittedGraph<Control>::FitLegend(const std::vector<SeriesSettings>& series) {
    this->ResetLegend();
    CRect client;
    this->GetClientRect(&client);
    const int room = client.Width() * kPixel / kLegendShare;
    LONG width = kMinLegendText;
    for (std::size_t i = 0; i < series.size() && i < CGraphCtrl::DatasetCount; ++i) {
        const std::string text = FitText(series[i].name, room, kTickFontHeight, kRegular);
        this->SetLegend(static_cast<int>(i), text.c_str());
        width = std::max(width, TextSize(text, kTickFontHeight, kRegular).cx);
    }
    return static_cast<int>(width) + 2 * this->m_LegendMargin + this->m_LegendItemHeight + kLegendGap;
}

template <class Control> int CFittedGraph<Control>::TickLabelWidth(const recording::ValueScale& scale) {
    LONG width = 0;
    for (const std::string& label : recording::ValueLabels(scale))
        width = std::max(width, TextSize(label, kTickFontHeight, kRegular).cx);
    return static_cast<int>(width) + kTickLabelGap;
}

template <class Control> void CFittedGraph<Control>::FitCaption(const std::vector<std::string>& texts) {
    CClientDC dc(this);
    CFont font;
    if (!font.CreatePointFont(kCaptionSize, kCaptionFace, &dc)) {
        this->SetWindowText(texts.back().c_str());
        return;
    }
    CFont* const old = dc.SelectObject(&font);
    CRect client;
    this->GetClientRect(&client);
    // The text stands in the band's middle: the icon at its right end takes as much room on the left.
    const LONG icon = this->m_ShowIconMaximize ? this->m_rectIconMaximize.Width() / kPixel : 0;
    const LONG room = client.Width() - 2 * (kCaptionMargin + icon);
    const auto fits = [&](const std::string& text) { return dc.GetTextExtent(text.c_str()).cx <= room; };
    const auto found = std::find_if(texts.begin(), texts.end(), fits);
    const std::string caption = found != texts.end() ? *found : recording::CutToFit(texts.back(), fits);
    dc.SelectObject(old);
    this->SetWindowText(caption.c_str());
}

template <class Control>
CSize CFittedGraph<Control>::TextSize(const std::string& text, int height, int weight) {
    CClientDC dc(this);
    this->SetMapModeAnisotropic(dc);
    CFont font;
    if (!font.CreateFont(height, 0, 0, 0, weight, FALSE, FALSE, 0, ANSI_CHARSET, OUT_TT_PRECIS,
                         CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial"))
        return CSize(0, 0);
    CFont* old = dc.SelectObject(&font);
    const CSize size = dc.GetTextExtent(text.c_str());
    dc.SelectObject(old);
    return size;
}

template <class Control>
std::string CFittedGraph<Control>::FitText(const std::string& text, int room, int height, int weight) {
    if (height <= 0)
        return text;
    return recording::CutToFit(
        text, [&](const std::string& tried) { return TextSize(tried, height, weight).cx <= room; });
}

template <class Control> bool CFittedGraph<Control>::IsOnIcon(CPoint point) const {
    return this->m_TitleStyle == CGraphCtrl::TitleStyleCaption &&
           this->m_rectIconMaximize.PtInRect(CPoint(point.x * kPixel, point.y * kPixel));
}

template <class Control> void CFittedGraph<Control>::WatchPointer() {
    if (m_watchingLeave)
        return;
    TRACKMOUSEEVENT watch{};
    watch.cbSize = sizeof watch;
    watch.dwFlags = TME_LEAVE;
    watch.hwndTrack = this->m_hWnd;
    m_watchingLeave = ::TrackMouseEvent(&watch) != FALSE;
}

template <class Control> void CFittedGraph<Control>::PointerLeft() {
    m_watchingLeave = false;
    Tell(MGN_MOUSELEAVE);
}

template <class Control> void CFittedGraph<Control>::CopyAndTell() {
    // The control does not tell whether the clipboard was to be had. It was when this window owns it and what
    // is on it has changed: the number tells that where the system gives one.
    const DWORD before = ::GetClipboardSequenceNumber();
    const bool made = this->CopyToClipboard() != 0;
    const bool changed = before == 0 || ::GetClipboardSequenceNumber() != before;
    Tell(made && changed && ::GetClipboardOwner() == this->m_hWnd ? MGN_COPIED : MGN_NOTCOPIED);
}

template <class Control> void CFittedGraph<Control>::Tell(UINT code) {
    const HWND parent = ::GetParent(this->m_hWnd);
    if (parent == nullptr)
        return;
    NMHDR record{};
    record.hwndFrom = this->m_hWnd;
    record.idFrom = static_cast<UINT_PTR>(this->GetDlgCtrlID());
    record.code = code;
    ::SendMessage(parent, WM_NOTIFY, record.idFrom, reinterpret_cast<LPARAM>(&record));
}

template class CFittedGraph<CGraphCtrl>;
template class CFittedGraph<CScrollGraphCtrl>;

} // namespace kavlix::monitor

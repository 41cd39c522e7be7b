#include "tests/graphctrl/GraphTest.h"

#include <cstring>
#include <sstream>

namespace {

std::string Fields(const testkit::RecordingParent::Entry& entry) {
    NMGRAPHCTRL record;
    std::memcpy(&record, entry.record, sizeof record);
    std::ostringstream text;
    text << " flags " << record.nFlags << " at " << record.pt.x << "," << record.pt.y << " index "
         << record.nIndex << " count " << record.nCount;
    return text.str();
}

} // namespace

void GraphTest::SetUp() {
    ASSERT_TRUE(parent.CreateVisible(800, 640)) << "no display";
    parent.SetRecordSize(sizeof(NMGRAPHCTRL));
    ASSERT_TRUE(graph.Create("MFCGraphCtrl", "window text", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200),
                             &parent, kControlId));
    parent.SetDescription([sender = graph.m_hWnd](const testkit::RecordingParent::Entry& entry) {
        return (entry.from == sender ? "" : " of another window") + Fields(entry);
    });
    Settle();
    parent.Forget();
    graph.calls.clear();
}

void GraphTest::TearDown() {
    if (graph.m_hWnd != nullptr)
        graph.DestroyWindow();
    if (parent.m_hWnd != nullptr)
        parent.DestroyWindow();
    testkit::Pump();
}

void GraphTest::Resize(int width, int height) {
    graph.MoveWindow(0, 0, width, height, FALSE);
}

void GraphTest::Add(int dataset, std::initializer_list<double> values) {
    for (double value : values)
        ASSERT_TRUE(graph.AddData(dataset, value, nullptr));
}

void GraphTest::FixX(double min, double max) {
    graph.SetAutoXVisible(FALSE);
    graph.SetXVisibleMin(min);
    graph.SetXVisibleMax(max);
}

void GraphTest::HideTexts() {
    const COLORREF white = RGB(255, 255, 255);
    graph.SetTitleColor(white);
    graph.SetXLabelColor(white);
    graph.SetYLabelColor(white);
    graph.SetY2LabelColor(white);
    graph.SetXTickLabelColor(white);
    graph.SetYTickLabelColor(white);
    graph.SetY2TickLabelColor(white);
    graph.SetLegendTextColor(white);
    graph.SetLegendColor(white);
}

std::unique_ptr<testkit::MetafileRecorder> GraphTest::Record() {
    auto recorder = std::make_unique<testkit::MetafileRecorder>();
    PaintInto(recorder->Dc());
    recorder->Close();
    return recorder;
}

std::unique_ptr<testkit::DibSurface> GraphTest::Paint() {
    const CRect client = ClientRect();
    auto surface = std::make_unique<testkit::DibSurface>(client.Width(), client.Height());
    PaintInto(surface->Dc());
    return surface;
}

void GraphTest::PaintInto(HDC handle) {
    CDC dc;
    ASSERT_TRUE(dc.Attach(handle));
    graph.SetMapModeAnisotropic(dc);
    graph.DrawGraph(dc);
    dc.Detach();
}

void GraphTest::Settle() {
    graph.UpdateWindow();
    testkit::Pump();
    ::ValidateRect(graph.m_hWnd, nullptr);
}

CRect GraphTest::UpdateRect() {
    CRect rect(0, 0, 0, 0);
    ::GetUpdateRect(graph.m_hWnd, &rect, FALSE);
    return rect;
}

CRect GraphTest::ToDevice(CRect logical) const {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc, 15000, 15000, nullptr);
    ::SetViewportExtEx(dc, 500, 500, nullptr);
    ::LPtoDP(dc, reinterpret_cast<POINT*>(&logical), 2);
    ::DeleteDC(dc);
    return logical;
}

CRect GraphTest::ClientRect() const {
    CRect client;
    graph.GetClientRect(&client);
    return client;
}

std::string Text(const CRect& rect) {
    std::ostringstream text;
    text << rect.left << "," << rect.top << "," << rect.right << "," << rect.bottom;
    return text.str();
}

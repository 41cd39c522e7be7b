#include "tests/module/DialogTemplate.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/RecordingParent.h"

#include <afxwin.h>

#include <kavlix/Kavlix.h>

#include <gtest/gtest.h>

namespace {

constexpr int kGraphItem = 1001;
constexpr int kStaticItem = 1002;
constexpr int kNoItem = 4321;

/// Counts paints, to show that a bound item's messages reach the control.
class PaintedGraph : public CGraphCtrl {
public:
    int keys = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        keys += message == WM_GETDLGCODE;
        return CGraphCtrl::WindowProc(message, wParam, lParam);
    }
};

class GraphDialog : public CDialog {
public:
    explicit GraphDialog(int item) : m_item(item) {}

    PaintedGraph graph;
    int exchanges = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        ++exchanges;
        DDX_GraphControl(pDX, m_item, graph);
    }

private:
    int m_item;
};

DialogTemplate TwoItems() {
    DialogTemplate dialog(200, 120);
    dialog.AddItem("MFCGraphCtrl", kGraphItem, 5, 5, 190, 80);
    dialog.AddItem("STATIC", kStaticItem, 5, 90, 190, 20);
    return dialog;
}

} // namespace

TEST(GraphBindingTest, ItemBecomesTheControlOnce) {
    GraphDialog dialog(kGraphItem);
    const DialogTemplate resource = TwoItems();
    ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
    ASSERT_GE(dialog.exchanges, 1) << "the dialog's initialisation exchanges its data";
    const HWND item = ::GetDlgItem(dialog.m_hWnd, kGraphItem);
    EXPECT_EQ(dialog.graph.m_hWnd, item);
    EXPECT_EQ(CWnd::FromHandlePermanent(item), &dialog.graph);
    EXPECT_EQ(::SendMessage(item, WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS, DLGC_WANTARROWS);
    EXPECT_GT(dialog.graph.keys, 0);

    const auto procedure = ::GetWindowLongPtr(item, GWLP_WNDPROC);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.graph.m_hWnd, item);
    EXPECT_EQ(::GetWindowLongPtr(item, GWLP_WNDPROC), procedure) << "later exchanges change nothing";

    dialog.graph.AddData(0, 1, nullptr);
    dialog.graph.Redraw();
    dialog.graph.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(item, nullptr, FALSE));
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.graph.m_hWnd, nullptr) << "the item goes with its dialog, the object stays";
    EXPECT_EQ(dialog.graph.GetDatasetSize(0), 1);
}

TEST(GraphBindingTest, AnItemOfAnotherClassPaintsAsAGraphToo) {
    GraphDialog dialog(kStaticItem);
    dialog.graph.SetBkColor(RGB(1, 200, 3));
    dialog.graph.ShowLegend(FALSE);
    const DialogTemplate resource = TwoItems();
    ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
    testkit::Pump();
    dialog.graph.Redraw();
    dialog.graph.UpdateWindow();
    const HDC dc = ::GetDC(dialog.graph.m_hWnd);
    EXPECT_EQ(::GetPixel(dc, 1, 1), RGB(1, 200, 3));
    ::ReleaseDC(dialog.graph.m_hWnd, dc);
    dialog.DestroyWindow();
}

TEST(GraphBindingTest, AnItemThatCannotBeSubclassedThrows) {
    const DialogTemplate resource = TwoItems();
    CGraphCtrl nowhere, first, second; // with the first comes the window class that the template names
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
    CDataExchange exchange(&dialog, FALSE);

    EXPECT_THROW(
        try { DDX_GraphControl(&exchange, kNoItem, nowhere); } catch (CNotSupportedException* e) {
            e->Delete();
            throw 1;
        },
        int);
    EXPECT_EQ(nowhere.m_hWnd, nullptr);

    DDX_GraphControl(&exchange, kGraphItem, first);
    ASSERT_NE(first.m_hWnd, nullptr);
    bool refused = false;
    try {
        DDX_GraphControl(&exchange, kGraphItem, second);
    } catch (CNotSupportedException* e) {
        refused = true;
        e->Delete();
    }
    EXPECT_TRUE(refused) << "the item belongs to another object already";
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(first.m_hWnd), &first);
    dialog.DestroyWindow();
}

TEST(GraphBindingTest, TwentyDialogsLeakNothing) {
    const DialogTemplate resource = TwoItems();
    const auto open_and_close = [&resource] {
        GraphDialog dialog(kGraphItem);
        ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
        dialog.graph.UpdateWindow();
        dialog.DestroyWindow();
    };
    for (int i = 0; i < 2; ++i)
        open_and_close();
    const testkit::ObjectCounts before = testkit::CountObjects();
    for (int i = 0; i < 20; ++i)
        open_and_close();
    EXPECT_EQ(testkit::CountObjects(), before);
}

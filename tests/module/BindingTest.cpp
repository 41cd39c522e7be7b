// SPDX-License-Identifier: MIT
// DDX_GraphControl: dialog items of many window classes become the control.
#include "tests/module/GraphDialog.h"
#include "tests/support/DibSurface.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/Pointer.h"
#include "tests/support/RecordingParent.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

constexpr int kStaticItem = 1002;
constexpr int kNoItem = 4321;

DialogTemplate TwoItems() {
    DialogTemplate dialog(200, 120);
    dialog.AddItem("MFCGraphCtrl", kGraphItem, 5, 5, 190, 80);
    dialog.AddItem("STATIC", kStaticItem, 5, 90, 190, 20);
    return dialog;
}

/// What an item's window shows, its whole client area.
std::unique_ptr<testkit::DibSurface> Shown(HWND window) {
    testkit::Pump();
    CRect client;
    ::GetClientRect(window, &client);
    auto surface = std::make_unique<testkit::DibSurface>(client.Width(), client.Height());
    surface->Grab(window);
    return surface;
}

void Feed(CGraphCtrl& graph) {
    for (const double value : {10.0, 80.0, 35.0})
        graph.AddData(0, value, nullptr);
}

void Feed(CScrollGraphCtrl& graph) {
    for (const long second : {0, 20, 40}) {
        graph.AddXTickLabel(1700000000 + second);
        graph.AddData(0, second, nullptr);
    }
}

template <class Graph> void PlayAnItemOf(const char* windowClass, DWORD style) {
    SCOPED_TRACE(windowClass);
    DialogTemplate resource(200, 140);
    resource.AddItem(windowClass, kGraphItem, 5, 5, 150, 80, WS_CHILD | WS_VISIBLE | style, "item");
    GraphDialog<Graph> dialog;
    ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
    Graph& graph = dialog.graph;
    const HWND item = graph.m_hWnd;
    ::MoveWindow(item, 5, 5, 240, 150, TRUE); // a combo box sets its own height
    Feed(graph);
    graph.Redraw();
    EXPECT_TRUE(dialog.UpdateData(FALSE)) << "later exchanges change nothing";
    EXPECT_EQ(graph.m_hWnd, item);

    const auto isIntact = [&] {
        const auto shown = Shown(item);
        ::RedrawWindow(item, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return testkit::Difference(*shown, *Shown(item));
    };
    EXPECT_EQ(Shown(item)->At(2, 2), RGB(255, 255, 255));
    EXPECT_EQ(isIntact(), "");
    ::MoveWindow(item, 5, 5, 270, 180, TRUE);
    EXPECT_EQ(isIntact(), "") << "grown";
    ::EnableWindow(item, FALSE);
    EXPECT_EQ(isIntact(), "") << "disabled";
    ::EnableWindow(item, TRUE);
    ::SetWindowText(item, _T("another text"));
    ::SendMessage(item, WM_CHAR, 'x', 1);
    EXPECT_EQ(isIntact(), "") << "another text and a character";
    CString text;
    graph.GetWindowText(text);
    EXPECT_EQ(text, "another text");

    const POINT middle = {140, 60};
    testkit::ClickWithPointer(item, middle);
    EXPECT_GE(dialog.selected, 0) << "the mark that the click places";
    EXPECT_EQ(::GetFocus(), item);
    EXPECT_EQ(isIntact(), "") << "clicked";
    EXPECT_EQ(dialog.commands, 0) << "the item's own notifications";
    dialog.DestroyWindow();
    EXPECT_FALSE(::IsWindow(item));
}

} // namespace

TEST(GraphBindingTest, AnItemOfAnyClassIsTheControlAlone) {
    const struct {
        const char* windowClass;
        DWORD style;
    } items[] = {{"MFCGraphCtrl", 0},      {"STATIC", 0},
                 {"STATIC", SS_OWNERDRAW}, {"BUTTON", BS_PUSHBUTTON},
                 {"BUTTON", BS_GROUPBOX},  {"EDIT", ES_MULTILINE | WS_TABSTOP},
                 {"LISTBOX", LBS_NOTIFY},  {"COMBOBOX", CBS_DROPDOWN},
                 {"COMBOBOX", CBS_SIMPLE}, {"SCROLLBAR", 0}};
    const auto play = [&] {
        for (const auto& item : items) {
            PlayAnItemOf<CGraphCtrl>(item.windowClass, item.style);
            PlayAnItemOf<CScrollGraphCtrl>(item.windowClass, item.style);
        }
    };
    play();
    const testkit::ObjectCounts before = testkit::CountObjects();
    play();
    EXPECT_EQ(testkit::CountObjects(), before) << "what the items' own classes made is gone";
}

TEST(GraphBindingTest, AnItemThatCannotBeSubclassedThrows) {
    const DialogTemplate resource = TwoItems();
    CGraphCtrl nowhere, first, second; // the first object registers the window class that the template names
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
    CDataExchange exchange(&dialog, FALSE);

    EXPECT_TRUE(Refuses<CNotSupportedException>([&] { DDX_GraphControl(&exchange, kNoItem, nowhere); }));
    EXPECT_EQ(nowhere.m_hWnd, nullptr);

    DDX_GraphControl(&exchange, kGraphItem, first);
    ASSERT_NE(first.m_hWnd, nullptr);
    EXPECT_TRUE(Refuses<CNotSupportedException>([&] { DDX_GraphControl(&exchange, kGraphItem, second); }))
        << "the item belongs to another object already";
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(first.m_hWnd), &first);
    dialog.DestroyWindow();
}

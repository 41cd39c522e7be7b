// SPDX-License-Identifier: MIT
// The fixture that the tests of both graph controls share.
#pragma once

#include "tests/support/DibSurface.h"
#include "tests/support/MetafileRecorder.h"
#include "tests/support/OpenGraph.h"
#include "tests/support/RecordingParent.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using Strings = std::vector<std::string>;

namespace testkit {

/// " flags 1 at 2,3 index 4 count 5": what an NMGRAPHCTRL says behind its header.
std::string RecordFields(const RecordingParent::Entry& entry);
/// The items of a menu from top to bottom: "1324 gray &Text", "-" for a separator.
Strings MenuItems(HMENU menu);
/// "l,t,r,b", for messages and comparisons.
std::string Text(const CRect& rect);

/// A control of the class `Graph` in a visible parent. The control's window is 300 x 200 pixels of client
/// area without any frame.
template <class Graph> class GraphFixture : public testing::Test {
protected:
    static constexpr int kControlId = 77;

    void SetUp() override {
        ASSERT_TRUE(parent.CreateVisible(800, 640)) << "no display";
        parent.SetRecordSize(sizeof(NMGRAPHCTRL));
        ASSERT_TRUE(graph.Create(_T("MFCGraphCtrl"), _T("window text"), WS_CHILD | WS_VISIBLE,
                                 CRect(0, 0, 300, 200), &parent, kControlId));
        parent.SetDescription([sender = graph.m_hWnd](const RecordingParent::Entry& entry) {
            return (entry.from == sender ? "" : " of another window") + RecordFields(entry);
        });
        Settle();
        parent.Forget();
        graph.calls.clear();
    }
    void TearDown() override {
        if (graph.m_hWnd != nullptr)
            graph.DestroyWindow();
        if (parent.m_hWnd != nullptr)
            parent.DestroyWindow();
        Pump();
    }

    /// Gives the control's window another size.
    void Resize(int width, int height) { graph.MoveWindow(0, 0, width, height, FALSE); }
    /// The whole picture as records.
    std::unique_ptr<MetafileRecorder> Record() {
        auto recorder = std::make_unique<MetafileRecorder>();
        PaintInto(recorder->Dc());
        recorder->Close();
        return recorder;
    }
    /// The whole picture as pixels of a bitmap of the control's size.
    std::unique_ptr<DibSurface> Paint() {
        const CRect client = ClientRect();
        auto surface = std::make_unique<DibSurface>(client.Width(), client.Height());
        PaintInto(surface->Dc());
        return surface;
    }
    /// Paints into a DC of the caller's, with the control's mapping.
    void PaintInto(HDC handle) {
        CDC dc;
        ASSERT_TRUE(dc.Attach(handle));
        graph.SetMapModeAnisotropic(dc);
        graph.DrawGraph(dc);
        dc.Detach();
    }
    /// Brings the window's picture up to date and leaves nothing to repaint.
    void Settle() {
        graph.UpdateWindow();
        Pump();
        ::ValidateRect(graph.m_hWnd, nullptr);
    }
    /// The part of the window that waits for repainting; empty when there is none.
    CRect UpdateRect() {
        CRect rect(0, 0, 0, 0);
        ::GetUpdateRect(graph.m_hWnd, &rect, FALSE);
        return rect;
    }
    /// A rectangle in logical units, in device units as the platform converts it.
    CRect ToDevice(CRect logical) const {
        const HDC dc = ::CreateCompatibleDC(nullptr);
        ::SetMapMode(dc, MM_ANISOTROPIC);
        ::SetWindowExtEx(dc, 15000, 15000, nullptr);
        ::SetViewportExtEx(dc, 500, 500, nullptr);
        ::LPtoDP(dc, reinterpret_cast<POINT*>(&logical), 2);
        ::DeleteDC(dc);
        return logical;
    }
    CRect ClientRect() const {
        CRect client;
        graph.GetClientRect(&client);
        return client;
    }
    /// What `action` makes the parent note, what it leaves in the queue included.
    Strings Traffic(const std::function<void()>& action) {
        Pump();
        parent.Forget();
        action();
        Pump();
        return parent.Log();
    }
    /// The same of one message to the control.
    Strings Send(UINT message, WPARAM wParam, LPARAM lParam) {
        return Traffic([&] { graph.SendMessage(message, wParam, lParam); });
    }

    RecordingParent parent;
    Graph graph;
};

} // namespace testkit

// SPDX-License-Identifier: MIT
// A dialog with a graph control among its items, and what both test files of dialogs share.
#pragma once

#include "tests/module/DialogTemplate.h"

#include <afxwin.h>

#include <kavlix/Kavlix.h>

constexpr int kGraphItem = 1001;

/// Binds `Graph` to the item `item`, and records what the dialog receives.
template <class Graph> class GraphDialog : public CDialog {
public:
    explicit GraphDialog(int item = kGraphItem) : m_item(item) {}

    Graph graph;
    int exchanges = 0;
    int commands = 0;
    int closed = 0;    ///< by Cancel or the Escape key
    int selected = -1; ///< the index of the last GCN_SELCHANGE

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        ++exchanges;
        DDX_GraphControl(pDX, m_item, graph);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        ++commands;
        return CDialog::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* record = reinterpret_cast<const NMGRAPHCTRL*>(lParam);
        if (record->hdr.code == GCN_SELCHANGE)
            selected = record->nIndex;
        return CDialog::OnNotify(wParam, lParam, result);
    }
    void OnCancel() override { ++closed; }
    void OnOK() override {}

private:
    int m_item;
};

/// Whether `action` throws an `Exception*`.
template <class Exception, class Action> bool Refuses(Action action) {
    try {
        action();
        return false;
    } catch (Exception* exception) {
        exception->Delete();
        return true;
    }
}

// SPDX-License-Identifier: MIT
// A parent that destroys or changes a graph control while the control waits for it.
#pragma once

#include "tests/support/ForbiddenPages.h"
#include "tests/support/RecordingParent.h"

#include <kavlix/GraphNotify.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace testkit {

/// A parent with a control of the class `Graph`, and a second parent. A touch of the control after its deletion
/// counts in ForbiddenPages, which must exist before the scene.
template <class Graph> class MisbehavingScene {
public:
    MisbehavingScene() {
        parent.SetRecordSize(sizeof(NMGRAPHCTRL));
        EXPECT_TRUE(parent.CreateVisible(400, 300));
        EXPECT_TRUE(other.CreateVisible(400, 300));
        Make();
        window = graph->m_hWnd;
    }
    MisbehavingScene(const MisbehavingScene&) = delete;
    MisbehavingScene& operator=(const MisbehavingScene&) = delete;
    ~MisbehavingScene() {
        parent.onNoted = nullptr;
        delete graph;
        if (parent.m_hWnd != nullptr)
            parent.DestroyWindow();
        other.DestroyWindow();
        Pump();
    }
    /// Puts a new control into the parent.
    void Make() {
        graph = new Paged<Graph>;
        EXPECT_TRUE(graph->Create(_T("MFCGraphCtrl"), _T("text"), WS_CHILD | WS_VISIBLE,
                                  CRect(0, 0, 300, 200), &parent, 77));
    }
    void Delete() {
        delete graph;
        graph = nullptr;
    }

    RecordingParent parent;
    RecordingParent other;
    Paged<Graph>* graph = nullptr;
    HWND window = nullptr; ///< of the first control
};

/// What a parent does in the middle.
template <class Scene> struct Misdeed {
    const char* name;
    bool destroys; ///< the first control has no window after it
    std::function<void(Scene&)> act;
};

/// What the parent of any control may do, and then `more`.
template <class Scene> std::vector<Misdeed<Scene>> Misdeeds(const std::vector<Misdeed<Scene>>& more) {
    std::vector<Misdeed<Scene>> all = {
        {"destroys the control's window", true, [](Scene& s) { s.graph->DestroyWindow(); }},
        {"deletes the control", true, [](Scene& s) { s.Delete(); }},
        {"replaces the control", true,
         [](Scene& s) {
             s.Delete();
             s.Make();
         }},
        {"destroys itself", true, [](Scene& s) { s.parent.DestroyWindow(); }},
        {"gives the control away", false, [](Scene& s) { s.graph->SetParent(&s.other); }},
        {"sets the control free", false, [](Scene& s) { s.graph->SetParent(nullptr); }},
    };
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace testkit

// SPDX-License-Identifier: MIT
// The control when memory runs out or the system's calls fail.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/FailingCalls.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/MemoryRule.h"
#include "tests/support/SeenUnderWine.h"
#include "tests/support/Utf8.h"

#include <functional>
#include <set>
#include <sstream>

using namespace kavlix;
using testkit::OnFailure;

namespace {

constexpr LPCTSTR kLong = _T("a text that does not fit into a string itself");
// Distance of the failing calls from one another. The wide program calls the same functions, so it tries fewer.
constexpr int kStride = sizeof(TCHAR) == 1 ? 1 : 7;
constexpr LPCTSTR kExtensions[] = {_T(".png"), _T(".bmp"), _T(".emf")};

CString TempPath(int extension) {
    TCHAR folder[MAX_PATH] = _T("");
    ::GetTempPath(MAX_PATH, folder);
    CString path;
    path.Format(_T("%skvx_memory%lu%s"), folder, ::GetCurrentProcessId(), kExtensions[extension]);
    return path;
}

/// A control with samples, labels and texts, as a host reads it.
struct FedGraph {
    FedGraph() {
        for (int i = 0; i < 32; ++i) { // with the next sample or label a new piece of memory is asked for
            graph.AddData(0, i, nullptr);
            graph.AddData(1, i * 2, nullptr);
        }
        for (int i = 0; i < 256; ++i)
            graph.AddXTickLabel("upper", "lower");
        graph.SetLegend(0, kLong);
        graph.SetYUnit("unit", 1, 1);
    }
    std::string State() {
        std::ostringstream out;
        out << Joined(Properties(graph)) << " " << x;
        for (int i = 0; i < CGraphCtrl::DatasetCount; ++i) {
            double y = 0, sum = 0;
            for (int k = 0; graph.GetYData(i, k, y); ++k)
                sum += y * (k % 97 + 1);
            out << " " << sum;
        }
        for (const LabelStore* labels : {&graph.m_XTickLabelUp, &graph.m_XTickLabelDown})
            if (!labels->IsEmpty())
                out << labels->GetAt(0) << labels->GetAt(labels->GetUpperBound());
        return out.str();
    }
    /// A long text that was made while there was memory.
    CString Text() { return std::move(m_texts[--m_textsLeft]); }

    OpenGraph graph;
    double x = -7; ///< what AddData hands back

private:
    CString m_texts[4] = {kLong, kLong, kLong, kLong};
    int m_textsLeft = 4;
};

/// The same, filled so that the next sample needs a new piece of every store.
struct LongGraph : FedGraph {
    LongGraph() {
        for (int i = 32; i < 17 * 1024; ++i)
            graph.AddData(1, i % 100, nullptr);
    }
};

/// The same with a window in a parent that stays, the clipboard empty and no picture saved.
struct ShownGraph : FedGraph {
    ShownGraph() {
        graph.Create(_T("MFCGraphCtrl"), kLong, WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), parent, 77);
        graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
        graph.ShowIconMaximize(TRUE, FALSE);
        graph.SetSelectionMarkPos(5);
        graph.UpdateWindow();
        EmptyClipboard();
    }
    ~ShownGraph() {
        for (int i = 0; i < 3; ++i)
            ::DeleteFile(TempPath(i));
    }
    std::string State() {
        std::string state = FedGraph::State();
        for (int i = 0; i < 3; ++i)
            if (::GetFileAttributes(TempPath(i)) != INVALID_FILE_ATTRIBUTES)
                state += "\nsaved as " + testkit::Utf8(kExtensions[i]);
        return state + (::IsClipboardFormatAvailable(CF_ENHMETAFILE) ? "\ncopied" : "");
    }
    void EmptyClipboard() {
        if (::IsClipboardFormatAvailable(CF_ENHMETAFILE) && ::OpenClipboard(graph.m_hWnd)) {
            ::EmptyClipboard();
            ::CloseClipboard();
        }
    }
    bool Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        ::SendMessage(graph.m_hWnd, message, wParam, lParam);
        return true;
    }
    bool Save(int extension) { return graph.SaveImage(std::move(m_paths[m_left--][extension])); }

    static inline CWnd* parent = nullptr;

private:
    CString m_paths[2][3] = {{TempPath(0), TempPath(1), TempPath(2)},
                             {TempPath(0), TempPath(1), TempPath(2)}};
    int m_left = 1;
};

} // namespace

TEST(GraphMemoryTest, OperationsHappenWholeOrNotAtAll) {
    using F = FedGraph;
    const int failures = testkit::ExpectMemoryRule<F>({
        {"constructor", OnFailure::Throws, [](F&) { return OpenGraph().m_hWnd == nullptr; }},
        {"AddData", OnFailure::Reports, [](F& s) { return s.graph.AddData(0, 7, &s.x) != 0; }},
        {"AddXTickLabel", OnFailure::Reports,
         [](F& s) { return s.graph.AddXTickLabel(s.Text(), s.Text()) != 0; }},
        {"GetXData", OnFailure::Throws,
         [](F& s) {
             CString up, down;
             return s.graph.GetXData(3, up, down) != 0;
         }},
        {"SetLegend", OnFailure::Never, [](F& s) { return s.graph.SetLegend(1, s.Text()) != 0; }},
        {"SetYUnit", OnFailure::Never, [](F& s) { return s.graph.SetYUnit(s.Text(), 2, 3), true; }},
        {"SetCaptionFont", OnFailure::Throws, [](F& s) { return s.graph.SetCaptionFont(99, kLong), true; }},
        {"ResetData", OnFailure::Never, [](F& s) { return s.graph.ResetData(0), true; }},
        {"ResetAll", OnFailure::Throws, [](F& s) { return s.graph.ResetAll(), true; }},
        {"RemoveHeadData", OnFailure::Never, [](F& s) { return s.graph.RemoveHeadData(3), true; }},
    });
    EXPECT_GT(
        testkit::ExpectMemoryRule<LongGraph>({
            {"AddData", OnFailure::Reports, [](LongGraph& s) { return s.graph.AddData(1, 7, &s.x) != 0; }},
        }),
        3);
    testkit::RecordingParent parent;
    ASSERT_TRUE(parent.CreateVisible(320, 240));
    ShownGraph::parent = &parent;
    using S = ShownGraph;
    const int shownFailures = testkit::ExpectMemoryRule<S>({
        {"RemoveHeadData", OnFailure::Never, [](S& s) { return s.graph.RemoveHeadData(3), true; }},
        {"ResetAll", OnFailure::Throws, [](S& s) { return s.graph.ResetAll(), true; }},
        {"SaveImage .png", OnFailure::False, [](S& s) { return s.Save(0); }},
        {"SaveImage .bmp", OnFailure::False, [](S& s) { return s.Save(1); }},
        {"SaveImage .emf", OnFailure::False, [](S& s) { return s.Save(2); }},
        {"CopyToClipboard", OnFailure::False, [](S& s) { return s.graph.CopyToClipboard() != 0; }},
        {"copy", OnFailure::Message, [](S& s) { return s.Send(WM_COMMAND, ID_EDIT_COPY); }},
        {"paint", OnFailure::Message, [](S& s) { return s.graph.Redraw(), s.graph.UpdateWindow(), true; }},
        {"click", OnFailure::Message,
         [](S& s) { return s.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 80)); }},
        {"key", OnFailure::Message, [](S& s) { return s.Send(WM_KEYDOWN, VK_RIGHT); }},
        {"remove data", OnFailure::Message,
         [](S& s) { return s.Send(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK); }},
        {"move", OnFailure::Message, [](S& s) { return s.Send(WM_MOUSEMOVE, 0, MAKELPARAM(150, 80)); }},
    });
    EXPECT_GT(failures, 30);
    EXPECT_GT(shownFailures, 200);
    RecordProperty("failures", failures + shownFailures);
}

TEST(GraphFailureTest, EveryPlatformCallMayFail) {
    testkit::RecordingParent parent;
    ASSERT_TRUE(parent.CreateVisible(320, 240));
    ShownGraph::parent = &parent;
    using S = ShownGraph;
    enum Kind { Paints, Saves, Copies };
    const struct {
        const char* name;
        Kind kind;
        std::function<bool(S&)> run;
        int step = 1; ///< distance of the failing calls, in units of kStride
    } operations[] = {
        {"paint", Paints, [](S& s) { return s.graph.Redraw(), s.graph.UpdateWindow(), true; }},
        {"bars", Paints,
         [](S& s) {
             s.graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
             s.graph.Redraw();
             s.graph.UpdateWindow();
             return s.graph.SetGraphStyle(CGraphCtrl::GraphStyleLine), true;
         }},
        {"click", Paints,
         [](S& s) {
             s.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 80));
             return s.graph.SetSelectionMarkPos(5), s.graph.UpdateWindow(), true;
         }},
        {"icon", Paints,
         [](S& s) {
             s.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(292, 7));
             s.Send(WM_LBUTTONUP, 0, MAKELPARAM(292, 7));
             return s.graph.UpdateWindow(), true;
         }},
        // GDI+ takes 40 ms to start.
        {"SaveImage .png", Saves, [](S& s) { return s.graph.SaveImage(TempPath(0)); }, 11},
        {"SaveImage .emf", Saves, [](S& s) { return s.graph.SaveImage(TempPath(2)); }},
        {"CopyToClipboard", Copies, [](S& s) { return s.graph.CopyToClipboard() != 0; }},
    };
    testkit::FailingCalls calls;
    int failures = 0;
    for (const auto& operation : operations) {
        S scene;
        testkit::DibSurface expected(300, 200);
        const auto repaint = [&](testkit::DibSurface& picture) {
            scene.graph.Redraw();
            scene.graph.UpdateWindow();
            picture.Grab(scene.graph.m_hWnd);
        };
        operation.run(scene);
        repaint(expected);
        scene.EmptyClipboard();
        const testkit::ObjectCounts before = testkit::CountObjects();
        const auto play = [&] {
            const int failed = calls.Failed();
            for (int i = 0; i < 3; ++i)
                ::DeleteFile(TempPath(i));
            scene.EmptyClipboard();
            bool result = false;
            try {
                result = operation.run(scene);
            } catch (CResourceException* exception) {
                ADD_FAILURE() << "an exception left";
                exception->Delete();
            }
            calls.FailAt(0);
            calls.FailAlways(-1);
            if (calls.Failed() == failed)
                return false;
            SCOPED_TRACE(operation.name + (" without " + calls.Name(calls.LastFailed())));
            const std::string state = scene.State();
            EXPECT_EQ(operation.kind == Saves && result, state.find("saved") != std::string::npos);
            EXPECT_TRUE(result || state.find("copied") == std::string::npos);
            EXPECT_FALSE(::GetUpdateRect(scene.graph.m_hWnd, nullptr, FALSE));
            EXPECT_EQ(scene.graph.m_SelectionMarkPos, 5);
            EXPECT_NE(::GetCapture(), scene.graph.m_hWnd);
            testkit::DibSurface picture(300, 200);
            repaint(picture);
            ONLY_SEEN_UNDER_WINE(EXPECT_EQ(testkit::Difference(expected, picture), "")); // GDI's strokes
            ++failures;
            return true;
        };
        std::set<int> reached;
        for (int n = 1; calls.FailAt(n), play(); n += operation.step * kStride)
            reached.insert(calls.LastFailed());
        for (const int function : reached) {
            calls.FailAlways(function);
            EXPECT_TRUE(play());
        }
        scene.EmptyClipboard();
        EXPECT_EQ(testkit::CountObjects(), before) << operation.name;
    }
    EXPECT_GT(failures, 1000 / kStride);
}

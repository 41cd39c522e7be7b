// SPDX-License-Identifier: MIT
// The context menu, by mouse and by keyboard, and the commands behind it.

#include "tests/graphctrl/InputTest.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/SeenUnderWine.h"

#include <algorithm>

namespace {

const std::string kCopy = "57634 Copy";
const std::string kClear = "1324 &Clear Selection Mark";
const std::string kRemove = "1325 &Remove Data Before Selection Mark";
const std::string kClearGray = "1324 gray &Clear Selection Mark";
const std::string kRemoveGray = "1325 gray &Remove Data Before Selection Mark";

/// A control whose menus are noted as they open, and answered with keys.
class GraphMenuTest : public GraphInputTest {
protected:
    void SetUp() override {
        GraphInputTest::SetUp();
        Add(0, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100});
        FixX(0, 9);
        graph.MoveWindow(200, 150, 300, 200);
        Settle();
        graph.onDefault = [this, notes = graph.onDefault](UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == WM_INITMENUPOPUP) {
                opened = MenuItems(reinterpret_cast<HMENU>(wParam));
            } else if (message == WM_ENTERIDLE && !answered) {
                // The menu is on the screen and waits.
                answered = true;
                CRect rect;
                ::GetWindowRect(reinterpret_cast<HWND>(lParam), &rect);
                graph.ScreenToClient(&rect);
                place = rect.TopLeft();
                parent.Remark("menu open");
                for (const WPARAM key : answer)
                    graph.PostMessage(WM_KEYDOWN, key, 1);
            }
            notes(message, wParam, lParam);
        };
    }

    /// The traffic of `action`, which opens a menu; it is answered with these keys.
    Strings Open(std::initializer_list<WPARAM> keys, const std::function<void()>& action) {
        answered = false;
        answer = keys;
        opened.clear();
        place = CPoint(-1000, -1000);
        return Traffic(action);
    }
    Strings OpenByMouse(std::initializer_list<WPARAM> keys, CPoint point) {
        return Open(keys,
                    [&] { graph.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y)); });
    }
    Strings OpenByKeyboard(std::initializer_list<WPARAM> keys) {
        return Open(keys, [this] {
            graph.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(graph.m_hWnd), MAKELPARAM(-1, -1));
        });
    }
    Strings Command(UINT command) { return Send(WM_COMMAND, command, 0); }

    Strings opened; ///< the items of the menu
    CPoint place;   ///< its corner, client pixels

private:
    std::vector<WPARAM> answer;
    bool answered = false;
};

} // namespace

TEST_F(GraphMenuTest, ItemsStandOnTopOfWhatTheMenuHolds) {
    const struct {
        const char* name;
        int mark;
        BOOL remove;
        int times;
        Strings before; // items that the menu holds already
        Strings items;
    } cases[] = {
        {"no mark", -1, TRUE, 1, {}, {kCopy, "-", kClearGray, kRemoveGray}},
        {"without removal or mark", -1, FALSE, 1, {}, {kCopy, "-", kClearGray}},
        {"twice", 3, TRUE, 2, {}, {"-", kCopy, "-", kClear, kRemove}},
        {"host's own items", 3, TRUE, 1, {"7 Own"}, {kCopy, "-", kClear, kRemove, "7 Own"}},
        {"host's own removal", -1, TRUE, 1, {"1325 Own"}, {kCopy, "-", kClearGray, "1325 Own"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Mark(each.mark);
        graph.ShowMenuRemoveDataBeforeSelectionMark(each.remove);
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        for (const std::string& item : each.before)
            menu.AppendMenu(MF_STRING, static_cast<UINT_PTR>(std::stoi(item)), _T("Own"));
        for (int i = 0; i < each.times; ++i)
            graph.InsertGraphMenu(menu);
        EXPECT_EQ(MenuItems(menu), each.items);
        EXPECT_TRUE(graph.IsMenuItem(menu, ID_GRAPH_CLEAR_SELECTION_MARK));
        EXPECT_EQ(graph.IsMenuItem(menu, 7), !each.before.empty() && each.before[0] == "7 Own");
    }
}

TEST_F(GraphMenuTest, RightButtonOpensTheMenuThereAndIsHandedOnAfterwards) {
    graph.calls.clear();
    EXPECT_EQ(OpenByMouse({VK_ESCAPE}, {40, 30}), (Strings{"menu open", "default right"}));
    EXPECT_EQ(std::count(graph.calls.begin(), graph.calls.end(), "menu"), 1);
    EXPECT_EQ(place, CPoint(40, 30));
    EXPECT_EQ(opened, (Strings{kCopy, "-", kClearGray, kRemoveGray}));

    Mark(4);
    EXPECT_EQ(OpenByMouse({VK_DOWN, VK_DOWN, VK_RETURN}, {0, 0}),
              (Strings{"menu open", "default right", Event(-1), Told(GCN_SELCHANGE, -1), PostedMark(-1)}));
    EXPECT_EQ(opened, (Strings{kCopy, "-", kClear, kRemove}));
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
}

TEST_F(GraphMenuTest, KeyboardOpensTheMenuAtTheMark) {
    for (const auto style : {CGraphCtrl::GraphStyleLine, CGraphCtrl::GraphStyleBar}) {
        graph.SetGraphStyle(style);
        graph.Redraw();
        for (const int mark : {-1, 4, 9}) {
            Mark(mark);
            EXPECT_EQ(OpenByKeyboard({VK_ESCAPE}), Strings{"menu open"});
            const CPoint expected = ToDevice(CRect(graph.GetPtFromIndex(mark), CSize(0, 0))).TopLeft();
            EXPECT_EQ(place, expected) << mark;
        }
    }
}

TEST_F(GraphMenuTest, TheMousesContextMenuMessageIsHandedOn) {
    // One press, one menu: the release brings this message.
    const auto own = reinterpret_cast<WPARAM>(graph.m_hWnd);
    const LPARAM at = MAKELPARAM(40, 30);
    EXPECT_EQ(
        Open({VK_ESCAPE}, [&] { graph.SendMessage(WM_CONTEXTMENU, own, at); }),
        (Strings{"default menu", "sent message 123 w=" + std::to_string(own) + " l=" + std::to_string(at)}));
    EXPECT_EQ(opened, Strings());
}

TEST_F(GraphMenuTest, MenuAndRemovalAreWhatADerivedClassMakesOfThem) {
    class Derived : public OpenGraph {
    public:
        std::vector<CPoint> points;
        std::vector<int> counts;
        void OnContextGraphMenu(CPoint point) override { points.push_back(point); }
        void RemoveHeadData(int count) override { counts.push_back(count); }
    } derived;
    ASSERT_TRUE(derived.Create(_T("MFCGraphCtrl"), _T(""), WS_CHILD | WS_VISIBLE, CRect(300, 0, 600, 200),
                               &parent, 8));
    derived.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(12, 34));
    derived.SendMessage(WM_CONTEXTMENU, 0, MAKELPARAM(-1, -1));
    ASSERT_EQ(derived.points.size(), 2u);
    EXPECT_EQ(derived.points[0], CPoint(12, 34)) << "client pixels";
    for (int i = 0; i < 10; ++i)
        derived.AddData(0, 1, nullptr);
    const testkit::MessageBoxWatcher watcher(IDYES);
    for (const int mark : {-1, 4, 20}) {
        derived.m_SelectionMarkPos = mark;
        derived.SendMessage(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
    }
    EXPECT_EQ(derived.counts, (std::vector<int>{-1, 4, 10}));
    derived.DestroyWindow();
}

TEST_F(GraphMenuTest, ClearTakesTheMarkAwayOnce) {
    Mark(4);
    EXPECT_EQ(Command(ID_GRAPH_CLEAR_SELECTION_MARK),
              (Strings{Event(-1), Told(GCN_SELCHANGE, -1), PostedMark(-1)}));
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    EXPECT_EQ(Command(ID_GRAPH_CLEAR_SELECTION_MARK), Strings());
}

TEST_F(GraphMenuTest, RemovalAsksAndTellsHowMany) {
    const struct {
        const char* name;
        int mark;
        int answer;
        int samples; // of ten, afterwards
        Strings traffic;
    } cases[] = {
        {"Yes", 4, IDYES, 6, {Event(-1), Told(GCN_REMOVEDATA, 0, 4)}},
        {"No", 4, IDNO, 10, {}},
        {"Yes without a mark", -1, IDYES, 10, {Told(GCN_REMOVEDATA, 0, -1)}},
        {"Yes with a mark past the end", 50, IDYES, 0, {Event(-1), Told(GCN_REMOVEDATA, 0, 10)}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        graph.ResetAll();
        for (int i = 0; i < 10; ++i)
            Add(0, {10.0 * i});
        graph.m_SelectionMarkPos = each.mark;
        testkit::MessageBoxWatcher watcher(each.answer);
        EXPECT_EQ(Command(ID_GRAPH_REMOVE_DATA_BEFORE_MARK), each.traffic);
        EXPECT_EQ(graph.GetDatasetSize(0), each.samples);
        EXPECT_EQ(graph.m_SelectionMarkPos, each.answer == IDYES ? -1 : each.mark);
        ASSERT_EQ(watcher.Boxes().size(), 1u);
        const auto& box = watcher.Boxes()[0];
        EXPECT_EQ(box.text, "Remove data before selection mark?");
        EXPECT_EQ(box.buttons, (std::vector<int>{IDYES, IDNO}));
        EXPECT_EQ(box.defaultButton, IDNO);
        ONLY_SEEN_UNDER_WINE(EXPECT_EQ(box.icon, UINT(MB_ICONHAND))); // the box shows the shared icon
    }
}

// SPDX-License-Identifier: MIT
// Commands and notifications: by ID, range and code, reflected to the control, passed to the parent.

#include <gtest/gtest.h>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateChild, windowkit::CreateTop, windowkit::Log, windowkit::Note;

namespace {

constexpr UINT wideCode = 0xFFFF0000u - 321; // more than 16 bits count

/// A control that sends notifications and handles some of them by reflection.
class ReflectingWnd : public CWnd {
public:
    explicit ReflectingWnd(Log& log) : m_log(log) {}

    void Command(int code) {
        GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), code),
                                 reinterpret_cast<LPARAM>(m_hWnd));
    }
    LRESULT Notify(UINT code) {
        NMHDR header{m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), code};
        return GetParent()->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

protected:
    void OnClicked() { m_log.push_back("control clicked"); }
    BOOL OnSecond() {
        m_log.push_back("control second");
        return FALSE;
    }
    void OnNotified(NMHDR*, LRESULT* result) {
        m_log.push_back("control notified");
        *result = 5;
    }
    BOOL OnShared(NMHDR*, LRESULT*) {
        m_log.push_back("control shared");
        return FALSE;
    }
    HBRUSH CtlColor(CDC* dc, UINT kind) {
        m_log.push_back(Note("control color", kind));
        return dc != nullptr ? static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)) : nullptr;
    }
    void HScroll(UINT code, UINT position) { m_log.push_back(Note("control scroll", code, position)); }
    void DrawItem(LPDRAWITEMSTRUCT draw) { m_log.push_back(Note("control draw", draw->itemID)); }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};

BEGIN_MESSAGE_MAP(ReflectingWnd, CWnd)
    ON_CONTROL_REFLECT(BN_CLICKED, &ReflectingWnd::OnClicked)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingWnd::OnSecond)
    ON_NOTIFY_REFLECT(NM_CLICK, &ReflectingWnd::OnNotified)
    ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &ReflectingWnd::OnShared)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
END_MESSAGE_MAP()

class ParentWnd : public CWnd {
public:
    explicit ParentWnd(Log& log) : m_log(log) {}
    bool handlesColor = false;

protected:
    void OnPlain() { m_log.push_back("plain"); }
    void OnRange(UINT id) { m_log.push_back(Note("range", id)); }
    BOOL OnEx(UINT id) {
        m_log.push_back(Note("ex", id));
        return id != 301;
    }
    void OnClicked() { m_log.push_back("parent clicked"); }
    void OnChanged() { m_log.push_back("parent changed"); }
    void OnControlRange(UINT id) { m_log.push_back(Note("parent control", id)); }
    void OnNotified(NMHDR* header, LRESULT* result) {
        m_log.push_back(Note("parent notified", static_cast<int>(header->code)));
        *result = 9;
    }
    void OnNotifyRange(UINT id, NMHDR*, LRESULT* result) {
        m_log.push_back(Note("parent range", id));
        *result = 10;
    }
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
        m_log.push_back("parent color");
        return handlesColor ? static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH))
                            : CWnd::OnCtlColor(dc, control, kind);
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};

BEGIN_MESSAGE_MAP(ParentWnd, CWnd)
    ON_COMMAND(100, &ParentWnd::OnPlain)
    ON_COMMAND_RANGE(200, 202, &ParentWnd::OnRange)
    ON_COMMAND_EX_RANGE(300, 301, &ParentWnd::OnEx)
    ON_BN_CLICKED(1, &ParentWnd::OnClicked)
    ON_EN_CHANGE(1, &ParentWnd::OnChanged)
    ON_CONTROL_RANGE(BN_DOUBLECLICKED, 1, 3, &ParentWnd::OnControlRange)
    ON_NOTIFY(NM_CLICK, 1, &ParentWnd::OnNotified)
    ON_NOTIFY(NM_DBLCLK, 1, &ParentWnd::OnNotified)
    ON_NOTIFY(wideCode, 1, &ParentWnd::OnNotified)
    ON_NOTIFY_RANGE(NM_RETURN, 1, 4, &ParentWnd::OnNotifyRange)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class CommandTest : public testing::Test {
protected:
    CommandTest() : parent(log), control(log) {}
    void SetUp() override {
        ASSERT_TRUE(CreateTop(parent));
        ASSERT_TRUE(CreateChild(control, parent, 1));
        log.clear();
    }
    Log Taken() { return windowkit::Taken(log); }
    LRESULT Command(UINT id) { return parent.SendMessage(WM_COMMAND, id); }

    Log log;
    ParentWnd parent;
    ReflectingWnd control;
};

} // namespace

TEST_F(CommandTest, CommandsAreMatchedByIdAndRange) {
    EXPECT_NE(Command(100), 0);
    for (const UINT outside : {0u, 99u, 101u, 199u, 203u})
        EXPECT_EQ(Command(outside), 0) << outside;
    Command(200);
    Command(202);
    EXPECT_NE(Command(300), 0);
    EXPECT_EQ(Command(301), 0) << "the handler said no";
    EXPECT_EQ(Taken(), (Log{"plain", "range 200", "range 202", "ex 300", "ex 301"}));
}

TEST_F(CommandTest, ReflectedNotificationsReachTheControlFirst) {
    for (const int code : {BN_CLICKED, EN_CHANGE, BN_DOUBLECLICKED, EN_KILLFOCUS})
        control.Command(code);
    EXPECT_EQ(Taken(), (Log{"control clicked", "control second", "parent changed", "parent control 1"}));
    EXPECT_EQ(control.Notify(NM_CLICK), 5);
    EXPECT_EQ(control.Notify(NM_DBLCLK), 9);
    EXPECT_EQ(Taken(), (Log{"control notified", "control shared", "parent notified -3"}));
}

TEST_F(CommandTest, NotificationsAreMatchedByTheWholeCodeAndById) {
    EXPECT_EQ(control.Notify(NM_RETURN), 10);
    EXPECT_EQ(control.Notify(wideCode), 9);
    EXPECT_EQ(control.Notify(wideCode & 0xFFFFu), 0) << "the same low word only";
    EXPECT_EQ(Taken(), (Log{"parent range 1", Note("parent notified", static_cast<int>(wideCode))}));
}

TEST_F(CommandTest, ColorsGoToTheParentAndFromItsBaseToTheControl) {
    CClientDC dc(&control);
    const auto ask = [&] {
        return reinterpret_cast<HGDIOBJ>(parent.SendMessage(
            WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(control.m_hWnd)));
    };
    EXPECT_EQ(ask(), ::GetStockObject(BLACK_BRUSH));
    EXPECT_EQ(Taken(), (Log{"parent color", "control color " + std::to_string(CTLCOLOR_STATIC)}));
    parent.handlesColor = true;
    EXPECT_EQ(ask(), ::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(Taken(), Log{"parent color"});
}

TEST_F(CommandTest, ScrollingAndDrawingAreHandedBackToTheControl) {
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 30),
                       reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(Taken(), Log{"control scroll 4 30"});
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = 1;
    draw.itemID = 66;
    draw.hwndItem = control.m_hWnd;
    EXPECT_NE(parent.SendMessage(WM_DRAWITEM, 1, reinterpret_cast<LPARAM>(&draw)), 0);
    EXPECT_EQ(Taken(), Log{"control draw 66"});
}

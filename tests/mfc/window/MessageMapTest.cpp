#include "tests/mfc/window/WindowKit.h"

#include <gtest/gtest.h>

using windowkit::CreateTop;

namespace {

UINT g_registered = 0; // filled when the test starts, after the map was made
constexpr UINT numberedMessage = WM_APP + 5;
constexpr UINT overriddenMessage = WM_APP + 6;

std::string Text(const CPoint& point) {
    return std::to_string(point.x) + "," + std::to_string(point.y);
}

/// Notes what its handlers were called with.
class BaseWnd : public CWnd {
public:
    std::vector<std::string> log;
    std::string Last() {
        const std::string last = log.empty() ? "nothing" : log.back();
        log.clear();
        return last;
    }
    HWND other = nullptr; ///< a window that handlers may be told of

protected:
    std::string Name(const CWnd* window) const {
        return window == nullptr         ? "none"
               : window->m_hWnd == other ? "other"
               : window == this          ? "self"
                                         : "unknown";
    }
    LRESULT OnNumbered(WPARAM wParam, LPARAM lParam) {
        log.push_back("numbered " + std::to_string(wParam) + " " + std::to_string(lParam));
        return -7;
    }
    LRESULT OnOverriddenBase(WPARAM, LPARAM) {
        log.push_back("base");
        return 0;
    }
    LRESULT OnRegistered(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }
    void OnSize(UINT type, int cx, int cy) {
        log.push_back("size " + std::to_string(type) + " " + std::to_string(cx) + " " + std::to_string(cy));
    }
    void OnMove(int x, int y) { log.push_back("move " + std::to_string(x) + " " + std::to_string(y)); }
    void OnMouseMove(UINT flags, CPoint point) {
        log.push_back("mouse " + std::to_string(flags) + " " + Text(point));
    }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        log.push_back("wheel " + std::to_string(flags) + " " + std::to_string(delta) + " " + Text(point));
        return delta > 0;
    }
    void OnKeyDown(UINT key, UINT repeat, UINT flags) {
        log.push_back("key " + std::to_string(key) + " " + std::to_string(repeat) + " " +
                      std::to_string(flags));
    }
    void OnHScroll(UINT code, UINT position, CScrollBar* bar) {
        log.push_back("hscroll " + std::to_string(code) + " " + std::to_string(position) + " " + Name(bar));
    }
    void OnSetFocus(CWnd* old) { log.push_back("focus " + Name(old)); }
    void OnCaptureChanged(CWnd* now) { log.push_back("capture " + Name(now)); }
    void OnActivate(UINT state, CWnd* with, BOOL minimized) {
        log.push_back("activate " + std::to_string(state) + " " + Name(with) + " " +
                      std::to_string(minimized));
    }
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message) {
        log.push_back("cursor " + Name(window) + " " + std::to_string(static_cast<short>(hitTest)) + " " +
                      std::to_string(message));
        return TRUE;
    }
    void OnContextMenu(CWnd* window, CPoint point) {
        log.push_back("context " + Name(window) + " " + Text(point));
    }
    void OnSysCommand(UINT id, LPARAM lParam) {
        log.push_back("system " + std::to_string(id) + " " + std::to_string(lParam));
    }
    void OnMenuSelect(UINT item, UINT flags, HMENU menu) {
        log.push_back("select " + std::to_string(item) + " " + std::to_string(flags) +
                      (menu ? " menu" : " none"));
    }
    BOOL OnEraseBkgnd(CDC* dc) {
        log.push_back(dc != nullptr ? "erase" : "erase nothing");
        return 5;
    }
    UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(static_cast<UINT_PTR>(77)); }
    void OnTimer(UINT_PTR id) { log.push_back("timer " + std::to_string(id)); }
    LRESULT OnNcHitTest(CPoint point) {
        log.push_back("hit " + Text(point));
        return HTERROR;
    }
    void OnSettingChange(UINT flags, LPCTSTR section) {
        log.push_back("setting " + std::to_string(flags) + " " + section);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWnd, CWnd)
    ON_MESSAGE(numberedMessage, &BaseWnd::OnNumbered)
    ON_MESSAGE(overriddenMessage, &BaseWnd::OnOverriddenBase)
    ON_REGISTERED_MESSAGE(g_registered, &BaseWnd::OnRegistered)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_HSCROLL()
    ON_WM_SETFOCUS()
    ON_WM_CAPTURECHANGED()
    ON_WM_ACTIVATE()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_SYSCOMMAND()
    ON_WM_MENUSELECT()
    ON_WM_ERASEBKGND()
    ON_WM_GETDLGCODE()
    ON_WM_QUERYDRAGICON()
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
    ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

/// Written as older programs are: a timer ID and a hit code of type UINT, a scroll bar that is any window.
class DerivedWnd : public BaseWnd {
protected:
    LRESULT OnOverridden(WPARAM, LPARAM) {
        log.push_back("derived");
        return 1;
    }
    void OnTimer(UINT id) { log.push_back("old timer " + std::to_string(id)); }
    UINT OnNcHitTest(CPoint) { return HTCAPTION; }
    void OnHScroll(UINT code, UINT, CWnd* bar) {
        log.push_back("old scroll " + std::to_string(code) + Name(bar));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
    ON_MESSAGE(overriddenMessage, &DerivedWnd::OnOverridden)
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

class MessageMapTest : public testing::Test {
protected:
    void SetUp() override {
        g_registered = ::RegisterWindowMessage("MessageMapTest");
        ASSERT_TRUE(CreateTop(other));
        ASSERT_TRUE(CreateTop(base));
        ASSERT_TRUE(CreateTop(derived));
        base.other = derived.other = other.m_hWnd;
        base.log.clear();
        derived.log.clear();
    }
    std::string Told(UINT message, WPARAM wParam, LPARAM lParam) {
        result = base.SendMessage(message, wParam, lParam);
        return base.Last();
    }

    CWnd other;
    BaseWnd base;
    DerivedWnd derived;
    LRESULT result = 0;
};

} // namespace

TEST_F(MessageMapTest, NumberedAndRegisteredMessagesReachTheirHandlers) {
    EXPECT_EQ(Told(numberedMessage, 3, -4), "numbered 3 -4");
    EXPECT_EQ(result, -7);
    EXPECT_EQ(derived.SendMessage(numberedMessage, 1, 1), -7) << "inherited";
    ASSERT_GE(g_registered, 0xC000u);
    EXPECT_EQ(base.SendMessage(g_registered, 41), 42);
    EXPECT_EQ(base.SendMessage(::RegisterWindowMessage("MessageMapTest, another one"), 41), 0);
    derived.log.clear();
    EXPECT_EQ(derived.SendMessage(overriddenMessage), 1);
    EXPECT_EQ(derived.log, std::vector<std::string>{"derived"}) << "the most derived handler alone";
}

TEST_F(MessageMapTest, ParametersAreTakenApartAsTheMessageDefinesThem) {
    const LPARAM negative = MAKELPARAM(static_cast<WORD>(-3), static_cast<WORD>(-4));
    const LPARAM otherWindow = reinterpret_cast<LPARAM>(other.m_hWnd);
    const WPARAM otherHandle = reinterpret_cast<WPARAM>(other.m_hWnd);

    EXPECT_EQ(Told(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 7)), "size 2 40000 7") << "sizes are unsigned";
    EXPECT_EQ(Told(WM_MOVE, 0, negative), "move -3 -4") << "positions are signed";
    EXPECT_EQ(Told(WM_MOUSEMOVE, MK_SHIFT | MK_LBUTTON, negative), "mouse 5 -3,-4");
    EXPECT_EQ(Told(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), negative),
              "wheel 8 -120 -3,-4");
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Told(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0), "wheel 0 120 0,0");
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Told(WM_KEYDOWN, VK_LEFT, MAKELPARAM(2, 0x414B)), "key 37 2 16715");
    EXPECT_EQ(Told(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 60000), otherWindow), "hscroll 5 60000 other");
    EXPECT_EQ(Told(WM_HSCROLL, SB_LINERIGHT, 0), "hscroll 1 0 none");
    EXPECT_EQ(Told(WM_SETFOCUS, otherHandle, 0), "focus other");
    EXPECT_EQ(Told(WM_CAPTURECHANGED, 0, otherWindow), "capture other");
    EXPECT_EQ(Told(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), otherWindow), "activate 2 other 1");
    EXPECT_EQ(Told(WM_SETCURSOR, otherHandle, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), "cursor other 1 512");
    EXPECT_EQ(result, TRUE);
    EXPECT_EQ(Told(WM_CONTEXTMENU, otherHandle, -1), "context other -1,-1") << "asked for by the keyboard";
    EXPECT_EQ(Told(WM_SYSCOMMAND, 0xF123, 9), "system 61731 9");
    EXPECT_EQ(Told(WM_MENUSELECT, MAKEWPARAM(12, 0xFFFF), 0), "select 12 65535 none");
    EXPECT_EQ(Told(WM_NCHITTEST, 0, MAKELPARAM(5, 6)), "hit 5,6");
    EXPECT_EQ(result, HTERROR);
    EXPECT_EQ(Told(WM_SETTINGCHANGE, 3, reinterpret_cast<LPARAM>("intl")), "setting 3 intl");
    {
        CClientDC dc(&base);
        EXPECT_EQ(Told(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), "erase");
        EXPECT_EQ(result, 5);
    }
    EXPECT_EQ(base.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    EXPECT_EQ(base.SendMessage(WM_QUERYDRAGICON), 77);
}

TEST_F(MessageMapTest, BothFormsOfOldAndNewHandlersWork) {
    const WPARAM id = 123456;
    EXPECT_EQ(Told(WM_TIMER, id, 0), "timer 123456");
    derived.SendMessage(WM_TIMER, id);
    EXPECT_EQ(derived.Last(), "old timer 123456");
    EXPECT_EQ(derived.SendMessage(WM_NCHITTEST), HTCAPTION);
    derived.SendMessage(WM_HSCROLL, SB_LINELEFT, reinterpret_cast<LPARAM>(other.m_hWnd));
    EXPECT_EQ(derived.Last(), "old scroll 0other");
#ifdef _WIN64
    EXPECT_EQ(Told(WM_TIMER, 0x100000001ull, 0), "timer 4294967297");
#endif
}

TEST_F(MessageMapTest, RealTimersTick) {
    ASSERT_NE(base.SetTimer(17, 10, nullptr), 0u);
    const DWORD start = ::GetTickCount();
    MSG message{};
    while (base.log.empty() && ::GetTickCount() - start < 5000)
        if (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
    EXPECT_EQ(base.Last(), "timer 17");
    EXPECT_TRUE(base.KillTimer(17));
    EXPECT_FALSE(base.KillTimer(17));
}

namespace {

class EarlyWnd : public CWnd {
public:
    /// How many maps answer for this class, or 0 if its rows are not there yet.
    int MapsReady() const {
        int depth = 0;
        const AFX_MSGMAP* map = GetMessageMap();
        if (map->lpEntries == nullptr || AfxFindMessageEntry(map->lpEntries, WM_SIZE, 0, 0) == nullptr)
            return 0;
        for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
            ++depth;
        return depth;
    }

protected:
    DECLARE_MESSAGE_MAP()
};

// Initialised before anything below it that needs code to be initialised.
const int g_mapsReadyEarly = EarlyWnd().MapsReady();

BEGIN_MESSAGE_MAP(EarlyWnd, CWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

} // namespace

TEST_F(MessageMapTest, MapsAreReadyBeforeAnyCodeOfTheProgramRuns) {
    EXPECT_EQ(g_mapsReadyEarly, 3) << "EarlyWnd, CWnd, CCmdTarget";
}

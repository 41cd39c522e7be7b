// SPDX-License-Identifier: MIT
// Message maps: parameters taken apart for each kind of handler, inheritance, registered messages.

#include <gtest/gtest.h>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateTop, windowkit::Note;

namespace {

UINT g_registered = 0; // filled when the test starts, after the map was made
constexpr UINT numberedMessage = WM_APP + 5;

std::string Text(const CPoint& point) {
    return std::to_string(point.x) + "," + std::to_string(point.y);
}

/// Logs the arguments of its handlers.
class BaseWnd : public CWnd {
public:
    windowkit::Log log;
    HWND other = nullptr; ///< a window that handlers may be told of

protected:
    template <class... PARTS> void Add(const PARTS&... parts) { log.push_back(Note(parts...)); }
    std::string Name(const CWnd* window) const {
        return window == nullptr         ? "none"
               : window->m_hWnd == other ? "other"
               : window == this          ? "self"
                                         : "unknown";
    }
    LRESULT OnNumbered(WPARAM wParam, LPARAM lParam) {
        Add("numbered", wParam, lParam);
        return -7;
    }
    LRESULT OnRegistered(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }
    void OnSize(UINT type, int cx, int cy) { Add("size", type, cx, cy); }
    void OnMouseMove(UINT flags, CPoint point) { Add("mouse", flags, Text(point)); }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        Add("wheel", flags, delta, Text(point));
        return delta > 0;
    }
    void OnKeyDown(UINT key, UINT repeat, UINT flags) { Add("key", key, repeat, flags); }
    void OnHScroll(UINT code, UINT position, CScrollBar* bar) { Add("hscroll", code, position, Name(bar)); }
    void OnActivate(UINT state, CWnd* with, BOOL minimized) { Add("activate", state, Name(with), minimized); }
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message) {
        Add("cursor", Name(window), static_cast<short>(hitTest), message);
        return TRUE;
    }
    void OnContextMenu(CWnd* window, CPoint point) { Add("context", Name(window), Text(point)); }
    void OnMenuSelect(UINT item, UINT flags, HMENU menu) { Add("select", item, flags, menu != nullptr); }
    BOOL OnEraseBkgnd(CDC* dc) {
        Add("erase", dc != nullptr);
        return 5;
    }
    void OnTimer(UINT_PTR id) { Add("timer", id); }
    LRESULT OnNcHitTest(CPoint point) {
        Add("hit", Text(point));
        return HTERROR;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWnd, CWnd)
    ON_MESSAGE(numberedMessage, &BaseWnd::OnNumbered)
    ON_REGISTERED_MESSAGE(g_registered, &BaseWnd::OnRegistered)
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_HSCROLL()
    ON_WM_ACTIVATE()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_MENUSELECT()
    ON_WM_ERASEBKGND()
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

/// Handlers as in older programs: timer ID and hit code of type UINT, a CWnd* as scroll bar.
class DerivedWnd : public BaseWnd {
protected:
    void OnTimer(UINT id) { Add("old timer", id); }
    UINT OnNcHitTest(CPoint) { return HTCAPTION; }
    void OnHScroll(UINT code, UINT, CWnd* bar) { Add("old scroll", code, Name(bar)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

class MessageMapTest : public testing::Test {
protected:
    void SetUp() override {
        g_registered = ::RegisterWindowMessage(_T("MessageMapTest"));
        for (CWnd* const window : {&other, static_cast<CWnd*>(&base), static_cast<CWnd*>(&derived)})
            ASSERT_TRUE(CreateTop(*window));
        base.other = derived.other = other.m_hWnd;
        base.log.clear();
        derived.log.clear();
    }
    /// Sends a message. Returns the log of the handlers, "=" and the message's result.
    static std::string Told(BaseWnd& window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        const LRESULT result = window.SendMessage(message, wParam, lParam);
        std::string told;
        for (const std::string& note : windowkit::Taken(window.log))
            told += note + " ";
        return told + "= " + std::to_string(result);
    }
    std::string Told(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return Told(base, message, wParam, lParam);
    }

    CWnd other;
    BaseWnd base;
    DerivedWnd derived;
};

} // namespace

TEST_F(MessageMapTest, NumberedAndRegisteredMessagesReachTheirHandlers) {
    EXPECT_EQ(Told(numberedMessage, 3, -4), "numbered 3 -4 = -7");
    EXPECT_EQ(Told(derived, numberedMessage, 1, 1), "numbered 1 1 = -7") << "inherited";
    ASSERT_GE(g_registered, 0xC000u);
    EXPECT_EQ(Told(g_registered, 41), "= 42");
}

TEST_F(MessageMapTest, ParametersAreTakenApartAsTheMessageDefinesThem) {
    const LPARAM negative = MAKELPARAM(static_cast<WORD>(-3), static_cast<WORD>(-4));
    const LPARAM otherWindow = reinterpret_cast<LPARAM>(other.m_hWnd);
    const WPARAM otherHandle = reinterpret_cast<WPARAM>(other.m_hWnd);
    CClientDC dc(&base);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* told;
    } cases[] = {
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 7), "size 2 40000 7 = 0"}, // sizes are unsigned
        {WM_MOUSEMOVE, MK_SHIFT | MK_LBUTTON, negative, "mouse 5 -3,-4 = 0"},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), negative, "wheel 8 -120 -3,-4 = 0"},
        {WM_KEYDOWN, VK_LEFT, MAKELPARAM(2, 0x414B), "key 37 2 16715 = 0"},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 60000), otherWindow, "hscroll 5 60000 other = 0"},
        {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), otherWindow, "activate 2 other 1 = 0"},
        {WM_SETCURSOR, otherHandle, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor other 1 512 = 1"},
        {WM_CONTEXTMENU, otherHandle, -1, "context other -1,-1 = 0"}, // asked for by the keyboard
        {WM_MENUSELECT, MAKEWPARAM(12, 0xFFFF), 0, "select 12 65535 0 = 0"},
        {WM_NCHITTEST, 0, MAKELPARAM(5, 6), "hit 5,6 = -2"},
        {WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0, "erase 1 = 5"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Told(c.message, c.wParam, c.lParam), c.told);
}

TEST_F(MessageMapTest, BothFormsOfOldAndNewHandlersWork) {
    EXPECT_EQ(Told(WM_TIMER, 123456), "timer 123456 = 0");
    EXPECT_EQ(Told(derived, WM_TIMER, 123456), "old timer 123456 = 0");
    EXPECT_EQ(Told(derived, WM_NCHITTEST), "= 2"); // HTCAPTION
    EXPECT_EQ(Told(derived, WM_HSCROLL, SB_LINELEFT, reinterpret_cast<LPARAM>(other.m_hWnd)),
              "old scroll 0 other = 0");
}

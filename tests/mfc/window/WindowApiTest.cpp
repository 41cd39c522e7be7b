// SPDX-License-Identifier: MIT
// What CWnd adds to the Win32 functions of its members' names.

#include <gtest/gtest.h>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateChild, windowkit::CreateTop;

namespace {

class ApiWnd : public CWnd {
public:
    int changes = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CString text = "set by the exchange";
        DDX_Text(pDX, 4, text);
    }
    void OnChange() { ++changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ApiWnd, CWnd)
    ON_EN_CHANGE(4, &ApiWnd::OnChange)
END_MESSAGE_MAP()

class WindowApiTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateTop(window)); }
    static CRect RectOf(const CWnd& of) {
        CRect rect;
        of.GetWindowRect(&rect);
        return rect;
    }
    ApiWnd window;
};

} // namespace

TEST_F(WindowApiTest, CenteringKeepsTheWindowInsideItsArea) {
    CWnd child;
    ASSERT_TRUE(CreateChild(child, window, 1));
    const auto centred = [&] {
        child.CenterWindow();
        CRect rect = RectOf(child);
        window.ScreenToClient(&rect);
        return rect;
    };
    EXPECT_EQ(centred(), CRect(CPoint(75, 40), CSize(50, 20))) << "50 x 20 in 200 x 100";
    child.SetWindowPos(nullptr, 0, 0, 300, 20, SWP_NOZORDER);
    EXPECT_EQ(centred().left, 0) << "too wide: the left edge stays in sight";
}

TEST_F(WindowApiTest, AnExchangeIsNotTakenForTheUsersInput) {
    ASSERT_NE(windowkit::CreateForeign(_T("EDIT"), &window, 4), nullptr);
    ASSERT_TRUE(window.UpdateData(FALSE));
    CString text;
    window.GetDlgItemText(4, text);
    EXPECT_STREQ(text, _T("set by the exchange"));
    EXPECT_EQ(window.changes, 0);
    window.SetDlgItemText(4, _T("set by hand"));
    EXPECT_EQ(window.changes, 1);
}

TEST_F(WindowApiTest, TextsAndClassNamesAreOfTheCharacterSet) {
    EXPECT_EQ(::IsWindowUnicode(window) != FALSE, sizeof(TCHAR) > 1);
    CString text;
    window.SetWindowText(testkit::kScripts);
    window.GetWindowText(text);
    EXPECT_STREQ(text, testkit::kScripts);
    EXPECT_EQ(window.GetWindowTextLength(), text.GetLength());

    WNDCLASS named{};
    named.lpfnWndProc = ::DefWindowProc;
    named.hInstance = AfxGetInstanceHandle();
    named.lpszClassName = testkit::kScripts;
    ASSERT_TRUE(AfxRegisterClass(&named));
    ApiWnd other;
    ASSERT_TRUE(
        other.CreateEx(0, testkit::kScripts, testkit::kScripts, WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    TCHAR name[40] = _T("");
    ::GetClassName(other, name, _countof(name));
    EXPECT_STREQ(name, testkit::kScripts);
    other.GetWindowText(text);
    EXPECT_STREQ(text, testkit::kScripts);
    other.DestroyWindow();
    ::UnregisterClass(testkit::kScripts, AfxGetInstanceHandle());
}

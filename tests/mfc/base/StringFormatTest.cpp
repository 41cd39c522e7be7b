// CString's formats and string resources.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "tests/mfc/base/BaseTestIds.h"

namespace {

#define EXPECT_TEXT(expected, text) EXPECT_STREQ(expected, static_cast<LPCTSTR>(text))

constexpr UINT missingString = 64999;

TEST(StringFormat, TakesStringsNumbersAndTheTargetItself) {
    const CString name("name");
    CString text;
    text.Format(_T("%s=%d|%-6s|%5.2f|%c|%x|%u"), name, -7, CString(_T("ab")), 3.14159, _T('q'), 255u,
                4000000000u);
    EXPECT_TEXT(_T("name=-7|ab    | 3.14|q|ff|4000000000"), text);
    text.Format(_T("%s+%s"), text, text);
    EXPECT_TEXT(_T("name=-7|ab    | 3.14|q|ff|4000000000+name=-7|ab    | 3.14|q|ff|4000000000"), text);
    text.Format(_T("%I64d %lld %p"), LONGLONG{-9000000000}, LONGLONG{9000000000}, nullptr);
    EXPECT_EQ(0, text.Find(_T("-9000000000 9000000000 ")));
    text.Format(_T("%*d|%.*s|100%%"), 5, 42, 2, _T("abc"));
    EXPECT_TEXT(_T("   42|ab|100%"), text);
    text.Format(_T("plain"));
    text.AppendFormat(_T(" and %s"), name);
    text.AppendFormat(_T("<%s>"), text);
    EXPECT_TEXT(_T("plain and name<plain and name>"), text);
}

TEST(StringFormat, HasNoLongestText) {
    CString text;
    text.Format(_T("%.400f"), 1.0 / 3.0);
    EXPECT_EQ(402, text.GetLength());
    EXPECT_EQ(0, text.Find(_T("0.333333333333333314829616256247")));
    // Lengths around the size of an internal buffer, where its terminating zero matters.
    for (int length = 200; length < 600; ++length) {
        text.Format(_T("%*d"), length, 7);
        ASSERT_EQ(length, text.GetLength());
        ASSERT_EQ('7', text[length - 1]);
    }
}

TEST(StringFormat, ResourcesAreTextsAndFormats) {
    CString text;
    EXPECT_TEXT(_T("A text from the resources"), CString(MAKEINTRESOURCE(IDS_BASE_PLAIN)));
    text.Format(IDS_BASE_FORMAT, CString("it"), 3);
    EXPECT_TEXT(_T("it has 3 parts"), text);
    text.FormatMessage(_T("%2 before %1, %3!d!"), _T("first"), CString(_T("second")), 3);
    EXPECT_TEXT(_T("second before first, 3"), text);
    text.FormatMessage(IDS_BASE_MESSAGE, _T("one"), CString("two"));
    EXPECT_TEXT(_T("two before one"), text);
    EXPECT_TEXT(_T("1970-01-01"), CTime(0).FormatGmt(IDS_BASE_TIME));
    EXPECT_TRUE(text.LoadString(IDS_BASE_LONG));
    EXPECT_TEXT(_T("its very end."), text.Right(13));

    EXPECT_FALSE(text.LoadString(missingString));
    EXPECT_TRUE(text.IsEmpty());
    text = "old";
    text.Format(missingString, 1);
    EXPECT_TEXT(_T("old"), text);
}

} // namespace

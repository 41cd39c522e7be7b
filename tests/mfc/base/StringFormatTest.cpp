// SPDX-License-Identifier: MIT
// CString's formats and string resources.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "tests/mfc/base/BaseTestIds.h"
#include "tests/support/Utf8.h"

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

#ifdef _UNICODE
#define OTHER(literal) literal
#else
#define OTHER(literal) L##literal
#endif

TEST(StringFormat, TakesTextsOfBothCharacterTypes) {
    CString text;
    text.Format(_T("%s|%hs|%ls|%S|%5s|%-5hs|%.2ls|%-4.3S|%%s"), _T("own"), "char", L"wide", OTHER("other"),
                _T("own"), "char", L"wide", OTHER("other"));
    EXPECT_TEXT(_T("own|char|wide|other|  own|char |wi|oth |%s"), text);
    text.Format(_T("%c%hc%lc%C%3c%-3hc|%*c%d"), _T('a'), 'b', L'c', OTHER('d'), _T('e'), 'f', 2, _T('g'), 7);
    EXPECT_TEXT(_T("abcd  ef  | g7"), text);
#ifdef _UNICODE
    text.Format(L"%s|%ws|%.2s|%7s|%c%c|%wc", testkit::kScripts, L"\u65E5", L"\u0395\u03BB\u65E5",
                L"\u672C\u672C", 0xD83D, 0xDE00, L'\u03BB');
    EXPECT_EQ(testkit::kScripts + CString(L"|\u65E5|\u0395\u03BB|     \u672C\u672C|\U0001F600|\u03BB"), text);
    char expected[100];
    for (const char* format : {"%+d|%05d", "% d|%-5d", "%#x|%hd", "%ld|%u%%", "%.4d|%X"}) {
        std::snprintf(expected, sizeof expected, format, -70000, 300);
        text.Format(CString(format), -70000, 300);
        EXPECT_EQ(expected, testkit::Utf8(text)) << format;
    }
    text.Format(L"%e|%+.3f|%g", -0.000123456, 2.0, 1e20);
    EXPECT_EQ(L"-1.234560e-04|+2.000|1e+20", text);
#endif
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

#include <afx.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>

#include "tests/mfc/Refusal.h"

// CString but for its formats.

namespace {

// EXPECT_STREQ reads a CString only by its characters.
#define EXPECT_TEXT(expected, text) EXPECT_STREQ(expected, static_cast<LPCTSTR>(text))

TEST(String, ConstructorsTakeWhatTheyAreGivenAndNoMore) {
    EXPECT_TEXT("", CString());
    EXPECT_TEXT("", CString(static_cast<LPCTSTR>(nullptr)));
    EXPECT_TEXT("", CString(static_cast<LPCWSTR>(nullptr)));
    EXPECT_TEXT("x", CString('x'));
    EXPECT_TEXT("xxx", CString('x', 3));
    EXPECT_TEXT("", CString('x', 0));
    EXPECT_TEXT("", CString('x', -5));
    EXPECT_TEXT("abc", CString("abcdef", 3));
    EXPECT_TEXT("", CString("abcdef", -1));
    EXPECT_TEXT("wide", CString(L"wide"));
    EXPECT_TEXT("wi", CString(L"wide", 2));
    const unsigned char bytes[] = {'b', 'y', 0};
    EXPECT_TEXT("by", CString(bytes));

    const CString withZero("a\0b", 3);
    EXPECT_EQ(3, withZero.GetLength());
    EXPECT_TRUE(withZero == CString("a\0b", 3));
    EXPECT_FALSE(withZero == CString("a\0c", 3)) << "what follows a zero is part of the text";
    EXPECT_EQ(0, withZero.Compare("a")) << "but a plain text ends there";
}

TEST(String, MovingLeavesAnEmptyStringAndCopiesNothing) {
    static_assert(std::is_nothrow_move_constructible_v<CString> &&
                  std::is_nothrow_move_assignable_v<CString>);
    CString source('m', 1000);
    const LPCTSTR characters = source;
    CString target(std::move(source));
    EXPECT_EQ(characters, static_cast<LPCTSTR>(target));
    EXPECT_TRUE(source.IsEmpty());
    source = std::move(target);
    EXPECT_EQ(characters, static_cast<LPCTSTR>(source));
    EXPECT_TRUE(target.IsEmpty());
    CString& self = source;
    source = std::move(self);
    EXPECT_EQ(1000, source.GetLength());
}

TEST(String, AssignsAndAppendsPartsOfItself) {
    CString text("0123456789");
    text = static_cast<LPCTSTR>(text) + 4;
    EXPECT_TEXT("456789", text);
    text += text;
    EXPECT_TEXT("456789456789", text);
    for (int i = 0; i < 10; ++i)
        text += static_cast<LPCTSTR>(text) + 1;
    EXPECT_EQ('4', text[0]);
    EXPECT_EQ(std::strlen(text), static_cast<std::size_t>(text.GetLength()));
    const CString& same = text;
    text = same;
    EXPECT_EQ('4', text[0]);
    text.Insert(3, static_cast<LPCTSTR>(text) + 2);
    EXPECT_EQ('4', text[0]);
    text.Replace(text, "gone");
    EXPECT_TEXT("gone", text);
}

TEST(String, ConcatenationTakesTextsAndCharactersOnEitherSide) {
    const CString b("b");
    EXPECT_TEXT("abcde", "a" + b + 'c' + CString("d") + "e");
    EXPECT_TEXT("ab", 'a' + b);
    EXPECT_TEXT("b", static_cast<LPCTSTR>(nullptr) + b);
    CString text;
    text += 'x';
    text += "y";
    text += b;
    text += static_cast<LPCTSTR>(nullptr);
    EXPECT_TEXT("xyb", text);
}

TEST(String, ComparisonsOrderByByteValue) {
    const CString text("Beta");
    EXPECT_TRUE(text == "Beta" && "Beta" == text && text != "beta" && !(text != "Beta"));
    EXPECT_TRUE(text < "beta" && "Alpha" < text && text > "Alpha" && "beta" > text);
    EXPECT_TRUE(text <= "Beta" && text >= "Beta" && "Beta" <= text && "Beta" >= text);
    EXPECT_FALSE(text < "Beta" || text > "Beta");
    EXPECT_TRUE(CString("\xE9") > "z") << "bytes are unsigned";
    EXPECT_TRUE(CString() == static_cast<LPCTSTR>(nullptr));
    EXPECT_EQ(-1, text.Compare("Betas"));
    EXPECT_EQ(0, text.CompareNoCase("bETA"));
    EXPECT_EQ(1, text.CompareNoCase("BET"));
    EXPECT_EQ(-1, CString("_").CompareNoCase("A"))
        << "letters compare as lower case, and '_' lies between the cases";
    EXPECT_EQ(-1, CString("a").Collate("B"));
    EXPECT_EQ(1, CString("a").Compare("B"));
    EXPECT_EQ(0, CString("a").CollateNoCase("A"));
    EXPECT_NE(0, CString("a").Collate("A"));
}

TEST(String, PartsAreCutToTheString) {
    const CString text("abcdef");
    struct {
        int first;
        int count;
        const char* expected;
    } const cases[] = {
        {0, 3, "abc"},
        {2, 2, "cd"},
        {4, 9, "ef"},
        {6, 1, ""},
        {7, 1, ""},
        {-2, 3, "abc"},
        {1, -1, ""},
        {2, INT_MAX, "cdef"},
        {INT_MAX, INT_MAX, ""},
        {INT_MIN, INT_MIN, ""},
    };
    for (const auto& c : cases)
        EXPECT_TEXT(c.expected, text.Mid(c.first, c.count)) << c.first << ", " << c.count;
    EXPECT_TEXT("def", text.Mid(3));
    EXPECT_TEXT("", text.Mid(INT_MAX));
    const struct {
        int count;
        const char *left, *right;
    } ends[] = {{2, "ab", "ef"}, {100, "abcdef", "abcdef"}, {-1, "", ""}};
    for (const auto& end : ends) {
        EXPECT_TEXT(end.left, text.Left(end.count));
        EXPECT_TEXT(end.right, text.Right(end.count));
    }
    EXPECT_TEXT("ab", text.SpanIncluding("ba"));
    EXPECT_TEXT("", text.SpanIncluding("c"));
    EXPECT_TEXT("abcdef", text.SpanIncluding("fedcba"));
    EXPECT_TEXT("abc", text.SpanExcluding("xd"));
    EXPECT_TEXT("abcdef", text.SpanExcluding(""));
}

TEST(String, PositionsOutsideTheStringAreRefused) {
    CString text("abc");
    EXPECT_EQ('c', text.GetAt(2));
    text.SetAt(2, 'd');
    EXPECT_TEXT("abd", text);
    EXPECT_REFUSED(text.GetAt(3));
    EXPECT_REFUSED(text.SetAt(-1, 'x'));
    EXPECT_REFUSED(static_cast<void>(text[INT_MIN]));
    EXPECT_REFUSED(static_cast<void>(CString()[0]));
}

TEST(String, SearchesFromWhereItIsTold) {
    const CString text("one two one");
    EXPECT_EQ(0, text.Find("one"));
    EXPECT_EQ(8, text.Find("one", 1));
    EXPECT_EQ(-1, text.Find("one", 9));
    EXPECT_EQ(-1, text.Find("three"));
    EXPECT_EQ(4, text.Find('t'));
    EXPECT_EQ(-1, text.Find('t', 5));
    EXPECT_EQ(-1, text.Find('o', INT_MAX));
    EXPECT_EQ(-1, text.Find('o', -1));
    EXPECT_EQ(8, text.ReverseFind('o'));
    EXPECT_EQ(-1, text.ReverseFind('x'));
    EXPECT_EQ(1, text.FindOneOf("xyzn"));
    EXPECT_EQ(-1, text.FindOneOf(""));
}

TEST(String, ReplacesWithoutReadingItsOwnReplacements) {
    CString text("aaaa");
    EXPECT_EQ(2, text.Replace("aa", "a"));
    EXPECT_TEXT("aa", text);
    EXPECT_EQ(2, text.Replace("a", "aa"));
    EXPECT_TEXT("aaaa", text);
    EXPECT_EQ(4, text.Replace("a", nullptr));
    EXPECT_TEXT("", text);
    text = "x.y.z";
    EXPECT_EQ(2, text.Replace('.', ','));
    EXPECT_EQ(0, text.Replace(',', ',')) << "nothing changed";
    EXPECT_EQ(0, text.Replace("", "never"));
    EXPECT_EQ(0, text.Replace("Y", "case matters"));
    EXPECT_TEXT("x,y,z", text);
    EXPECT_EQ(2, text.Remove(','));
    EXPECT_TEXT("xyz", text);
}

TEST(String, InsertsAndDeletesWithinItsBounds) {
    CString text("bd");
    EXPECT_EQ(3, text.Insert(1, 'c'));
    EXPECT_EQ(4, text.Insert(-7, "a"));
    EXPECT_EQ(6, text.Insert(99, "ef"));
    EXPECT_EQ(6, text.Insert(2, ""));
    EXPECT_TEXT("abcdef", text);
    EXPECT_EQ(5, text.Delete(0));
    EXPECT_EQ(4, text.Delete(4, 100));
    EXPECT_EQ(4, text.Delete(4, 1));
    EXPECT_EQ(4, text.Delete(1, -1));
    EXPECT_EQ(2, text.Delete(1, 2));
    EXPECT_TEXT("be", text);
    EXPECT_EQ(0, text.Delete(0, INT_MAX));
}

TEST(String, TrimsOnlyTheEnds) {
    const char* const padded = " \t\r\n in side \v\f ";
    EXPECT_TEXT("in side", CString(padded).Trim());
    EXPECT_TEXT("in side \v\f ", CString(padded).TrimLeft());
    EXPECT_TEXT(" \t\r\n in side", CString(padded).TrimRight());
    EXPECT_TEXT("", CString("   ").Trim());
    EXPECT_TEXT("", CString("xx").TrimLeft('x'));
    EXPECT_TEXT("", CString("xx").TrimRight('x'));
    EXPECT_TEXT("y", CString("xxyxx").Trim('x'));
    EXPECT_TEXT("1x2", CString("xy1x2yx").Trim("yx"));
    EXPECT_TEXT("xx", CString("xx").TrimLeft("")) << "an empty set trims nothing";
}

TEST(String, ChangesCaseOfAsciiAndOfTheCodePage) {
    EXPECT_TEXT("ABC-1", CString("aBc-1").MakeUpper());
    EXPECT_TEXT("abc-1", CString("aBc-1").MakeLower());
    EXPECT_TEXT("cba", CString("abc").MakeReverse());
    const CString upper(L"\x00C4\x00D6x");
    CString lower(L"\x00E4\x00F6X");
    if (upper.Find('?') < 0) { // a code page that knows the letters
        EXPECT_EQ(0, upper.CompareNoCase(lower));
        EXPECT_TRUE(lower.MakeUpper() == CString(L"\x00C4\x00D6X"));
    }
}

TEST(String, BufferIsWritableToItsLastByte) {
    CString text("old");
    LPTSTR buffer = text.GetBuffer(10);
    EXPECT_STREQ("old", buffer);
    std::memcpy(buffer, "0123456789", 11);
    text.ReleaseBuffer();
    EXPECT_TEXT("0123456789", text);

    text.GetBuffer(200)[0] = 0;
    text.ReleaseBuffer();
    EXPECT_TRUE(text.IsEmpty());

    std::memset(text.GetBufferSetLength(5), 'z', 5);
    EXPECT_EQ(5, text.GetLength());
    text.GetBuffer(0);
    text.ReleaseBuffer(2);
    EXPECT_TEXT("zz", text);
    text.LockBuffer()[0] = 'y';
    text.UnlockBuffer();
    text.FreeExtra();
    EXPECT_TEXT("yz", text);
}

TEST(String, TooLongForAnIntIsOutOfMemory) {
    CString text("kept");
    EXPECT_TRUE(Throws<CMemoryException>([&] { text.GetBuffer(INT_MAX); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { text.GetBufferSetLength(INT_MAX); }));
    EXPECT_TEXT("kept", text);
}

TEST(String, ExtractsNumberedPieces) {
    CString part;
    const char* const pieces[] = {"a", "", "c", ""};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(i < 3, AfxExtractSubString(part, "a;;c", i, ';') != FALSE) << i;
        EXPECT_TEXT(pieces[i], part) << i;
    }
    EXPECT_TRUE(AfxExtractSubString(part, "first\nsecond", 1));
    EXPECT_TEXT("second", part);
    part = "x\ny";
    EXPECT_TRUE(AfxExtractSubString(part, part, 1)) << "the text may be the target's own";
    EXPECT_TEXT("y", part);
    EXPECT_FALSE(AfxExtractSubString(part, nullptr, 0));
}

TEST(String, TokenizeSkipsEmptyPieces) {
    const CString text(",one,,two;three");
    int position = 0;
    for (const char* const piece : {"one", "two", "three"})
        EXPECT_TEXT(piece, text.Tokenize(",;", position));
    EXPECT_NE(-1, position);
    EXPECT_TEXT("", text.Tokenize(",;", position));
    EXPECT_EQ(-1, position);
    EXPECT_TEXT("", text.Tokenize(",;", position));
}

} // namespace

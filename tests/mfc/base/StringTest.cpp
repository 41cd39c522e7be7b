// SPDX-License-Identifier: MIT
// CString without its formats: random calls against std::string, and what such a model cannot show.

#include <afx.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/support/Refusal.h"

namespace {

// EXPECT_STREQ needs a pointer to characters.
#define EXPECT_TEXT(expected, text) EXPECT_STREQ(expected, static_cast<LPCTSTR>(text))

AfxText Plain(const CString& text) {
    return AfxText(text.GetString(), static_cast<std::size_t>(text.GetLength()));
}

AfxText WithCase(AfxText text, bool upper) {
    for (TCHAR& ch : text)
        ch = static_cast<TCHAR>(upper ? std::toupper(ch) : std::tolower(ch));
    return text;
}

/// Without the characters of `set` at its ends.
AfxText Trimmed(const AfxText& text, const AfxText& set, bool left, bool right) {
    const std::size_t first = left ? text.find_first_not_of(set) : 0;
    const std::size_t last = right ? text.find_last_not_of(set) + 1 : text.size();
    return first < last ? text.substr(first, last - first) : AfxText();
}

/// `text` with every `before` replaced, from left to right, and how many there were.
std::pair<AfxText, int> Replaced(AfxText text, const AfxText& before, const AfxText& after) {
    int count = 0;
    for (std::size_t at = 0; !before.empty() && (at = text.find(before, at)) != AfxText::npos; ++count) {
        text.replace(at, before.size(), after);
        at += after.size();
    }
    return {text, count};
}

/// The pieces between commas, the empty ones too.
std::vector<AfxText> Pieces(const AfxText& text) {
    std::vector<AfxText> pieces(1);
    for (const TCHAR ch : text)
        ch == ',' ? void(pieces.emplace_back()) : void(pieces.back() += ch);
    return pieces;
}

int Index(std::size_t found) {
    return static_cast<int>(found); // -1 for AfxText::npos
}

int Sign(int order) {
    return (order > 0) - (order < 0);
}

template <class LEFT, class RIGHT> auto Relations(const LEFT& left, const RIGHT& right) {
    return std::tuple(left == right, left != right, left<right, left <= right, left> right, left >= right);
}

TEST(String, ActsLikeAStdStringUnderRandomCalls) {
    std::mt19937 random(22);
    const auto below = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    const auto letter = [&] { return _T("aAbB ,\v")[below(7)]; };
    CString text;
    AfxText model;
    for (int step = 0; step < 30000; ++step) {
        SCOPED_TRACE(step);
        const int length = static_cast<int>(model.size());
        const auto number = [&] { // around the text's positions, or far outside
            const int chance = below(20);
            return chance == 0 ? INT_MIN : chance == 1 ? INT_MAX : below(length + 7) - 3;
        };
        const int at = number();
        const int count = number();
        const std::size_t first = static_cast<std::size_t>(std::clamp(at, 0, length));
        const std::size_t many = static_cast<std::size_t>(std::max(count, 0));
        const TCHAR ch = letter();
        const TCHAR other = letter();
        const bool own = below(4) == 0; // an argument that is a part of the text itself
        AfxText part = own ? model.substr(first) : AfxText(random() % 4, ' ');
        if (!own)
            std::generate(part.begin(), part.end(), letter);
        const LPCTSTR argument = own ? text.GetString() + first : part.c_str();
        const AfxText one(1, ch);

        ASSERT_EQ(model.substr(first, many), Plain(text.Mid(at, count)));
        ASSERT_EQ(model.substr(first), Plain(text.Mid(at)));
        ASSERT_EQ(model.substr(0, many), Plain(text.Left(count)));
        ASSERT_EQ(model.substr(model.size() - std::min(many, model.size())), Plain(text.Right(count)));
        ASSERT_EQ(model.substr(0, model.find_first_not_of(part)), Plain(text.SpanIncluding(argument)));
        ASSERT_EQ(model.substr(0, model.find_first_of(part)), Plain(text.SpanExcluding(argument)));
        ASSERT_EQ(Index(model.find_first_of(part)), text.FindOneOf(argument));
        ASSERT_EQ(at < 0 ? -1 : Index(model.find(part, static_cast<std::size_t>(at))),
                  text.Find(argument, at));
        ASSERT_EQ(at < 0 ? -1 : Index(model.find(ch, static_cast<std::size_t>(at))), text.Find(ch, at));
        ASSERT_EQ(Index(model.rfind(ch)), text.ReverseFind(ch));
        ASSERT_EQ(Sign(model.compare(part)), text.Compare(argument));
        ASSERT_EQ(Sign(WithCase(model, false).compare(WithCase(part, false))), text.CompareNoCase(argument));
        ASSERT_EQ(Relations(model, part), Relations(text, argument));
        ASSERT_EQ(Relations(part, model), Relations(argument, text));
        ASSERT_EQ(Relations(model, part), Relations(text, CString(argument)));
        CString piece("old");
        int index = 0;
        int position = 0;
        for (const AfxText& expected : Pieces(model)) {
            ASSERT_TRUE(AfxExtractSubString(piece, text, index++, ','));
            ASSERT_EQ(expected, Plain(piece));
            ASSERT_EQ(expected, expected.empty() ? AfxText() : Plain(text.Tokenize(_T(","), position)));
        }
        ASSERT_FALSE(AfxExtractSubString(piece, text, index, ',') || !piece.IsEmpty());
        ASSERT_TRUE(position != -1 && text.Tokenize(_T(","), position).IsEmpty() && position == -1);

        const auto [replaced, changes] = Replaced(model, part, one + part);
        const auto [exchanged, exchanges] = Replaced(model, one, AfxText(1, other));
        switch (below(length > 60 ? 1 : 14)) {
        case 0:
            text = argument;
            model = part;
            break;
        case 1:
            text += argument;
            text += ch;
            model += part + ch;
            break;
        case 2:
            text = ch + text + argument + CString(other);
            model = ch + model + part + other;
            break;
        case 3:
            model.insert(first, part);
            ASSERT_EQ(static_cast<int>(model.size()), text.Insert(at, argument));
            break;
        case 4:
            model.insert(first, one);
            ASSERT_EQ(length + 1, text.Insert(at, ch));
            break;
        case 5:
            model.erase(first, many);
            ASSERT_EQ(static_cast<int>(model.size()), text.Delete(at, count));
            break;
        case 6:
            model = replaced;
            ASSERT_EQ(changes, text.Replace(argument, one.c_str() + CString(argument)));
            break;
        case 7:
            model = exchanged;
            ASSERT_EQ(ch == other ? 0 : exchanges, text.Replace(ch, other));
            break;
        case 8:
            model = Replaced(model, one, _T("")).first;
            ASSERT_EQ(length - static_cast<int>(model.size()), text.Remove(ch));
            break;
        case 9:
            model = Trimmed(Trimmed(model, one, true, own), _T(" \v"), !own, true);
            (own ? text.Trim(ch).TrimRight() : text.TrimLeft(ch).Trim());
            break;
        case 10:
            model = Trimmed(Trimmed(model, part, own, true), _T(" \v"), true, false);
            (own ? text.Trim(part.c_str()) : text.TrimRight(part.c_str())).TrimLeft();
            break;
        case 11:
            model = WithCase(model, own);
            own ? text.MakeUpper() : text.MakeLower();
            break;
        case 12:
            std::reverse(model.begin(), model.end());
            text.MakeReverse();
            break;
        default:
            if (at >= 0 && at < length) {
                model[first] = ch;
                text.SetAt(at, ch);
            }
        }
        ASSERT_EQ(model, Plain(text));
    }
}

TEST(String, NothingAndTooMuchAreTakenWell) {
    const LPCTSTR none = nullptr;
    EXPECT_TEXT(_T(""), CString(none));
    EXPECT_TEXT(_T(""), CString('x', -5));
    EXPECT_TEXT(_T("xxx"), CString('x', 3));
    EXPECT_TEXT(_T("abc"), CString(_T("abcdef"), 3));
    EXPECT_TEXT(_T("wi"), CString(L"wide", 2));
    CString text("aa");
    text += none;
    EXPECT_TRUE(text != none && CString() == none && text.Find(none) == -1);
    EXPECT_EQ(2, text.Replace(_T("a"), none));

    const CString withZero("a\0b", 3);
    EXPECT_EQ(3, withZero.GetLength());
    EXPECT_FALSE(withZero == CString("a\0c", 3)) << "what follows a zero is part of the text";

    text = "kept";
    EXPECT_TRUE(Throws<CMemoryException>([&] { text.GetBuffer(INT_MAX); }));
    EXPECT_TEXT(_T("kept"), text);
    EXPECT_REFUSED(text.GetAt(4));
    EXPECT_REFUSED(text.SetAt(-1, 'x'));
}

TEST(String, OrdersBytesAndFollowsTheCodePage) {
    EXPECT_TRUE(CString("\xE9") > "z") << "bytes are unsigned";
    EXPECT_EQ(-1, CString(_T("_")).CompareNoCase(_T("A")))
        << "letters compare as lower case, and '_' lies between the cases";
    EXPECT_EQ(-1, CString(_T("a")).Collate(_T("B")));
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
    EXPECT_STREQ(_T("old"), buffer);
    std::memcpy(buffer, _T("0123456789"), 11 * sizeof(TCHAR));
    text.ReleaseBuffer();
    EXPECT_TEXT(_T("0123456789"), text);
    std::fill_n(text.GetBufferSetLength(5), 5, _T('z'));
    text.GetBuffer(0);
    text.ReleaseBuffer(2);
    text.FreeExtra();
    EXPECT_TEXT(_T("zz"), text);
}

} // namespace

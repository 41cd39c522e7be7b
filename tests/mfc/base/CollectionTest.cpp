// SPDX-License-Identifier: MIT
// CList, CMap and the collections made of them.

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <utility>

#include "tests/support/Refusal.h"
#include "tests/support/Utf8.h"

namespace {

struct Key {
    int number;
    bool operator==(const Key& other) const { return number == other.number; }
    bool operator<(const Key& other) const { return number < other.number; }
};

/// The joined texts. The walk backwards must give the same result.
std::string Join(CStringList& list) {
    std::string joined;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        joined += testkit::Utf8(list.GetNext(position).GetString());
    std::string backwards;
    for (POSITION position = list.GetTailPosition(); position != nullptr;)
        backwards = testkit::Utf8(list.GetPrev(position).GetString()) + backwards;
    EXPECT_EQ(joined, backwards);
    return joined;
}

} // namespace

// HashKey has no version for classes, so Key needs its own.
template <> UINT AFXAPI HashKey<const Key&>(const Key& key) {
    return static_cast<UINT>(key.number % 3);
}

namespace {

TEST(List, PositionsSurviveChangesElsewhere) {
    CStringList list;
    const POSITION b = list.AddTail("b");
    list.AddHead("a");
    const POSITION d = list.InsertAfter(b, "d");
    list.InsertBefore(d, "c");
    list.InsertAfter(nullptr, "e");
    list.InsertBefore(nullptr, "0");
    EXPECT_EQ("0abcde", Join(list));
    list.RemoveAt(list.FindIndex(3));
    EXPECT_STREQ(_T("b"), list.GetAt(b));
    list.SetAt(d, "D");
    EXPECT_EQ("0abDe", Join(list));
    list.RemoveAt(b);
    EXPECT_STREQ(_T("0"), list.RemoveHead());
    EXPECT_STREQ(_T("e"), list.RemoveTail());
    EXPECT_EQ("aD", Join(list));
    EXPECT_EQ(2, list.GetCount());

    CStringList more;
    more.AddTail("1");
    more.AddTail("2");
    list.AddHead(&more);
    list.AddTail(&more);
    EXPECT_EQ("12aD12", Join(list));
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
}

TEST(List, WalkMayRemoveWhatItHasPassed) {
    CTypedPtrList<CPtrList, int*> list;
    int values[] = {1, 2, 3, 4, 5};
    for (int& value : values)
        list.AddTail(&value);
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        const POSITION here = position;
        if (*list.GetNext(position) % 2 == 0)
            list.RemoveAt(here);
    }
    EXPECT_EQ(3, list.GetCount());
    EXPECT_EQ(5, *list.GetTail());
    CList<int, int> empty;
    EXPECT_REFUSED(empty.GetHead());
}

TEST(Map, ActsLikeAMapUnderRandomCalls) {
    std::mt19937 random(21);
    CMap<Key, const Key&, CString, LPCTSTR> map; // comparison and hash from this file
    std::map<Key, AfxText> model;
    map.InitHashTable(7);
    for (int step = 0; step < 4000; ++step) {
        const Key key{static_cast<int>(random() % 100) - 50};
        const AfxText value = CString(std::to_string(step).c_str()).GetString();
        switch (random() % 4) {
        case 0:
            map.SetAt(key, value.c_str());
            model[key] = value;
            break;
        case 1:
            map[key] += value.c_str();
            model[key] += value;
            break;
        case 2:
            ASSERT_EQ(model.erase(key) == 1, map.RemoveKey(key) != FALSE);
            break;
        default: {
            CString found("untouched");
            const auto expected = model.find(key);
            ASSERT_EQ(expected != model.end(), map.Lookup(key, found) != FALSE);
            ASSERT_STREQ(expected == model.end() ? _T("untouched") : expected->second.c_str(), found);
        }
        }
        ASSERT_EQ(static_cast<INT_PTR>(model.size()), map.GetCount());
    }
    EXPECT_EQ(7u, map.GetHashTableSize());
    std::map<Key, AfxText> seen;
    for (auto* pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair)) {
        EXPECT_EQ(model[pair->key], pair->value.GetString());
        EXPECT_EQ(pair, map.PLookup(pair->key));
        pair->value += "!";
        seen[pair->key] = model[pair->key] += '!';
    }
    EXPECT_TRUE(std::exchange(seen, {}) == model);
    EXPECT_EQ(nullptr, map.PLookup(Key{50}));
    for (POSITION position = map.GetStartPosition(); position != nullptr;) {
        Key key{};
        CString value;
        map.GetNextAssoc(position, key, value);
        EXPECT_TRUE(seen.emplace(key, value.GetString()).second) << "a key twice";
        map.RemoveKey(key); // an element behind the walk may be removed
    }
    EXPECT_TRUE(model == seen);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(nullptr, map.GetStartPosition());
}

TEST(Map, TextKeysCompareByCharacters) {
    CMapStringToString map;
    map[_T("key")] = _T("one");
    TCHAR same[] = _T("key");
    map.SetAt(same, _T("two"));
    EXPECT_EQ(1, map.GetCount());
    CString value;
    EXPECT_TRUE(map.Lookup(CString("key"), value));
    EXPECT_STREQ(_T("two"), value);
    EXPECT_FALSE(map.Lookup(_T("Key"), value));
}

} // namespace

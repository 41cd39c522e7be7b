// SPDX-License-Identifier: MIT
// What CArchive stores and loads again: values, texts, objects with their identity, and bytes it refuses.

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "tests/support/Refusal.h"
#include "tests/support/Utf8.h"

namespace {

class Node : public CObject {
    DECLARE_SERIAL(Node)
public:
    Node() { ++alive; }
    ~Node() override { --alive; }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring())
            ar << name << next << other;
        else
            ar >> name >> next >> other;
    }
    CString name;
    Node* next = nullptr;
    CObject* other = nullptr;
    static inline int alive = 0;
};
IMPLEMENT_SERIAL(Node, CObject, 1)

/// Stores with `store`, then loads with `load` from the same memory, each through a buffer of `bufferSize`.
template <class STORE, class LOAD> ULONGLONG RoundTrip(STORE store, LOAD load, int bufferSize = 4096) {
    CMemFile file;
    CArchive out(&file, CArchive::store, bufferSize);
    store(out);
    out.Close();
    file.SeekToBegin();
    CArchive in(&file, CArchive::load, bufferSize);
    load(in);
    BYTE more = 0;
    EXPECT_EQ(0u, in.Read(&more, 1)) << "not everything was loaded";
    return file.GetLength();
}

/// An archive that loads from given bytes.
class Bytes {
public:
    Bytes(std::string bytes) : m_bytes(std::move(bytes)) {
        m_file.Attach(reinterpret_cast<BYTE*>(m_bytes.data()), static_cast<UINT>(m_bytes.size()));
        m_archive = std::make_unique<CArchive>(&m_file, CArchive::load);
    }
    CArchive& Archive() { return *m_archive; }

private:
    std::string m_bytes;
    CMemFile m_file{0};
    std::unique_ptr<CArchive> m_archive;
};

TEST(Archive, BasicTypesComeBackAtTheirLimits) {
    const auto values = std::make_tuple(
        true, 'c', BYTE{255}, SHRT_MIN, WORD{65535}, INT_MIN, UINT_MAX, LONG_MIN, DWORD{ULONG_MAX}, LLONG_MIN,
        ULLONG_MAX, FLT_MIN, DBL_MAX, L'\x20AC', static_cast<short>(SHRT_MIN), CPoint(-1, 2),
        CSize(3, INT_MIN), CRect(1, 2, 3, 4), CTime(9999999999LL), CTimeSpan(-5), CString("text"));
    for (const int bufferSize : {0, 128, 131, 4096})
        RoundTrip(
            [&](CArchive& ar) {
                for (int i = 0; i < 20; ++i)
                    std::apply([&](const auto&... value) { (ar << ... << value); }, values);
            },
            [&](CArchive& ar) {
                for (int i = 0; i < 20; ++i) {
                    std::remove_const_t<decltype(values)> loaded;
                    std::apply([&](auto&... value) { (ar >> ... >> value); }, loaded);
                    EXPECT_EQ(values, loaded);
                }
            },
            bufferSize);
}

TEST(Archive, TextsOfEveryLengthClassComeBack) {
    for (const int length : {0, 1, 254, 255, 256, 65533, 65534, 65535, 65536, 1000000}) {
        const CString text('t', length);
        const ULONGLONG stored = RoundTrip([&](CArchive& ar) { ar << text; },
                                           [&](CArchive& ar) {
                                               CString loaded("old");
                                               ar >> loaded;
                                               EXPECT_TRUE(loaded == text) << length;
                                           });
        const std::size_t mark = sizeof(TCHAR) > 1 ? 3 : 0; // marks UTF-16
        const std::size_t prefix = length < 255 ? 1 : length < 65534 ? 3 : 7;
        EXPECT_EQ(mark + prefix + static_cast<std::size_t>(length) * sizeof(TCHAR), stored);
    }
}

TEST(Archive, TextsOfEitherCharacterSetAreLoaded) {
    using namespace std::string_literals;
    for (const std::string& bytes : {"\2ab"s, "\xFF\xFE\xFF\2a\0b\0"s, "\xFF\xFE\xFF\xFF\2\0a\0b\0"s}) {
        CString text;
        Bytes(bytes).Archive() >> text;
        EXPECT_EQ("ab", text) << testing::PrintToString(bytes);
    }
    const CString scripts(testkit::kScripts);
    CMemFile file;
    CArchive out(&file, CArchive::store);
    out << scripts;
    out.Close();
    std::string stored(static_cast<std::size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(stored.data(), static_cast<UINT>(stored.size()));
    const auto* const characters = reinterpret_cast<const char*>(scripts.GetString());
    const std::string prefix =
        (sizeof(TCHAR) > 1 ? "\xFF\xFE\xFF"s : ""s) + static_cast<char>(scripts.GetLength());
    EXPECT_EQ(prefix + std::string(characters, scripts.GetLength() * sizeof(TCHAR)), stored);
    CString loaded;
    Bytes(stored).Archive() >> loaded;
    EXPECT_EQ(scripts, loaded);
}

TEST(Archive, ObjectsKeepTheirIdentity) {
    constexpr int count = 40000; // beyond what a short tag can number
    std::mt19937 random(25);
    CStringArray list;
    list.Add("element");
    std::vector<Node> nodes(count);
    // The first two point at each other, the others at an earlier one or at none (-1).
    std::vector<int> links(count, 0);
    links[0] = 1;
    for (int i = 2; i < count; ++i)
        links[i] = static_cast<int>(random() % static_cast<unsigned>(i + 1)) - 1;
    for (int i = 0; i < count; ++i) {
        nodes[i].name.Format(_T("%d"), i);
        nodes[i].next = links[i] < 0 ? nullptr : &nodes[links[i]];
        nodes[i].other = &list;
    }
    RoundTrip(
        [&](CArchive& ar) {
            for (Node& node : nodes)
                ar << &node;
            ar << static_cast<Node*>(nullptr) << &list << RUNTIME_CLASS(Node)->m_wSchema;
        },
        [&](CArchive& ar) {
            std::vector<std::unique_ptr<Node>> loaded(count);
            Node* one = nullptr;
            for (auto& node : loaded) {
                ar >> one;
                node.reset(one);
            }
            CStringArray* loadedList = nullptr;
            UINT schema = 0;
            ar >> one >> loadedList >> schema;
            const std::unique_ptr<CStringArray> owner(loadedList);
            EXPECT_EQ(nullptr, one);
            EXPECT_STREQ(_T("element"), loadedList->GetAt(0));
            for (int i = 0; i < count; ++i) {
                ASSERT_TRUE(loaded[i]->name == nodes[i].name && loaded[i]->other == loadedList) << i;
                ASSERT_EQ(links[i] < 0 ? nullptr : loaded[links[i]].get(), loaded[i]->next) << i;
            }
        });
    EXPECT_EQ(count, Node::alive);
}

TEST(Archive, CollectionsComeBackWhole) {
    CArray<double, double> numbers;
    for (int i = 0; i < 70000; ++i)
        numbers.Add(i / 3.0);
    CList<CString, const CString&> list;
    list.AddTail("one");
    CMap<int, int, CString, LPCTSTR> map;
    map.SetAt(-2, _T("two"));
    Node shared;
    CObArray objects;
    objects.Add(&shared);
    objects.Add(nullptr);
    objects.Add(&shared);
    const auto serialize = [](CArchive& ar, auto&... collections) { (collections.Serialize(ar), ...); };
    RoundTrip([&](CArchive& ar) { serialize(ar, numbers, list, map, objects); },
              [&](CArchive& ar) {
                  CArray<double, double> loadedNumbers;
                  CList<CString, const CString&> loadedList;
                  CMap<int, int, CString, LPCTSTR> loadedMap;
                  CObArray loadedObjects;
                  serialize(ar, loadedNumbers, loadedList, loadedMap, loadedObjects);
                  ASSERT_EQ(70000, loadedNumbers.GetSize());
                  EXPECT_EQ(numbers[69999], loadedNumbers[69999]);
                  EXPECT_STREQ(_T("one"), loadedList.GetHead());
                  EXPECT_STREQ(_T("two"), loadedMap[-2]);
                  ASSERT_EQ(3, loadedObjects.GetSize());
                  EXPECT_EQ(loadedObjects[0], loadedObjects[2]);
                  EXPECT_EQ(nullptr, loadedObjects[1]);
                  delete loadedObjects[0];
              });
}

TEST(Archive, BytesThatMakeNoSenseAreRefused) {
    using namespace std::string_literals;
    struct {
        std::string bytes;
        int cause;
    } const cases[] = {
        {""s, CArchiveException::endOfFile},
        {"\xFF\xFF\1\0\xFF\xFFxxxx"s, CArchiveException::badClass}, // a name without end
        {"\xFF\xFF\1\0\7\0Unknown"s, CArchiveException::badClass},
        {"\xFF\xFF\2\0\4\0Node"s, CArchiveException::badSchema},
        {"\xFF\xFF\0\0\x0C\0CStringArray\0\0"s, CArchiveException::badClass}, // not what is asked for
        {"\5\0"s, CArchiveException::badIndex},                               // an object never met
        {"\5\x80"s, CArchiveException::badIndex},                             // a class never met
        {"\xFF\xFF\1\0\4\0Node\0\1\0\0\0"s, CArchiveException::badIndex}, // a class where an object should be
        {"\xFF\xFF\1\0\4\0Node\xFF\xFF\xFF\xFF\xFF\xFF\x7Ftext"s,
         CArchiveException::endOfFile},                                            // 2 GB of text
        {"\xFF\xFF\1\0\4\0Node\xFF\xFE\xFF\2a\0b"s, CArchiveException::endOfFile}, // half a character
        {"\xFF\xFF\1\0\4\0Node\xFF\xFE\xFF\xFF\xFE\xFF\1a\0"s, CArchiveException::genericException},
    };
    for (const auto& c : cases) {
        Bytes bytes(c.bytes);
        EXPECT_EQ(c.cause,
                  CauseOf<CArchiveException>([&] { delete bytes.Archive().ReadObject(RUNTIME_CLASS(Node)); }))
            << testing::PrintToString(c.bytes);
        EXPECT_EQ(0, Node::alive) << "half-loaded objects are deleted";
    }
    Bytes huge("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s);
    CArray<double, double> numbers;
    EXPECT_TRUE(Throws<CMemoryException>([&] { numbers.Serialize(huge.Archive()); }));
}

TEST(Archive, LinesOfExactlyTheLimitAreReadWithTheirEnd) {
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        out.WriteString(_T("abc\r\nd\r\n\nabcdef\r\n"));
    }
    const std::vector<CString> expected[] = {{_T("abc"), _T("d"), _T(""), _T("abc"), _T("def")},
                                             {_T("abc"), _T("d"), _T(""), _T("abcd"), _T("ef")}};
    for (const UINT most : {3u, 4u}) {
        for (int size = 4; size < 24; ++size) {
            BYTE buffer[24];
            file.SeekToBegin();
            CArchive in(&file, CArchive::load, size, buffer);
            std::vector<CString> lines;
            for (TCHAR line[5]; in.ReadString(line, most) != nullptr;)
                lines.push_back(line);
            EXPECT_EQ(expected[most - 3], lines) << most << ' ' << size;
        }
    }
}

TEST(Archive, KnowsItsDirection) {
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        out << 7;
        int value = 0;
        EXPECT_EQ(CArchiveException::writeOnly, CauseOf<CArchiveException>([&] { out >> value; }));
        EXPECT_EQ(0u, file.GetLength()) << "buffered";
    }
    EXPECT_EQ(4u, file.GetLength()) << "the destructor flushes";
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    EXPECT_EQ(CArchiveException::readOnly, CauseOf<CArchiveException>([&] { in << 1; }));
    BYTE first = 0;
    in >> first;
    in.Flush();
    EXPECT_EQ(1u, file.GetPosition()) << "flushing gives the file back where the archive is";
}

} // namespace

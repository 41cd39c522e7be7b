// CArray and the arrays made of it: random calls against std::vector, growth, and memory that runs out.

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/mfc/Refusal.h"
#include "tests/support/AllocationGuard.h"

namespace {

/// Counts its objects and stores its own address, so that a move as bytes is detected.
class Tracked {
public:
    Tracked() : m_self(this) { ++alive; }
    Tracked(int value) : m_value(value), m_self(this) { ++alive; }
    Tracked(const Tracked& other) : m_value(other.m_value), m_self(this) {
        MayThrow();
        ++alive;
    }
    Tracked& operator=(const Tracked& other) {
        MayThrow();
        m_value = other.m_value;
        return *this;
    }
    ~Tracked() {
        EXPECT_EQ(this, m_self);
        --alive;
    }
    int Value() const {
        EXPECT_EQ(this, m_self);
        return m_value;
    }

    static inline int alive = 0;
    /// The number of the copy that throws; 0 for none.
    static inline int throwAt = 0;

private:
    static void MayThrow() {
        if (throwAt > 0 && --throwAt == 0)
            throw std::string("copy");
    }
    int m_value = 0;
    Tracked* m_self;
};

/// Like most classes derived from CObject: assignable, but not copyable.
struct Record : CObject {
    Record() = default;
    Record(int value) : number(value) {}
    Record& operator=(const Record& other) { return number = other.number, *this; }
    int number = 0;
};

int ValueOf(const Tracked& element) {
    return element.Value();
}
int ValueOf(const Record& element) {
    return element.number;
}
int ValueOf(int element) {
    return element;
}

template <class ARRAY> std::vector<int> Values(const ARRAY& array) {
    std::vector<int> values;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        values.push_back(ValueOf(array[i]));
    return values;
}

TEST(Array, GrowsByAnEighthBetweenFourAnd1024OrAsTold) {
    const struct {
        INT_PTR size, growBy, growth;
    } cases[] = {{1, -1, 4},       {39, 0, 4},         {40, -1, 5},  {1000, -1, 125},
                 {8192, -1, 1024}, {100000, -1, 1024}, {1000, 7, 7}, {1000, 1, 1}};
    for (const auto& c : cases) {
        CArray<double, double> array;
        array.SetSize(c.size, c.growBy);
        array.FreeExtra();
        array.Add(1.0);
        const double* const block = array.GetData();
        INT_PTR added = 1;
        while (array.Add(1.0), array.GetData() == block)
            ++added;
        EXPECT_EQ(c.growth, added) << c.size << " growing by " << c.growBy;
    }
}

TEST(Array, SizeZeroFreesAndRemoveAtDoesNot) {
    testkit::AllocationGuard guard;
    CArray<int, int> array;
    EXPECT_EQ(nullptr, array.GetData());
    EXPECT_EQ(-1, array.GetUpperBound());
    array.SetSize(100);
    EXPECT_EQ(1, guard.Live());
    const int* const block = array.GetData();
    array.RemoveAt(0, 100);
    EXPECT_EQ(block, array.GetData());
    EXPECT_TRUE(array.IsEmpty());
    array.SetSize(0);
    EXPECT_EQ(nullptr, array.GetData());
    EXPECT_EQ(0, guard.Live());
    EXPECT_EQ(0, guard.Damaged());
}

template <class ARRAY> void ActLikeAVector() {
    std::mt19937 random(20);
    const auto upTo = [&](INT_PTR most) {
        return static_cast<INT_PTR>(random() % static_cast<unsigned>(most + 1));
    };
    testkit::AllocationGuard guard;
    {
        ARRAY array;
        std::vector<int> model;
        const auto reach = [&](INT_PTR size) { model.resize(std::max<std::size_t>(model.size(), size)); };
        for (int step = 0; step < 3000; ++step) {
            const INT_PTR size = array.GetSize();
            const INT_PTR in = size > 0 ? upTo(size - 1) : 0; // a valid index unless the array is empty
            const INT_PTR at = upTo(size + 3);
            const INT_PTR count = upTo(5);
            const int value = step + 1;
            switch (random() % 9) {
            case 0:
            case 1:
                EXPECT_EQ(size, array.Add(value));
                model.push_back(value);
                break;
            case 2:
                array.InsertAt(at, value, count + 1);
                reach(at);
                model.insert(model.begin() + at, static_cast<std::size_t>(count + 1), value);
                break;
            case 3:
                if (size > 0) {
                    const INT_PTR removed = std::min(count, size - in);
                    array.RemoveAt(in, removed);
                    model.erase(model.begin() + in, model.begin() + in + removed);
                }
                break;
            case 4:
                array.SetSize(at, count - 1);
                model.resize(static_cast<std::size_t>(at));
                break;
            case 5:
                array.SetAtGrow(at, value);
                reach(at + 1);
                *(model.begin() + at) = value;
                break;
            case 6:
                if (size > 0) { // an element of the array itself as the argument
                    const int copy = *(model.begin() + in);
                    array.InsertAt(at, array[in], 2);
                    reach(at);
                    model.insert(model.begin() + at, 2, copy);
                    array.Add(array[in]);
                    model.push_back(*(model.begin() + in));
                }
                break;
            case 7:
                array.FreeExtra();
                break;
            default:
                if (size < 40) {
                    EXPECT_EQ(size, array.Append(array));
                    const std::vector<int> copy = model;
                    model.insert(model.end(), copy.begin(), copy.end());
                } else {
                    array.RemoveAt(20, size - 20);
                    model.resize(20);
                }
            }
            ASSERT_EQ(model, Values(array)) << "step " << step;
        }
    }
    EXPECT_EQ(0, guard.Damaged());
}

TEST(Array, ActsLikeAVectorUnderRandomCalls) {
    ActLikeAVector<CArray<Tracked>>(); // moved one by one
    EXPECT_EQ(0, Tracked::alive);
    ActLikeAVector<CArray<int, int>>(); // moved as bytes
    ActLikeAVector<CArray<Record>>();   // assigned
}

TEST(Array, StaysAsItWasWhenMemoryRunsOut) {
    CArray<Tracked> source;
    source.SetSize(3);
    struct Change {
        const char* name;
        std::function<void(CArray<Tracked>&)> apply;
    } const changes[] = {
        {"Add", [](CArray<Tracked>& array) { array.Add(9); }},
        {"SetSize", [](CArray<Tracked>& array) { array.SetSize(500); }},
        {"SetAtGrow", [](CArray<Tracked>& array) { array.SetAtGrow(70, 9); }},
        {"InsertAt front", [](CArray<Tracked>& array) { array.InsertAt(0, array[2], 2); }},
        {"InsertAt array", [&](CArray<Tracked>& array) { array.InsertAt(1, &source); }},
        {"Append", [&](CArray<Tracked>& array) { array.Append(source); }},
    };
    for (const Change& change : changes)
        for (const bool copying : {false, true}) { // no memory, or an element that fails to be copied
            SCOPED_TRACE(std::string(change.name) + (copying ? ", copying" : ""));
            CArray<Tracked> array;
            for (int i = 1; i <= 10; ++i)
                array.Add(i);
            array.FreeExtra();
            const std::vector<int> before = Values(array);
            const int alive = Tracked::alive;
            int failures = 0;
            for (bool failed = true; failed; failures += failed) {
                testkit::AllocationGuard guard;
                guard.FailAt(copying ? 0 : failures + 1);
                Tracked::throwAt = copying ? failures + 1 : 0;
                failed = false;
                try {
                    failed = Throws<CMemoryException>([&] { change.apply(array); });
                    ASSERT_EQ(guard.Failed(), failed);
                } catch (const std::string&) {
                    failed = true;
                }
                if (failed) {
                    ASSERT_EQ(before, Values(array)) << failures;
                    ASSERT_EQ(alive, Tracked::alive) << failures;
                }
            }
            Tracked::throwAt = 0;
            EXPECT_GT(failures, 0);
            EXPECT_NE(before, Values(array));
        }
}

TEST(Array, IndexesOutsideItAndImpossibleSizesAreRefused) {
    CArray<double, double> array;
    array.Add(1);
    EXPECT_REFUSED(array.GetAt(1));
    EXPECT_REFUSED(array[-1] = 2);
    EXPECT_REFUSED(array.RemoveAt(0, PTRDIFF_MAX));
    EXPECT_REFUSED(array.InsertAt(-1, 5));
    EXPECT_REFUSED(array.SetSize(-1));
    EXPECT_TRUE(Throws<CMemoryException>([&] { array.SetSize(PTRDIFF_MAX / 8); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { array.SetAtGrow(PTRDIFF_MAX / 8 - 1, 2.5); }));
    ASSERT_EQ(1, array.GetSize());
}

TEST(Array, ReadyMadeArraysKeepTheirTypes) {
    CStringArray texts;
    texts.SetAtGrow(1, "a");
    texts[1] += "!";

    CObArray objects;
    EXPECT_TRUE(objects.IsSerializable() && !CPtrArray().IsSerializable());
    objects.SetAtGrow(1, &texts);
    CObArray more;
    more.InsertAt(0, &objects);
    EXPECT_EQ(2, more.GetSize()) << "another array, not an element";
    EXPECT_EQ(&texts, more.GetAt(1));

    CTypedPtrArray<CObArray, CStringArray*> typed;
    typed.Add(&texts);
    typed.SetAtGrow(2, &texts);
    EXPECT_EQ(nullptr, typed[1]);
    typed[1] = typed.GetAt(0);
    EXPECT_STREQ("a!", typed[1]->GetAt(1));
}

} // namespace

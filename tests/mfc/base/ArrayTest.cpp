// SPDX-License-Identifier: MIT
// CArray and the arrays made of it: random calls against std::vector, and memory that runs out.

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

#include "tests/support/AllocationGuard.h"
#include "tests/support/Refusal.h"

namespace {

/// Counts its objects and stores its own address, so that a move as bytes is detected.
class Tracked {
public:
    Tracked() : m_self(this) { ++alive; }
    Tracked(int value) : m_value(value), m_self(this) { ++alive; }
    Tracked(const Tracked& other) : m_value(other.m_value), m_self(this) { ++alive; }
    Tracked& operator=(const Tracked& other) {
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

private:
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
    const std::function<void(CArray<Tracked>&)> changes[] = {
        [](CArray<Tracked>& array) { array.SetSize(500); },
        [](CArray<Tracked>& array) { array.InsertAt(0, array[2], 2); },
        [&](CArray<Tracked>& array) { array.InsertAt(1, &source); },
        [&](CArray<Tracked>& array) { array.Append(source); },
    };
    for (const auto& change : changes) {
        CArray<Tracked> array;
        for (int i = 1; i <= 10; ++i)
            array.Add(i);
        array.FreeExtra();
        const std::vector<int> before = Values(array);
        const int alive = Tracked::alive;
        int failures = 0;
        for (bool failed = true; failed; failures += failed) {
            testkit::AllocationGuard guard;
            guard.FailAt(failures + 1);
            failed = Throws<CMemoryException>([&] { change(array); });
            ASSERT_TRUE(!failed || (before == Values(array) && alive == Tracked::alive)) << failures;
        }
        EXPECT_GT(failures, 0);
        EXPECT_NE(before, Values(array));
    }
}

TEST(Array, IndexesOutsideItAndImpossibleSizesAreRefused) {
    CArray<double, double> array;
    array.Add(1);
    EXPECT_REFUSED(array.GetAt(1));
    EXPECT_REFUSED(array[-1] = 2);
    EXPECT_REFUSED(array.InsertAt(-1, 5));
    EXPECT_TRUE(Throws<CMemoryException>([&] { array.SetSize(PTRDIFF_MAX / 8); }));
    ASSERT_EQ(1, array.GetSize());
}

TEST(Array, ReadyMadeArraysKeepTheirTypes) {
    CStringArray texts;
    texts.Add("a");
    CTypedPtrArray<CObArray, CStringArray*> typed;
    typed.Add(&texts);
    typed.SetAtGrow(2, &texts);
    EXPECT_EQ(nullptr, typed[1]);
    typed[1] = typed.GetAt(0);
    EXPECT_STREQ(_T("a"), typed[1]->GetAt(0));
}

} // namespace

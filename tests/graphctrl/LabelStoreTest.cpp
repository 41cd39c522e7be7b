// SPDX-License-Identifier: MIT
// The labels' array against the class library's own.

#include "tests/support/AllocationGuard.h"
#include "tests/support/Utf8.h"

#include <afxcoll.h>

#include <kavlix/LabelStore.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

template <class Array> std::string Told(const Array& array) {
    std::string told = std::to_string(array.GetSize()) + ":";
    for (INT_PTR i = 0; i <= array.GetUpperBound(); ++i)
        told += testkit::Utf8(array[i]) + ",";
    return told;
}

/// One of the array's operations with arguments that it takes.
template <class Array> void Change(Array& array, unsigned action, INT_PTR index, INT_PTR count) {
    const CString text(std::to_string(action + static_cast<unsigned>(index)).c_str());
    const INT_PTR size = array.GetSize();
    const INT_PTR inside = size == 0 ? 0 : index % size;
    switch (action % 11) {
    case 0:
        array.SetSize(count);
        break;
    case 1:
        array.RemoveAll();
        break;
    case 2:
        if (size > 0)
            array.SetAt(inside, text), array[inside] += "+", array.ElementAt(inside) += "*";
        break;
    case 3:
        array.SetAtGrow(index, text);
        break;
    case 4:
        array.InsertAt(index, size > 0 ? array.GetAt(inside) : text, count + 1);
        break;
    case 5:
        array.RemoveAt(inside, count < size - inside ? count : size - inside);
        break;
    case 6:
        array.RemoveAt(0, size / 2);
        break;
    case 7:
        if (size < 100)
            array.Append(array);
        break;
    case 8: {
        Array other;
        other.Add(text);
        other.Append(array);
        array.Copy(array);
        array.Copy(other);
        break;
    }
    default:
        array.Add(text);
    }
}

TEST(LabelStoreTest, BehavesLikeTheClassLibrarysArray) {
    std::mt19937 random(11);
    kavlix::LabelStore store;
    CStringArray array;
    for (int step = 0; step < 3000; ++step) {
        const unsigned action = random() % 1000;
        if (action % 11 == 1 && step % 8 != 0)
            continue;
        const INT_PTR index = random() % 60, count = random() % 40;
        Change(store, action, index, count);
        Change(array, action, index, count);
        ASSERT_EQ(Told(store), Told(array)) << "step " << step << ", action " << action % 11;
        ASSERT_EQ(store.IsEmpty(), array.IsEmpty());
    }
}

TEST(LabelStoreTest, ARefusedChangeChangesNothing) {
    int refused = 0;
    for (unsigned action = 0; action < 11; ++action)
        for (int nth = 1;; ++nth) {
            testkit::AllocationGuard guard;
            kavlix::LabelStore store;
            for (int i = 0; i < 90; ++i)
                store.Add(std::to_string(i).c_str());
            const std::string before = Told(store);
            guard.FailAt(nth);
            try {
                Change(store, action, 700, 600);
            } catch (CMemoryException* exception) {
                exception->Delete();
                ++refused;
                EXPECT_EQ(Told(store), before) << "action " << action << ", allocation " << nth;
            }
            if (!guard.Failed())
                break;
        }
    EXPECT_GT(refused, 10);
}

} // namespace

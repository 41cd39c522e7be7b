// SPDX-License-Identifier: MIT
// Run-time class information and assertions.

#include <afx.h>

#include <gtest/gtest.h>

#include <cstring>

#include <memory>

namespace {

class Animal : public CObject {
    DECLARE_DYNAMIC(Animal)
public:
    void AssertValid() const override { ASSERT(legs >= 0); }
    int legs = 4;
};
IMPLEMENT_DYNAMIC(Animal, CObject)

class Dog : public Animal {
    DECLARE_DYNCREATE(Dog)
protected:
    Dog() = default;
};
IMPLEMENT_DYNCREATE(Dog, Animal)

class Puppy : public Dog {}; // declares nothing of its own

TEST(RuntimeClass, KnowsItsBasesAcrossTheDllBorder) {
    const CRuntimeClass* const dog = RUNTIME_CLASS(Dog);
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(Animal)));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(CObject))) << "CObject is at home in the library's DLL";
    EXPECT_FALSE(RUNTIME_CLASS(Animal)->IsDerivedFrom(dog));
    Puppy puppy;
    CObject* const object = &puppy;
    EXPECT_EQ(&puppy, DYNAMIC_DOWNCAST(Dog, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CFile, object));
}

TEST(RuntimeClass, MakesObjectsByNameWhereItCan) {
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("Dog"));
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(Dog)));
    EXPECT_EQ(RUNTIME_CLASS(Dog), CRuntimeClass::FromName("Dog"));
    EXPECT_EQ(nullptr, RUNTIME_CLASS(Animal)->CreateObject()) << "DYNAMIC only";
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject("Nobody"));
}

TEST(Diagnostics, AssertionsStopADebugBuildOnly) {
    int evaluated = 0;
    VERIFY(++evaluated == 1);
    EXPECT_EQ(1, evaluated) << "in every build";
    ASSERT(evaluated == 1);
    Puppy puppy;
    ASSERT_VALID(&puppy);
#ifdef _DEBUG
    EXPECT_DEATH(ASSERT(evaluated == 2), "ObjectTest.cpp\\(.*evaluated == 2");
    puppy.legs = -1;
    EXPECT_DEATH(ASSERT_VALID(&puppy), "legs >= 0");
#else
    ASSERT(++evaluated == 0);
    EXPECT_EQ(1, evaluated) << "not evaluated";
#endif
}

/// Texts at the end of readable memory, in the last page and across its start, at every alignment.
template <class Char> void ExpectStringsAreCheckedToTheirEnd() {
    constexpr std::size_t page = 4096;
    auto* const memory =
        static_cast<BYTE*>(::VirtualAlloc(nullptr, 3 * page, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    DWORD former = 0;
    ::VirtualProtect(memory + 2 * page, page, PAGE_NOACCESS, &former);
    for (const std::size_t length : {std::size_t{1}, std::size_t{3}, page / sizeof(Char) + 1})
        for (const std::size_t shift : {0, 1}) {
            std::memset(memory, 'x', 2 * page);
            auto* const text = memory + 2 * page - length * sizeof(Char) - shift;
            const auto valid = [&](int count) {
                return AfxIsValidString(reinterpret_cast<const Char*>(text), count) != FALSE;
            };
            EXPECT_TRUE(valid(static_cast<int>(length)) && !valid(static_cast<int>(length) + 2)) << length;
            EXPECT_FALSE(valid(-1)) << length << " from " << shift;
            std::memset(text + (length - 1) * sizeof(Char), 0, sizeof(Char));
            EXPECT_TRUE(valid(-1)) << length << " from " << shift;
        }
    ::VirtualFree(memory, 0, MEM_RELEASE);
}

TEST(Diagnostics, StringsAreValidIfReadableToTheirEnd) {
    ExpectStringsAreCheckedToTheirEnd<char>();
    ExpectStringsAreCheckedToTheirEnd<wchar_t>();
}

} // namespace

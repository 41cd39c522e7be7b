// Run-time class information and assertions.

#include <afx.h>

#include <gtest/gtest.h>

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

} // namespace

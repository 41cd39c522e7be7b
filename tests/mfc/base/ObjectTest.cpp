// Run-time class information, assertions and dumps.

#include <afx.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

class Animal : public CObject {
    DECLARE_DYNAMIC(Animal)
public:
    void AssertValid() const override { ASSERT(legs >= 0); }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "legs " << legs << "\n";
    }
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

class Starved : public CObject {
    DECLARE_DYNCREATE(Starved)
public:
    Starved() { AfxThrowMemoryException(); }
};
IMPLEMENT_DYNCREATE(Starved, CObject)

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
    EXPECT_EQ(nullptr, RUNTIME_CLASS(Starved)->CreateObject()) << "no memory";
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject("Nobody"));
}

TEST(RuntimeClass, ClassesOfAnUnloadedModuleLeaveTheList) {
    CRuntimeClass passing = {"Passing", 1, 0xFFFF, nullptr, [] { return RUNTIME_CLASS(CObject); }, nullptr};
    {
        const AfxClassRegistration registration(passing);
        EXPECT_EQ(&passing, CRuntimeClass::FromName("Passing"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("Passing"));
    EXPECT_EQ(RUNTIME_CLASS(Dog), CRuntimeClass::FromName("Dog"));
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

TEST(Diagnostics, DumpWritesTextToAFile) {
    CMemFile file;
    CDumpContext dc(&file);
    Puppy puppy;
    dc << puppy << static_cast<const CObject*>(nullptr) << " " << CString("text") << L" wide " << 1.5 << " "
       << BYTE{200} << "\n";
    std::string written(static_cast<std::size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(written.data(), static_cast<UINT>(written.size()));
    EXPECT_EQ(0u, written.find("a Dog at $"));
    EXPECT_NE(std::string::npos, written.find("\r\nlegs 4\r\nNULL text wide 1.5 200\r\n")) << written;
}

} // namespace

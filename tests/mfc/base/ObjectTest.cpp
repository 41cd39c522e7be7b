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
    EXPECT_STREQ("Dog", dog->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(Dog)), dog->m_nObjectSize);
    EXPECT_EQ(0xFFFFu, dog->m_wSchema);
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(Animal)));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(CObject))) << "CObject is at home in the library's DLL";
    EXPECT_FALSE(RUNTIME_CLASS(Animal)->IsDerivedFrom(dog));
    EXPECT_TRUE(RUNTIME_CLASS(CStdioFile)->IsDerivedFrom(RUNTIME_CLASS(CFile)));
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CObject)->m_pfnGetBaseClass());
    Puppy puppy;
    CObject* const object = &puppy;
    EXPECT_EQ(dog, puppy.GetRuntimeClass());
    EXPECT_EQ(&puppy, DYNAMIC_DOWNCAST(Dog, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CFile, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(Dog, static_cast<CObject*>(nullptr)));
}

TEST(RuntimeClass, MakesObjectsByNameWhereItCan) {
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("Dog"));
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(Dog)));
    EXPECT_EQ(RUNTIME_CLASS(Dog), CRuntimeClass::FromName("Dog"));
    EXPECT_EQ(RUNTIME_CLASS(CMemFile), CRuntimeClass::FromName("CMemFile"));
    EXPECT_EQ(nullptr, RUNTIME_CLASS(Animal)->CreateObject()) << "DYNAMIC only";
    EXPECT_EQ(nullptr, RUNTIME_CLASS(Starved)->CreateObject()) << "no memory";
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("dog"));
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
    Dog* const none = nullptr;
    Puppy puppy;
    ASSERT_VALID(&puppy);
    ASSERT_KINDOF(Dog, &puppy);
    ASSERT_NULL_OR_POINTER(none, Dog);
#ifdef _DEBUG
    EXPECT_DEATH(ASSERT(evaluated == 2), "ObjectTest.cpp\\(.*evaluated == 2");
    EXPECT_DEATH(ASSERT_VALID(none), "assertion failed");
    puppy.legs = -1;
    EXPECT_DEATH(ASSERT_VALID(&puppy), "legs >= 0");
#else
    ASSERT(++evaluated == 0);
    EXPECT_EQ(1, evaluated) << "not evaluated";
    EXPECT_EQ(nullptr, none);
#endif
}

TEST(Diagnostics, AddressesAreCheckedPageByPage) {
    const SIZE_T page = 4096;
    char* const memory = static_cast<char*>(VirtualAlloc(nullptr, 2 * page, MEM_RESERVE, PAGE_NOACCESS));
    ASSERT_NE(nullptr, VirtualAlloc(memory, page, MEM_COMMIT, PAGE_READWRITE));
    EXPECT_TRUE(AfxIsValidAddress(memory, page));
    EXPECT_FALSE(AfxIsValidAddress(memory, page + 1));
    EXPECT_FALSE(AfxIsValidAddress(memory + page, 1, FALSE));
    memset(memory, 'x', page);
    EXPECT_FALSE(AfxIsValidString(memory)) << "no end within readable memory";
    EXPECT_TRUE(AfxIsValidString(memory, static_cast<int>(page)));
    memory[page - 1] = 0;
    EXPECT_TRUE(AfxIsValidString(memory));
    DWORD old = 0;
    VirtualProtect(memory, page, PAGE_READONLY, &old);
    EXPECT_FALSE(AfxIsValidAddress(memory, 1, TRUE));
    EXPECT_TRUE(AfxIsValidAddress(memory, 1, FALSE));
    VirtualFree(memory, 0, MEM_RELEASE);
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 0));
    EXPECT_FALSE(AfxIsValidString(nullptr));
}

TEST(Diagnostics, DumpWritesTextToAFile) {
    CMemFile file;
    CDumpContext dc(&file);
    Puppy puppy;
    dc << puppy << static_cast<const CObject*>(nullptr) << " " << CString("text") << L" wide " << 1.5 << " "
       << BYTE{200} << "\n";
    const BYTE bytes[] = {1, 2, 255};
    dc.HexDump(">", bytes, 3, 2);
    std::string written(static_cast<std::size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(written.data(), static_cast<UINT>(written.size()));
    EXPECT_EQ(0u, written.find("a Dog at $"));
    EXPECT_NE(std::string::npos, written.find("\r\nlegs 4\r\nNULL text wide 1.5 200\r\n> 01 02\r\n> FF\r\n"))
        << written;
}

} // namespace

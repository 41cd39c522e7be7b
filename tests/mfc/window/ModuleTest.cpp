// SPDX-License-Identifier: MIT
// The chain of modules that resources are found in, module states, window classes, texts with inserts.

#include <gtest/gtest.h>

#include "tests/mfc/window/WindowKit.h"
#include "tests/mfc/window/window_ids.h"

namespace {

constexpr UINT kavlixString = 5504; // in the same block of strings as IDS_IN_KAVLIX_BLOCK
constexpr UINT nobodysString = 5488;

std::string Loaded(UINT id) {
    TCHAR text[256] = _T("rubbish");
    const int length = AfxLoadString(id, text);
    EXPECT_EQ(length, static_cast<int>(_tcslen(text)));
    return testkit::Utf8(text);
}

#ifdef _UNICODE
constexpr LPCTSTR kavlixName = L"KavlixU.dll";
#else
constexpr LPCTSTR kavlixName = "Kavlix.dll";
#endif

/// Kavlix.dll as an extension DLL of this program.
class ModuleTest : public testing::Test {
protected:
    /// The first module of the chain with a version resource. Each module in these tests has one.
    static HINSTANCE VersionOwner() { return AfxFindResourceHandle(MAKEINTRESOURCE(1), RT_VERSION); }
    void SetUp() override {
        kavlix = AfxLoadLibrary(kavlixName);
        ASSERT_NE(kavlix, nullptr);
    }
    void TearDown() override {
        AfxSetResourceHandle(program);
        if (kavlix != nullptr)
            AfxFreeLibrary(kavlix);
    }

    HINSTANCE program = ::GetModuleHandle(nullptr);
    HINSTANCE kavlix = nullptr;
};

} // namespace

TEST_F(ModuleTest, StringsAreFoundInTheModuleThatHoldsThem) {
    EXPECT_EQ(AfxFindStringResourceHandle(IDS_TEMPLATE), program);
    EXPECT_EQ(AfxFindStringResourceHandle(kavlixString), kavlix);
    EXPECT_EQ(AfxFindStringResourceHandle(IDS_IN_KAVLIX_BLOCK), program);
    EXPECT_EQ(AfxFindStringResourceHandle(nobodysString), nullptr);
    EXPECT_NE(Loaded(kavlixString), "");
    EXPECT_EQ(Loaded(IDS_IN_KAVLIX_BLOCK), "the program's own");
    EXPECT_EQ(Loaded(nobodysString), "");
}

TEST_F(ModuleTest, TheResourceModuleComesFirst) {
    AfxSetResourceHandle(kavlix);
    EXPECT_EQ(AfxGetResourceHandle(), kavlix);
    EXPECT_EQ(VersionOwner(), kavlix);
    EXPECT_EQ(Loaded(IDS_IN_KAVLIX_BLOCK), "the program's own") << "and the program second";
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(IDR_FRAME), RT_MENU), program);
}

TEST_F(ModuleTest, AnExtensionModulesLinksAndClassesEndWithIt) {
    AFX_EXTENSION_MODULE module{};
    const HINSTANCE dll = ::GetModuleHandle(_T("gdi32.dll"));
    ASSERT_TRUE(AfxInitExtensionModule(module, dll));
    new CDynLinkLibrary(module);
    EXPECT_EQ(VersionOwner(), dll);

    WNDCLASS ofDll{};
    ofDll.lpfnWndProc = ::DefWindowProc;
    ofDll.hInstance = dll;
    ofDll.lpszClassName = _T("ModuleTestOfDll");
    EXPECT_TRUE(AfxRegisterClass(&ofDll));
    AfxTermExtensionModule(module);
    EXPECT_EQ(VersionOwner(), kavlix);
    WNDCLASS found{};
    EXPECT_FALSE(::GetClassInfo(dll, _T("ModuleTestOfDll"), &found));
}

TEST_F(ModuleTest, AManagedStateLendsItsResourcesForAScope) {
    {
        AFX_MANAGE_STATE(AfxStateOfModule(kavlix));
        EXPECT_EQ(AfxGetResourceHandle(), kavlix);
        EXPECT_EQ(Loaded(IDS_IN_KAVLIX_BLOCK), "the program's own");
    }
    EXPECT_EQ(AfxGetInstanceHandle(), program);
}

TEST_F(ModuleTest, WindowClassesAreNamedByTheirProperties) {
    const HCURSOR cursor = ::LoadCursor(nullptr, IDC_CROSS);
    const auto brush = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    const CString name = AfxRegisterWndClass(CS_DBLCLKS, cursor, brush);
    EXPECT_NE(AfxRegisterWndClass(CS_DBLCLKS), name);
    EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS, cursor, brush), name);
    WNDCLASS found{};
    ASSERT_TRUE(::GetClassInfo(program, name, &found));
    EXPECT_TRUE(found.hCursor == cursor && found.hbrBackground == brush && found.style == CS_DBLCLKS);
}

TEST_F(ModuleTest, TextsAreCutAndFilledIn) {
    TCHAR small[5] = _T("");
    EXPECT_EQ(AfxLoadString(IDS_IN_KAVLIX_BLOCK, small, _countof(small)), 4);
    EXPECT_STREQ(small, _T("the "));

    CString text;
    AfxFormatString2(text, IDS_TEMPLATE, _T("first"), _T("second"));
    EXPECT_STREQ(text, _T("first of second (first), %%"));
    AfxFormatString1(text, IDS_TEMPLATE, _T("%2"));
    EXPECT_STREQ(text, _T("%2 of  (%2), %%")) << "inserted text is not looked through again";

    EXPECT_EQ(Loaded(AFX_IDP_PARSE_INT), "Enter an integer.") << "the library's own";
    EXPECT_EQ(Loaded(AFX_IDP_PARSE_BYTE), "the program's wording") << "goes first";
}

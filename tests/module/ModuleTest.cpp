// Kavlix.dll as a module: resources, exported names, the order of virtual functions, its window class.
#include "tests/module/GraphDialog.h"
#include "tests/support/ImportHook.h"

#include <afxwin.h>

#include <kavlix/Kavlix.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <iterator>
#include <set>

namespace {

HMODULE Library() {
    return ::GetModuleHandle("Kavlix.dll");
}

/// Opens the operations whose slots are compared.
class SlotGraph : public CGraphCtrl {
public:
    using CGraphCtrl::DrawGraphData;
    using CGraphCtrl::DrawXAxis;
    using CGraphCtrl::GetIndexFromPt;
    using CWnd::PostNcDestroy;
};

/// The slot of a virtual function: in the ABI of this compiler a pointer to one is its offset in the table
/// plus 1.
template <class Pointer> std::ptrdiff_t Slot(Pointer pointer) {
    std::ptrdiff_t words[2] = {};
    static_assert(sizeof pointer == sizeof words);
    std::memcpy(words, &pointer, sizeof words);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

std::string Demangled(const std::string& name) {
    int status = 0;
    char* text = abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status);
    const std::string result = status == 0 ? text : "";
    std::free(text);
    return result;
}

int g_registrations = 0;

ATOM WINAPI NoClass(const WNDCLASSA*) {
    ++g_registrations;
    return 0;
}

} // namespace

TEST(ModuleTest, StringTableIsFoundFromTheHost) {
    const struct {
        UINT id;
        const char* text;
    } strings[] = {{5501, "Remove data before selection mark?"},
                   {5504, "Copy"},
                   {5505, "&Clear Selection Mark"},
                   {5506, "&Remove Data Before Selection Mark"},
                   {5507, "Send Selection Mark info to Tindro"}};
    for (const auto& each : strings) {
        CString text;
        EXPECT_TRUE(text.LoadString(each.id)) << each.id;
        EXPECT_STREQ(text, each.text);
        // Strings lie in blocks of 16; the block with this one is found in the library, not in the program.
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(each.id / 16 + 1), RT_STRING), Library());
    }
    CString text("kept");
    EXPECT_FALSE(text.LoadString(5499));
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(nullptr)) << "the program's state, not the library's";
}

TEST(ModuleTest, VersionResourceDescribesTheLibrary) {
    const HRSRC found = ::FindResource(Library(), MAKEINTRESOURCE(1), RT_VERSION);
    ASSERT_NE(found, nullptr);
    const DWORD size = ::SizeofResource(Library(), found);
    const auto* block = static_cast<const unsigned char*>(::LockResource(::LoadResource(Library(), found)));
    ASSERT_NE(block, nullptr);
    constexpr std::size_t kFixedInfo = 40; // behind three words and the key, at a multiple of four
    ASSERT_GE(size, kFixedInfo + sizeof(VS_FIXEDFILEINFO));
    VS_FIXEDFILEINFO info = {};
    std::memcpy(&info, block + kFixedInfo, sizeof info);
    EXPECT_EQ(info.dwSignature, 0xFEEF04BDu);
    EXPECT_EQ(info.dwFileType, DWORD(VFT_DLL));
    EXPECT_NE(info.dwFileVersionMS, 0u);
    const std::wstring text(reinterpret_cast<const WCHAR*>(block), size / sizeof(WCHAR));
    EXPECT_NE(text.find(L"ProductName"), std::wstring::npos);
    EXPECT_NE(text.find(L"Kavlix"), std::wstring::npos);
}

TEST(ModuleTest, VirtualOperationsFollowOneAnother) {
    const std::ptrdiff_t first = Slot(&CGraphCtrl::GetXData);
    EXPECT_EQ(Slot(&CGraphCtrl::RemoveHeadData), first + 1);
    EXPECT_EQ(Slot(&CGraphCtrl::ResetXTickLabel), first + 2);
    EXPECT_EQ(Slot(&CGraphCtrl::OnContextGraphMenu), first + 3);
    EXPECT_EQ(Slot(&CGraphCtrl::InsertGraphMenu), first + 4);
    EXPECT_EQ(Slot(&SlotGraph::DrawXAxis), first + 5);
    EXPECT_EQ(Slot(&SlotGraph::DrawGraphData), first + 6);
    EXPECT_EQ(Slot(&SlotGraph::GetIndexFromPt), first + 7);
    EXPECT_GT(first, Slot(&SlotGraph::PostNcDestroy)) << "behind those of CWnd";
}

TEST(ModuleTest, ClassesAreExportedWholeAndNothingElse) {
    const char* const classes[] = {"CChart", "CDataset", "CGraph", "CPieChart", "CScrollGraphCtrl"};
    std::set<std::string> names;
    for (const std::string& mangled : testkit::ExportedNames(Library())) {
        const std::string name = Demangled(mangled);
        names.insert(name);
        EXPECT_TRUE(std::any_of(std::begin(classes), std::end(classes),
                                [&](const char* each) { return name.find(each) != std::string::npos; }))
            << "not meant for hosts: " << mangled << " " << name;
    }
    // Tests link what they call. These are the others: whole classes, and operations for derived classes.
    for (const char* expected :
         {"vtable for CGraphCtrl", "vtable for CDataset", "vtable for CScrollGraphCtrl",
          "vtable for CPieChartCtrl", "vtable for CPieChartPiece", "vtable for CGraph",
          "vtable for CGraphSeries", "vtable for CChartDraw", "CGraphCtrl::GetMessageMap() const",
          "CScrollGraphCtrl::GetMessageMap() const", "CGraphCtrl::SendSelchangeNotifyMessage()",
          "CGraphCtrl::SendRemoveDataNotifyMessage(int, int)", "CGraphCtrl::CalcBarSize(int&, int&, int&)",
          "CPieChartCtrl::GetPieceIndex(double)", "CPieChartCtrl::DrawPie(CDC&)",
          "CChartDraw::SaveDIB(void*, CFile&)"})
        EXPECT_EQ(names.count(expected), 1u) << expected;
}

TEST(ModuleTest, ConstructorThrowsWhenTheClassCannotBeRegistered) {
    { CGraphCtrl make_the_class; }
    ASSERT_TRUE(::UnregisterClass("MFCGraphCtrl", AfxGetInstanceHandle()));
    {
        g_registrations = 0;
        const testkit::ImportHook hook("KavlixMfc.dll", "RegisterClassA", reinterpret_cast<void*>(&NoClass));
        ASSERT_TRUE(hook.Installed());
        EXPECT_TRUE(Refuses<CResourceException>([] { CGraphCtrl graph; }));
        EXPECT_EQ(g_registrations, 1);
    }
    CGraphCtrl again;
    WNDCLASS info = {};
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "MFCGraphCtrl", &info));
    CGraphCtrl second;
    EXPECT_EQ(g_registrations, 1) << "an existing class is not registered again";
}

// The layout of the notification record is part of the interface to hosts.
static_assert(offsetof(NMGRAPHCTRL, nFlags) == sizeof(NMHDR) &&
              offsetof(NMGRAPHCTRL, pt) == sizeof(NMHDR) + 4 &&
              offsetof(NMGRAPHCTRL, nIndex) == sizeof(NMHDR) + 12 &&
              offsetof(NMGRAPHCTRL, nCount) == sizeof(NMHDR) + 16);

TEST(ModuleTest, MessageNumbersAreThoseOfHosts) {
    const UINT numbers[] = {
        WM_GRAPH_SELMARK, WM_GRAPH_SELMARKTIME, GCN_DBLCLK,    GCN_DBLCLK_CAPTION, GCN_DBLCLK_LEGEND,
        GCN_MAXIMIZE,     GCN_MOUSEMOVE,        GCN_SELCHANGE, GCN_REMOVEDATA,     GCN_SCROLL};
    const UINT expected[] = {1124, 1327, 1224, 1225, 1226, 1234, 1244, 1254, 1255, 1264};
    EXPECT_TRUE(std::equal(std::begin(numbers), std::end(numbers), expected));
}

// Kavlix.dll as a module: texts, exported names, numbers that hosts know.
#include "tests/module/GraphDialog.h"
#include "tests/support/ImportHook.h"

#include <afxwin.h>

#include <kavlix/Kavlix.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <iterator>
#include <set>

namespace {

HMODULE Library() {
    return ::GetModuleHandle("Kavlix.dll");
}

std::string Demangled(const std::string& name) {
    int status = 0;
    char* text = abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status);
    const std::string result = status == 0 ? text : "";
    std::free(text);
    return result;
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

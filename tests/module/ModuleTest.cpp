// SPDX-License-Identifier: MIT
// Kavlix.dll as a module: texts and numbers that hosts know.
#include "tests/module/GraphDialog.h"
#include "tests/support/MessageBoxWatcher.h"

#include <afxwin.h>

#include <kavlix/Kavlix.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

TEST(ModuleTest, StringTableIsFoundFromTheHost) {
    for (const auto& [id, expected] : {std::pair{5501, "Remove data before selection mark?"},
                                       {5504, "Copy"},
                                       {5505, "&Clear Selection Mark"},
                                       {5506, "&Remove Data Before Selection Mark"},
                                       {5507, "Send Selection Mark info to Tindro"}}) {
        CString text;
        EXPECT_TRUE(text.LoadString(static_cast<UINT>(id))) << id;
        EXPECT_EQ(text, expected);
    }
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(nullptr)) << "the program's state, not the library's";
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

// A misfit would end this program: tests/consumer has hosts of that kind.
TEST(ModuleTest, HeadersOfAnotherCorrectionFit) {
    testkit::MessageBoxWatcher watcher;
    for (const unsigned int version : {KAVLIX_VERSION / 100 * 100, KAVLIX_VERSION, KAVLIX_VERSION + 1})
        EXPECT_TRUE(KavlixCheckHost("CGraphCtrl", sizeof(CGraphCtrl), version));
    EXPECT_TRUE(watcher.Boxes().empty());
}

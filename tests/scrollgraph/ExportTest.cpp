// SPDX-License-Identifier: MIT
// The menu's export entry and what it sends.

#include "tests/scrollgraph/FixedZone.h"
#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/Utf8.h"

namespace {

const std::string kCopy = "57634 Copy";
const std::string kClear = "1324 &Clear Selection Mark";
const std::string kRemove = "1325 &Remove Data Before Selection Mark";
const std::string kSend = "1326 Send Selection Mark info to Tindro";
const std::string kClearGray = "1324 gray &Clear Selection Mark";
const std::string kSendGray = "1326 gray Send Selection Mark info to Tindro";

} // namespace

class ScrollExportTest : public ScrollTest {
protected:
    void SetUp() override {
        ScrollTest::SetUp();
        ASSERT_TRUE(m_zone.Works());
        Load(10);
        parent.onNoted = [this](const testkit::RecordingParent::Entry& entry) {
            if (entry.message == WM_GRAPH_SELMARKTIME)
                texts.push_back(testkit::Utf8(reinterpret_cast<LPCTSTR>(entry.lParam)));
        };
    }
    /// The traffic of the command, the exported text in place of its address.
    Strings Export() {
        texts.clear();
        Strings log = Send(WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK, 0);
        for (std::size_t i = 0; i < log.size() && i < texts.size(); ++i)
            log[i].replace(log[i].find("l="), std::string::npos, texts[i]);
        return log;
    }
    static std::string Sent(const std::string& text) { return "sent message 1327 w=0 " + text; }

    Strings texts;

private:
    FixedZone m_zone;
};

TEST_F(ScrollExportTest, TheEntryStandsAtTheEnd) {
    const struct {
        const char* name;
        bool tindro;
        int mark;
        BOOL remove;
        Strings before, items;
    } cases[] = {
        {"off", false, 3, TRUE, {"7 Own"}, {kCopy, "-", kClear, kRemove, "7 Own"}},
        {"on", true, 3, TRUE, {"7 Own"}, {kCopy, "-", kClear, kRemove, "7 Own", "-", kSend}},
        {"no mark", true, -1, FALSE, {}, {kCopy, "-", kClearGray, "-", kSendGray}},
        {"host's own", true, 3, TRUE, {"1326 Own"}, {kCopy, "-", kClear, kRemove, "1326 Own", "-"}},
    };
    for (const auto& each : cases) {
        graph.SetTindroMode(each.tindro);
        graph.SetSelectionMarkPos(each.mark);
        graph.ShowMenuRemoveDataBeforeSelectionMark(each.remove);
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        for (const std::string& item : each.before)
            menu.AppendMenu(MF_STRING, static_cast<UINT_PTR>(std::stoi(item)),
                            CString(item.substr(item.find(' ') + 1).c_str()));
        graph.InsertGraphMenu(menu);
        EXPECT_EQ(testkit::MenuItems(menu.m_hMenu), each.items) << each.name;
    }
}

TEST_F(ScrollExportTest, TheMarksTimeIsSent) {
    EXPECT_EQ(Export(), Strings{Sent("")});
    EXPECT_STREQ(graph.GetTimeInfoFromSelectionMark(), _T(""));
    graph.SetSelectionMarkPos(5);
    EXPECT_EQ(Export(), Strings{Sent("2023/11/14 22:13:25")});
    graph.SetSelectionMarkPos(9);
    EXPECT_EQ(Export(), Strings{Sent("2023/11/14 22:13:29")});
    for (const int outside : {10, -1, 1000000}) {
        graph.m_SelectionMarkPos = outside;
        EXPECT_EQ(Export(), Strings{Sent("2023/11/14 22:13:29")});
    }
    graph.m_SelectionMarkPos = 2;
    texts.clear();
    Traffic([&] { graph.SendSelectionMarkTime(); });
    EXPECT_EQ(texts, Strings{"2023/11/14 22:13:29"});
    EXPECT_STREQ(graph.GetTimeInfoFromSelectionMark(), _T("2023/11/14 22:13:29"));
}

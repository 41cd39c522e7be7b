// KavlixMonitor --check: what it prints and what it ends with.

#include "tests/monitor_app/MonitorProcess.h"

#include <gtest/gtest.h>

namespace kavlix::test {
namespace {

constexpr const char* kGood = "time,Load,Heat\n"
                              "2020-01-01 00:00:00,1,20\n"
                              "2020-01-01 00:05:00,,21\n"
                              "2020-01-01 00:10:00,3,22.5\n";

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(MonitorCheck, TellsWhatAGoodFileHolds) {
    const TempFolder folder;
    const MonitorRun run = RunMonitor({"--check", folder.Write("good.csv", kGood)});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u) << run.output << run.error;
    for (const char* part : {"good.csv", "Load", "Heat", "2020-01-01 00:00:00", "2020-01-01 00:10:00"})
        EXPECT_TRUE(Contains(run.output, part)) << part << " is missing in\n" << run.output;
    EXPECT_EQ(run.error, "");
}

TEST(MonitorCheck, NamesFileLineAndColumnAndEndsWith1WhenARowIsLeftOut) {
    const TempFolder folder;
    const std::string path =
        folder.Write("bad.csv", std::string(kGood) + "yesterday,4,5\n2020-01-01 00:20:00,5,6\n");
    const MonitorRun run = RunMonitor({"--check", path});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 1u) << run.output;
    EXPECT_TRUE(Contains(run.output, path + ":5:1: ")) << run.output;
    EXPECT_TRUE(Contains(run.output, "yesterday")) << run.output;
    EXPECT_TRUE(Contains(run.output, "2020-01-01 00:20:00")) << "what can be read is kept:\n" << run.output;
}

TEST(MonitorCheck, EndsWith2WhenNothingCanBeShown) {
    const TempFolder folder;
    struct {
        const char* what;
        std::string path;
    } const cases[] = {
        {"no such file", folder.Path("none.csv")},
        {"an empty file", folder.Write("empty.csv", "")},
        {"a header alone", folder.Write("header.csv", "time,Load\n")},
        {"binary garbage", folder.Write("garbage.csv", std::string("\x7F"
                                                                   "ELF\0\1\2\n\0\0,\xFF\xFE\n",
                                                                   14))}};
    for (const auto& given : cases) {
        const MonitorRun run = RunMonitor({"--check", given.path});
        ASSERT_TRUE(run.ended) << given.what;
        EXPECT_EQ(run.status, 2u) << given.what << "\n" << run.output;
        EXPECT_TRUE(Contains(run.output, given.path)) << given.what << "\n" << run.output;
    }
}

TEST(MonitorCheck, JoinsFilesAndKeepsTheGoodOneBesideABadOne) {
    const TempFolder folder;
    const std::string good = folder.Write("good.csv", kGood);
    const MonitorRun run = RunMonitor({"--check", good, folder.Path("none.csv")});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 1u) << run.output;
    EXPECT_TRUE(Contains(run.output, "none.csv")) << run.output;
    EXPECT_TRUE(Contains(run.output, "Heat")) << run.output;
}

TEST(MonitorCheck, FileNamesWithBlanksAndSignsOpen) {
    const TempFolder folder;
    const MonitorRun run = RunMonitor({"--check", folder.Write("name with blanks & (signs).csv", kGood)});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u) << run.output << run.error;
}

TEST(MonitorCommandLine, WrongOnesAreToldAndEndWith2) {
    struct {
        std::vector<std::string> arguments;
        const char* told;
    } const cases[] = {{{"--size", "wide"}, "--size"},
                       {{"--style", "pie"}, "--style"},
                       {{"--seconds", "-1"}, "--seconds"},
                       {{"--check"}, "--check"},
                       {{"--frobnicate"}, "--frobnicate"}};
    for (const auto& given : cases) {
        const MonitorRun run = RunMonitor(given.arguments);
        ASSERT_TRUE(run.ended) << given.told;
        EXPECT_EQ(run.status, 2u) << given.told;
        EXPECT_TRUE(Contains(run.error, given.told)) << run.error;
        EXPECT_EQ(run.output, "") << given.told;
    }
}

TEST(MonitorCommandLine, HelpNamesEveryOption) {
    const MonitorRun run = RunMonitor({"--help"});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u);
    for (const char* option : {"--check", "--shot", "--seconds", "--size", "--style"})
        EXPECT_TRUE(Contains(run.output, option)) << option;
}

} // namespace
} // namespace kavlix::test

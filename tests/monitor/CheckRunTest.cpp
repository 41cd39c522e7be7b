// KavlixMonitor --check: its output and its exit status.

#include <gtest/gtest.h>

#include "tests/monitor/MonitorProcess.h"

namespace kavlix::test {
namespace {

constexpr const char* kGood = "time,Load,Heat\n"
                              "2020-01-01 00:00:00,1,20\n"
                              "2020-01-01 00:05:00,,21\n"
                              "2020-01-01 00:10:00,3,22.5\n";

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(MonitorCheck, TellsWhatFilesHoldAndEndsWithWhatWasLeftOut) {
    const TempFolder folder;
    const std::string bad =
        folder.Write("bad.csv", std::string(kGood) + "yesterday,4,5\n2020-01-01 00:20:00,5,6\n");
    const std::string none = folder.Path("none.csv");
    const struct {
        std::vector<std::string> files;
        unsigned status;
        std::vector<std::string> told;
    } cases[] = {
        {{folder.Write("name with blanks & (signs).csv", kGood)}, 0, {"Load", "Heat", "2020-01-01 00:10:00"}},
        {{bad}, 1, {bad + ":5:1: ", "yesterday", "2020-01-01 00:20:00"}},
        {{none}, 2, {none}},
    };
    for (const auto& given : cases) {
        std::vector<std::string> arguments = given.files;
        arguments.insert(arguments.begin(), "--check");
        const MonitorRun run = RunMonitor(arguments);
        EXPECT_EQ(run.status, given.status) << arguments.back() << "\n" << run.output << run.error;
        EXPECT_TRUE(given.status > 0 || run.error.empty()) << run.error;
        for (const std::string& part : given.told)
            EXPECT_TRUE(Contains(run.output, part)) << part << " is missing in\n" << run.output;
    }
}

TEST(MonitorCommandLine, WrongOnesAreToldAndEndWith2) {
    const MonitorRun run = RunMonitor({"--size", "wide"});
    EXPECT_EQ(run.status, 2u);
    EXPECT_TRUE(Contains(run.error, "--size")) << run.error;
    EXPECT_EQ(run.output, "");
    const MonitorRun help = RunMonitor({"--help"});
    EXPECT_EQ(help.status, 0u);
    EXPECT_TRUE(Contains(help.output, "--check")) << help.output;
}

} // namespace
} // namespace kavlix::test

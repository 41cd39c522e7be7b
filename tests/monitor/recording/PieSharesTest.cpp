// SPDX-License-Identifier: MIT
// Shares of a whole, values at a row of joined files, and parts of the memory.

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "monitor/recording/JoinedSamples.h"
#include "monitor/recording/MemoryParts.h"
#include "monitor/recording/PieShares.h"

namespace kavlix::recording {
namespace {

TEST(PieShares, TakesPartsOfAWholeAndNamesTheRest) {
    struct {
        std::vector<double> values;
        std::vector<std::size_t> parts;
        std::vector<double> shares;
        double total;
        const char* leftOut;
    } const cases[] = {
        {{-1, 6, NAN, 2, -0.5}, {1, 3}, {0.75, 0.25}, 8, "Left out: a, e (negative), c (no value)"},
        {{INFINITY, -2}, {}, {}, 0, "Left out: b (negative), a (no value)"},
        {{0, 0}, {0, 1}, {0, 0}, 0, ""},
        {{1e308, 1e308}, {0, 1}, {0.5, 0.5}, INFINITY, ""},
    };
    for (const auto& given : cases) {
        SCOPED_TRACE(testing::PrintToString(given.values));
        const PieShares shares = SharesOf(given.values);
        ASSERT_EQ(shares.parts.size(), given.parts.size());
        for (std::size_t i = 0; i < given.parts.size(); ++i) {
            EXPECT_EQ(shares.parts[i].index, given.parts[i]);
            EXPECT_EQ(shares.parts[i].value, given.values[given.parts[i]]);
            EXPECT_DOUBLE_EQ(shares.parts[i].share, given.shares[i]);
        }
        EXPECT_EQ(shares.total, given.total);
        EXPECT_EQ(LeftOutText(shares, {"a", "b", "c", "d", "e"}), given.leftOut);
    }
}

TEST(PieShares, OfJoinedFilesTakesTheValueBesideTheRowWithinTheFilesOwnInterval) {
    Recording recording;
    recording.times = {0, 20, 60, 80, 300, 320};
    recording.series = {{"even", 0, {1, NAN, 2, NAN, 3, NAN}}, {"odd", 1, {NAN, 5, NAN, 6, NAN, 7}}};
    recording.files.resize(2);
    for (FileSummary& file : recording.files)
        file.interval = 60;
    EXPECT_EQ(ValuesAt(recording, 3), (std::vector<double>{2, 6}));
    EXPECT_EQ(ValuesAt(recording, 0), (std::vector<double>{1, 5}));
    recording.files[0].interval = 20;
    EXPECT_TRUE(std::isnan(ValuesAt(recording, 3)[0])) << "a whole interval away is another row's";
    recording.files[0].interval = 60;
    EXPECT_EQ(LastFullRow(recording), 5u);
    recording.times = {0, 20, 60, 80, 300, 400};
    EXPECT_EQ(LastFullRow(recording), 3u) << "the last with both";
    recording.times = {0, 100, 200, 300, 400, 500};
    EXPECT_EQ(LastFullRow(recording), 5u) << "no row has both";
}

TEST(MemoryParts, MakeUpTheWholeWhateverIsTold) {
    constexpr std::uint64_t MB = 1024 * 1024;
    std::map<MemoryPart::Kind, std::uint64_t> bytes;
    for (const MemoryPart& part : PartsOf({100, 60, 5, 10, 50, 20}))
        bytes[part.kind] = part.bytes;
    EXPECT_EQ(bytes[MemoryPart::Own], 5u);
    EXPECT_EQ(bytes[MemoryPart::Others], 25u);
    EXPECT_EQ(bytes[MemoryPart::Available], 60u);
    EXPECT_EQ(bytes[MemoryPart::PageFileUsed], 20u);
    EXPECT_EQ(PartsOf({100, 95, 7, 9, 10, 99})[0].bytes, 5u) << "no more than is in use";
    EXPECT_EQ(FormatBytes(1023), "1023 bytes");
    EXPECT_EQ(FormatBytes(1023.6 * 1024), "1.0 MB");
    EXPECT_EQ(FormatBytes(99.94 * MB), "99.9 MB");
    EXPECT_EQ(FormatBytes(99.96 * MB), "100 MB");
}

} // namespace
} // namespace kavlix::recording

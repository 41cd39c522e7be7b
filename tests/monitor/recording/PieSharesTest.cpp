// Shares of a whole, values at a row of joined files, and parts of the memory.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <tuple>

#include "monitor/recording/JoinedSamples.h"
#include "monitor/recording/MemoryParts.h"
#include "monitor/recording/PieShares.h"

namespace kavlix::recording {
namespace {

constexpr double kGap = NAN;
constexpr double kHuge = DBL_MAX;
constexpr double kTiny = DBL_TRUE_MIN;

TEST(PieShares, TakesPartsOfAWholeAndNamesTheRest) {
    struct {
        std::vector<double> values;
        std::vector<std::size_t> parts;
        std::vector<double> shares;
        double total;
        const char* leftOut;
    } const cases[] = {
        {{}, {}, {}, 0, ""},
        {{3, 1}, {0, 1}, {0.75, 0.25}, 4, ""},
        {{-1, 6, kGap, 2, -0.5}, {1, 3}, {0.75, 0.25}, 8, "Left out: a, e (negative), c (no value)"},
        {{INFINITY, 5}, {1}, {1}, 5, "Left out: a (no value)"},
        {{-INFINITY, -2}, {}, {}, 0, "Left out: b (negative), a (no value)"},
        {{0, 0}, {0, 1}, {0, 0}, 0, ""},
        {{0, 7, -0.0}, {0, 1, 2}, {0, 1, 0}, 7, ""},
        {{kHuge, kHuge, 0}, {0, 1, 2}, {0.5, 0.5, 0}, INFINITY, ""},
        {{kTiny, kTiny}, {0, 1}, {0.5, 0.5}, 2 * kTiny, ""},
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
    recording.series = {{"even", 0, {1, kGap, 2, kGap, 3, kGap}}, {"odd", 1, {kGap, 5, kGap, 6, kGap, 7}}};
    recording.files.resize(2);
    for (FileSummary& file : recording.files)
        file.interval = 60;
    EXPECT_EQ(ValuesAt(recording, 3), (std::vector<double>{2, 6}));
    EXPECT_EQ(ValuesAt(recording, 0), (std::vector<double>{1, 5}));
    recording.files[0].interval = 20;
    EXPECT_TRUE(std::isnan(ValuesAt(recording, 3)[0])) << "a whole interval away is another row's";
    for (FileSummary& file : recording.files)
        file.interval = 60;
    EXPECT_EQ(LastFullRow(recording), 5u);
    recording.times = {0, 20, 60, 80, 300, 400};
    EXPECT_EQ(LastFullRow(recording), 3u) << "the last with both";
    recording.files.resize(1);
    EXPECT_EQ(LastFullRow(recording), 5u);
    EXPECT_TRUE(std::isnan(ValuesAt(recording, 0)[1])) << "a gap within one file stays one";
}

TEST(MemoryParts, MakeUpTheWholeWhateverIsTold) {
    constexpr std::uint64_t MB = 1024 * 1024;
    using Kinds = std::vector<MemoryPart::Kind>;
    using Bytes = std::vector<std::uint64_t>;
    const Kinds two = {MemoryPart::Others, MemoryPart::Available};
    const Kinds all = {MemoryPart::Own,       MemoryPart::Others,       MemoryPart::Kernel,
                       MemoryPart::Available, MemoryPart::PageFileUsed, MemoryPart::PageFileFree};
    const std::tuple<MachineMemory, Kinds, Bytes> cases[] = {
        {MachineMemory{100, 60, {}, {}, 0, 0}, two, Bytes{40, 60}},
        {MachineMemory{100, 60, 5, 10, 50, 20}, all, Bytes{5, 25, 10, 60, 20, 30}},
        {MachineMemory{100, 95, 7, 9, 10, 99}, all, Bytes{5, 0, 0, 95, 10, 0}},
        {MachineMemory{100, 120, {}, {}, 0, 0}, two, Bytes{0, 100}}};
    for (const auto& [memory, expectedKinds, expectedBytes] : cases) {
        Kinds kinds;
        Bytes bytes;
        for (const MemoryPart& part : PartsOf(memory)) {
            kinds.push_back(part.kind);
            bytes.push_back(part.bytes);
        }
        EXPECT_EQ(std::tuple(kinds, bytes), std::tuple(expectedKinds, expectedBytes));
    }
    const std::pair<double, const char*> texts[] = {{0, "0 bytes"},
                                                    {1023, "1023 bytes"},
                                                    {1024, "1.0 KB"},
                                                    {1023.4 * 1024, "1023 KB"},
                                                    {1023.6 * 1024, "1.0 MB"},
                                                    {99.94 * MB, "99.9 MB"},
                                                    {99.96 * MB, "100 MB"},
                                                    {23.54 * 1024 * MB, "23.5 GB"},
                                                    {1.8e22, "15613 EB"}};
    for (const auto& [bytes, text] : texts)
        EXPECT_EQ(FormatBytes(bytes), text);
}

} // namespace
} // namespace kavlix::recording

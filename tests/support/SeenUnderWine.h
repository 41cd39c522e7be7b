// SPDX-License-Identifier: MIT
// Expectations that rest on what only Wine was seen to do.
#pragma once

#include "tests/support/UnderWine.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <optional>

namespace testkit {

/// A failed expectation is a failure under Wine, and a note on Windows, while this object exists: what it expects is
/// documented nowhere (the pixels of GDI's strokes, the insides of system dialogs) and was only seen under Wine.
class SeenUnderWine {
public:
    SeenUnderWine() {
        if (!UnderWine())
            m_reporter.emplace(&m_results);
    }
    SeenUnderWine(const SeenUnderWine&) = delete;
    SeenUnderWine& operator=(const SeenUnderWine&) = delete;
    ~SeenUnderWine() {
        m_reporter.reset();
        for (int i = 0; i < m_results.size(); ++i)
            if (const testing::TestPartResult& part = m_results.GetTestPartResult(i); part.failed())
                Note(part.file_name() != nullptr ? part.file_name() : "", part.line_number(), part.message());
    }

private:
    testing::TestPartResultArray m_results;
    std::optional<testing::ScopedFakeTestPartResultReporter> m_reporter;
};

} // namespace testkit

/// One expectation of that kind: ONLY_SEEN_UNDER_WINE(EXPECT_EQ(a, b) << "why").
#define ONLY_SEEN_UNDER_WINE(...)                                                                            \
    do {                                                                                                     \
        const testkit::SeenUnderWine seenUnderWine;                                                          \
        __VA_ARGS__;                                                                                         \
    } while (false)

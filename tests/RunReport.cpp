// SPDX-License-Identifier: MIT
// What run-tests.cmd asks of a test program: its counts, and its end when it hangs.
#include "tests/support/UnderWine.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr UINT kHung = 1460; // ERROR_TIMEOUT

/// Names the tests with notes, and writes the counts as commands into the file that KAVLIX_TEST_COUNTS names.
class Counts : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { m_notesBefore = testkit::notes; }
    void OnTestEnd(const testing::TestInfo& test) override {
        if (testkit::notes != m_notesBefore)
            std::printf("%d notes in %s.%s\n", testkit::notes - m_notesBefore, test.test_suite_name(),
                        test.name());
    }
    void OnTestProgramEnd(const testing::UnitTest& all) override {
        const char* const path = std::getenv("KAVLIX_TEST_COUNTS");
        std::FILE* const file = path != nullptr ? std::fopen(path, "w") : nullptr;
        if (file == nullptr)
            return;
        std::fprintf(file, "set tests=%d\nset failed=%d\nset skipped=%d\nset notes=%d\n",
                     all.test_to_run_count(), all.failed_test_count(), all.skipped_test_count(),
                     testkit::notes);
        std::fclose(file);
    }

    int m_notesBefore = 0;
};

/// Ends the process after the seconds that KAVLIX_TEST_SECONDS tells.
DWORD WINAPI EndHungProgram(void* seconds) {
    ::Sleep(static_cast<DWORD>(reinterpret_cast<UINT_PTR>(seconds)) * 1000);
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "\nFAULT no end after the time allowed, in test %s.%s\n",
                 test != nullptr ? test->test_suite_name() : "(none)", test != nullptr ? test->name() : "");
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), kHung);
    return 0;
}

const bool installed = [] {
    ::SetErrorMode(SEM_FAILCRITICALERRORS |
                   SEM_NOGPFAULTERRORBOX); // no boxes of the system wait for an answer
    testing::UnitTest::GetInstance()->listeners().Append(new Counts);
    const char* const seconds = std::getenv("KAVLIX_TEST_SECONDS");
    if (seconds != nullptr)
        ::CloseHandle(::CreateThread(nullptr, 0, &EndHungProgram,
                                     reinterpret_cast<void*>(static_cast<UINT_PTR>(std::atoi(seconds))), 0,
                                     nullptr));
    return true;
}();

} // namespace

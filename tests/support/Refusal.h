// SPDX-License-Identifier: MIT
// What tests of errors share: refused arguments and thrown exceptions.
#pragma once

#include <afx.h>

#include <gtest/gtest.h>

/// A debug build ends at an assertion; a release build throws CInvalidArgException*.
#ifdef _DEBUG
#define EXPECT_REFUSED(statement) EXPECT_DEATH(statement, "assertion failed")
#else
#define EXPECT_REFUSED(statement)                                                                            \
    do {                                                                                                     \
        bool refused = false;                                                                                \
        try {                                                                                                \
            statement;                                                                                       \
        } catch (CInvalidArgException * exception) {                                                         \
            exception->Delete();                                                                             \
            refused = true;                                                                                  \
        }                                                                                                    \
        EXPECT_TRUE(refused) << #statement;                                                                  \
    } while (false)
#endif

/// The `m_cause` of the EXCEPTION* that `work` throws, or -1 if it throws none.
template <class EXCEPTION, class WORK> int CauseOf(WORK work) {
    try {
        work();
    } catch (EXCEPTION* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

/// Whether `work` throws an EXCEPTION*.
template <class EXCEPTION, class WORK> bool Throws(WORK work) {
    try {
        work();
    } catch (EXCEPTION* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

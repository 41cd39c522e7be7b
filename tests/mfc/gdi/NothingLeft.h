#pragma once

#include "tests/support/GdiCounter.h"

#include <afxwin.h>

#include <gtest/gtest.h>

/// Expects that `work` leaves no system object behind, apart from what the first time makes and keeps.
template <class WORK> void ExpectNothingLeft(WORK work) {
    const auto run = [&](int times) {
        for (int i = 0; i < times; ++i)
            work();
        AfxDeleteTempGdiMaps();
    };
    run(1);
    const testkit::ObjectCounts before = testkit::CountObjects();
    run(20);
    EXPECT_EQ(before, testkit::CountObjects());
}

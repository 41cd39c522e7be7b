// SPDX-License-Identifier: MIT
// Nearest samples and groups of bars against walks over every sample.

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <random>
#include <vector>

#include "graphctrl/core/HitTest.h"

namespace kavlix {
namespace {

/// A question to the hit test.
struct Question {
    double min, max;
    Rect plot;
    std::vector<int> sizes;
    Point point;
};

// Both answers below come from looking at every sample in turn, without the code under test or its parts.

int NearestByWalk(const Question& question) {
    const double range = question.max - question.min;
    const int width = question.plot.right - question.plot.left;
    int found = -1;
    double best = 1000000;
    for (const int size : question.sizes) {
        for (int i = 0; i < size; ++i) {
            if (range == 0)
                continue;
            const double position = std::trunc((i - question.min) * width / range + question.plot.left);
            const double distance = std::fabs(position - question.point.x);
            if (distance < best) { // never for a position that is no number
                best = distance;
                found = i;
            }
        }
        if (best < 1000000)
            break;
    }
    return found;
}

int GroupByWalk(const Question& question) {
    const double range = question.max - question.min;
    const Rect& plot = question.plot;
    long long datasets = 0, visible = 0;
    double last = -1;
    int first_size = 0;
    for (const int size : question.sizes) {
        if (size <= 0)
            continue;
        ++datasets;
        if (first_size == 0)
            first_size = size;
        if (visible > 0)
            continue;
        for (int i = 0; i < size; ++i) {
            if (question.min <= i && i <= question.max) {
                ++visible;
                last = i;
            }
        }
    }
    if (visible == 0)
        return -1;
    const double exact = range <= 0 ? 0 : (last - question.min) * (plot.right - plot.left) / range;
    const double limit = kCoordinateLimit; // of what can be drawn
    const long long span = std::isnan(exact) ? 0 : static_cast<long long>(std::clamp(exact, -limit, limit));
    const long long bar = span / visible / (datasets + 1);
    long long slot = 0;
    for (int i = 0; i < first_size; ++i) {
        if (i < question.min)
            continue;
        const long long left = plot.left + slot * (bar + bar * datasets);
        if (question.point.x >= left - bar / 2 && question.point.x < left + bar * datasets + bar / 2 &&
            question.point.y >= plot.top && question.point.y < plot.bottom)
            return i;
        if (++slot == visible)
            break;
    }
    return -1;
}

class Questions {
public:
    Question Next() {
        Question question;
        question.min = End();
        const double spans[] = {0, Below(60) * 1.0, Unit() * std::pow(10, Below(24) - 12),
                                std::fabs(Unit()) * 60};
        question.max = Below(4) == 0 ? End() : question.min + spans[Below(4)];
        const int widths[] = {3370, 3370, 1, 0, -1, -3370, 37 * Below(600), 983040};
        question.plot.left = Below(3) == 0 ? Below(20001) - 10000 : 2230;
        question.plot.right = question.plot.left + widths[Below(8)];
        question.plot.top = 1100;
        question.plot.bottom = 3800;
        question.sizes.resize(static_cast<std::size_t>(1 + Below(Below(4) == 0 ? 13 : 3)));
        for (int& size : question.sizes)
            size = Below(3) == 0 ? 0 : Below(51);
        const int reach = Below(5) == 0 ? 3000000 : 9000;
        question.point = {Below(2 * reach) - reach, Below(4500)};
        if (Below(2) == 0)
            question.point = {question.plot.left + Below(widths[Below(2)] + 1), 1100 + Below(2700)};
        return question;
    }

private:
    int Below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    double Unit() { return Below(1000001) / 500000.0 - 1; }
    /// An end of a visible range: whole or not, near the samples or far from them, or no number at all.
    double End() {
        const double odd[] = {0.0, -0.0, NAN, INFINITY, -INFINITY, DBL_MAX, -DBL_MAX, 5e-324, 1e9, -1e18};
        const int kind = Below(8);
        if (kind == 0)
            return odd[Below(10)];
        return kind == 1 ? Unit() * std::pow(10, Below(60) - 20) : kind < 4 ? Below(60) : Unit() * 60;
    }

    std::mt19937 m_random{3};
};

/// Compares both answers with those of the walks, and counts those that say more than "none" or "the first".
void Compare(const Question& question, int& samples, int& groups) {
    const int count = static_cast<int>(question.sizes.size());
    const int nearest = NearestByWalk(question), group = GroupByWalk(question);
    const LinearMap map(question.min, question.max, question.plot.left, question.plot.Width());
    ASSERT_EQ(NearestIndex(map, question.sizes.data(), count, question.point.x), nearest);
    ASSERT_EQ(
        BarGroupAt(question.sizes.data(), count, question.min, question.max, question.plot, question.point),
        group);
    samples += nearest > 0;
    groups += group > 0;
}

TEST(HitTestTest, NearestAndGroupEqualTheWalkOverEverySample) {
    Questions questions;
    int samples = 0, groups = 0;
    for (int round = 0; round < 200000; ++round)
        ASSERT_NO_FATAL_FAILURE(Compare(questions.Next(), samples, groups));
    EXPECT_GT(samples, 40000);
    EXPECT_GT(groups, 4000);
}

TEST(HitTestTest, TheLengthOfTheHistoryDoesNotCount) {
    // Walking over these samples would take hours.
    const int size = INT_MAX;
    for (int i = 0; i < 2000; ++i) {
        const int begin = 1000000 * i;
        EXPECT_EQ(NearestIndex(LinearMap(begin, begin + 10, 0, 3000), &size, 1, 910), begin + 3);
        EXPECT_EQ(BarGroupAt(&size, 1, begin, begin + 10, {0, 0, 3300, 100}, {910, 50}), begin + 3);
    }
}

} // namespace
} // namespace kavlix

// SPDX-License-Identifier: MIT
// ChunkedArray against a deque.
#include "kavlix/ChunkedArray.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>
#include <string>

using kavlix::ChunkedArray;

TEST(ChunkedArrayTest, HoldWhatADequeHolds) {
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        ChunkedArray<std::string, 8> pieces;
        std::deque<std::string> model;
        for (int step = 0; step < 60; ++step) {
            const std::size_t some = random() % (model.size() + 1);
            switch (random() % 6) {
            case 0:
                pieces.RemoveHead(some);
                model.erase(model.begin(), model.begin() + static_cast<std::ptrdiff_t>(some));
                break;
            case 1:
                pieces.RemoveTail(some);
                model.resize(model.size() - some);
                break;
            case 2:
                if (random() % 8 == 0) {
                    pieces.Clear();
                    model.clear();
                }
                break;
            default:
                for (std::size_t i = 0; i < 1 + random() % 20; ++i) {
                    model.push_back(std::to_string(random()));
                    pieces.Add(model.back());
                }
            }
            ASSERT_EQ(pieces.Size(), model.size());
            ASSERT_EQ(pieces.IsEmpty(), model.empty());
            for (std::size_t i = 0; i < model.size(); ++i)
                ASSERT_EQ(pieces[i], model[i]);
            if (!model.empty()) {
                ASSERT_EQ(pieces.Back(), model.back());
            }
        }
    }
}

// SPDX-License-Identifier: MIT
#include <cstring>

#include <gtest/gtest.h>

#include <tarvik/core/TObject.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Core {

namespace {

TEST(BusBlockTest, CountsBlocksMadeAndNotYetFreed) {
    const long before = BusTesting::LiveBlocks();
    void* block = AllocateBusBlock(64);
    void* empty = AllocateBusBlock(0);
    ASSERT_NE(block, nullptr);
    ASSERT_NE(empty, nullptr);
    std::memset(block, 7, 64);
    EXPECT_EQ(BusTesting::LiveBlocks(), before + 2);
    FreeBusBlock(block);
    FreeBusBlock(empty);
    FreeBusBlock(nullptr);
    EXPECT_EQ(BusTesting::LiveBlocks(), before);
}

}  // namespace
}  // namespace Tarvik::Core

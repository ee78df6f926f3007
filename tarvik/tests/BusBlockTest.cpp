// SPDX-License-Identifier: MIT
#include <cstring>

#include <gtest/gtest.h>

#include <tarvik/core/BusBlock.h>

namespace Tarvik::Core {

namespace {

TEST(BusBlockTest, CountsBlocksMadeAndNotYetFreed) {
    const long before = LiveBusBlocks();
    void* block = AllocateBusBlock(64);
    void* empty = AllocateBusBlock(0);
    ASSERT_NE(block, nullptr);
    ASSERT_NE(empty, nullptr);
    std::memset(block, 7, 64);
    EXPECT_EQ(LiveBusBlocks(), before + 2);
    FreeBusBlock(block);
    FreeBusBlock(empty);
    FreeBusBlock(nullptr);
    EXPECT_EQ(LiveBusBlocks(), before);
}

}  // namespace
}  // namespace Tarvik::Core

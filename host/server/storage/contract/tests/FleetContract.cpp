// SPDX-License-Identifier: MIT
#include <atomic>
#include <thread>

#include "host/server/storage/contract/tests/StorageContract.h"

namespace Tarvik::Server {

namespace {

FleetRecord Meridian() {
    return {{}, "Meridian 船", 477123456, 9134270, "VRAB2", "Bulk carrier", 229.5, 1.0 / 3.0};
}

TEST_P(StorageContract, VesselsOfAFleetAreAddedChangedAndRemoved) {
    EXPECT_TRUE(Fleet().LoadFleet("ann").Value().empty());
    FleetRecord first = Meridian();
    first.id = Fleet().AddVessel("ann", first).Value();
    FleetRecord second{{}, "Raft", 0, 0, "", "", 0, 0};
    second.id = Fleet().AddVessel("ann", second).Value();
    EXPECT_NE(first.id, second.id);
    EXPECT_EQ(Fleet().LoadFleet("ann").Value(), (std::vector{first, second}));
    second = {second.id, "Ferry", 201000000, 0, "A", "Ferry", 1, 2};
    ASSERT_TRUE(Fleet().SetVessel("ann", second));
    Reopen();
    EXPECT_EQ(Fleet().LoadFleet("ann").Value(), (std::vector{first, second}));
    ASSERT_TRUE(Fleet().RemoveVessel("ann", first.id));
    EXPECT_EQ(Fleet().LoadFleet("ann").Value(), std::vector{second});
    EXPECT_EQ(ReasonOf(Fleet().RemoveVessel("ann", first.id)), FaultReason::UnknownVessel);
    EXPECT_EQ(ReasonOf(Fleet().SetVessel("ann", first)), FaultReason::UnknownVessel);
    EXPECT_GT(std::stoll(Fleet().AddVessel("ann", Meridian()).Value()), std::stoll(second.id));
}

TEST_P(StorageContract, FleetsOfUsersAreTheirOwn) {
    FleetRecord anns = Meridian();
    anns.id = Fleet().AddVessel("ann", anns).Value();
    EXPECT_TRUE(Fleet().LoadFleet("bob").Value().empty());
    EXPECT_EQ(ReasonOf(Fleet().SetVessel("bob", anns)), FaultReason::UnknownVessel);
    EXPECT_EQ(ReasonOf(Fleet().RemoveVessel("bob", anns.id)), FaultReason::UnknownVessel);
    EXPECT_EQ(ReasonOf(Fleet().RemoveVessel("ann", MakeCategory())), FaultReason::UnknownVessel);
    EXPECT_EQ(Fleet().LoadFleet("ann").Value(), std::vector{anns});
}

TEST_P(StorageContract, FleetGrowsToItsLimitAndNotBeyondAlsoByManyAtOnce) {
    constexpr int kAdders = 8;
    const FleetRecord raft{{}, "Raft", 0, 0, "", "", 0, 0};
    std::atomic<std::size_t> added = 0;
    std::vector<std::thread> adders;
    adders.reserve(kAdders);
    for (int i = 0; i < kAdders; ++i) {
        adders.emplace_back([&] {
            auto outcome = Fleet().AddVessel("ann", raft);
            for (; outcome; outcome = Fleet().AddVessel("ann", raft)) {
                ++added;
            }
            EXPECT_EQ(outcome.GetFault().reason, FaultReason::ListFull);
        });
    }
    for (std::thread& adder : adders) {
        adder.join();
    }
    EXPECT_EQ(added, kMostVessels);
    EXPECT_EQ(Fleet().LoadFleet("ann").Value().size(), kMostVessels);
    EXPECT_TRUE(Fleet().AddVessel("bob", raft));
}

}  // namespace
}  // namespace Tarvik::Server

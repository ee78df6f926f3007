// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/StorageContract.h"

namespace Tarvik::Server {

namespace {

TEST_P(StorageContract, OwnPortsAreAddedChangedAndRemoved) {
    EXPECT_TRUE(Places().LoadPlaces("ann").Value().empty());
    PlaceRecord first{{}, "Berth 7 船", 1.0 / 3.0, -90};
    first.id = Places().AddPlace("ann", first).Value();
    PlaceRecord second{{}, "Anchorage", -180, 90};
    second.id = Places().AddPlace("ann", second).Value();
    EXPECT_EQ(Places().LoadPlaces("ann").Value(), (std::vector{first, second}));
    second = {second.id, "Anchorage B", 4.05, 51.98};
    ASSERT_TRUE(Places().SetPlace("ann", second));
    Reopen();
    EXPECT_EQ(Places().LoadPlaces("ann").Value(), (std::vector{first, second}));
    ASSERT_TRUE(Places().RemovePlace("ann", first.id));
    EXPECT_EQ(Places().LoadPlaces("ann").Value(), std::vector{second});
    EXPECT_EQ(ReasonOf(Places().RemovePlace("ann", first.id)), FaultReason::UnknownPlace);
    EXPECT_EQ(ReasonOf(Places().SetPlace("ann", first)), FaultReason::UnknownPlace);
}

TEST_P(StorageContract, OwnPortsOfUsersAreTheirOwnAndHaveIdsOfNobodyElse) {
    PlaceRecord anns{{}, "Berth", 1, 2};
    anns.id = Places().AddPlace("ann", anns).Value();
    EXPECT_NE(Fleet().AddVessel("ann", {{}, "Raft", 0, 0, "", "", 0, 0}).Value(), anns.id);
    EXPECT_TRUE(Places().LoadPlaces("bob").Value().empty());
    EXPECT_EQ(ReasonOf(Places().SetPlace("bob", anns)), FaultReason::UnknownPlace);
    EXPECT_EQ(ReasonOf(Places().RemovePlace("bob", anns.id)), FaultReason::UnknownPlace);
    EXPECT_EQ(Places().LoadPlaces("ann").Value(), std::vector{anns});
}

TEST_P(StorageContract, OwnPortsHaveTheirLimit) {
    const PlaceRecord place{{}, "Berth", 1, 2};
    for (std::size_t i = 0; i < kMostPlaces; ++i) {
        ASSERT_TRUE(Places().AddPlace("ann", place));
    }
    EXPECT_EQ(ReasonOf(Places().AddPlace("ann", place)), FaultReason::ListFull);
    EXPECT_TRUE(Places().AddPlace("bob", place));
}

}  // namespace
}  // namespace Tarvik::Server

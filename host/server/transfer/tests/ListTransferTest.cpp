// SPDX-License-Identifier: MIT
// Fleets and own ports in files of exported users.
#include "host/server/transfer/tests/SampleOwner.h"
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

class ListTransferTest : public TransferTest {
  protected:
    ListTransferTest() {
        MakeSample(*from.storage, "ann");
        to.accounts.users["ann"] = {"ann", "hash of the place", false};
    }
};

FleetRecord Meridian() {
    return {{}, "Meridian \"x\"", 477123456, 9134270, "VRAB2", "油轮", 229.5, 1.0 / 3.0};
}

TEST_F(ListTransferTest, FleetGoesToTheByte) {
    ASSERT_TRUE(from.storage->Fleet().AddVessel("ann", Meridian()).Succeeded());
    ASSERT_TRUE(from.storage->Fleet().AddVessel("ann", {{}, "Raft", 0, 0, "", "", 0, 0}).Succeeded());
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_EQ(done, "imported 1 user, 2 categories, 3 voyages, 5 remarks, 2 vessels");
    ASSERT_TRUE(Export(to, {"ann", false}, "again"));
    EXPECT_EQ(Bytes("again"), Bytes());
    EXPECT_EQ(to.storage->Fleet().LoadFleet("ann").Value(), from.storage->Fleet().LoadFleet("ann").Value());
    const auto last = std::stoll(from.storage->Fleet().LoadFleet("ann").Value().back().id);
    EXPECT_GT(std::stoll(to.storage->Catalog().CreateCategory("ann", "x").Value()), last);
}

TEST_F(ListTransferTest, VoyagesFollowTheirVesselsToNewIds) {
    MakeSmall(*to.storage, "bob");
    const std::string vessel = from.storage->Fleet().AddVessel("ann", Meridian()).Value();
    auto& catalog = from.storage->Catalog();
    const auto voyages = catalog.LoadCatalog("ann").Value().at(0).voyages;
    ASSERT_TRUE(catalog.ChangeVessel("ann", voyages.at(0).id, {vessel, "Meridian", 477123456}).Succeeded());
    ASSERT_TRUE(catalog.ChangeVessel("ann", voyages.at(1).id, {"v7", "Stranger", 0}).Succeeded());
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    const std::string after = to.storage->Fleet().LoadFleet("ann").Value().at(0).id;
    EXPECT_NE(after, vessel);
    const auto moved = to.storage->Catalog().LoadCatalog("ann").Value().at(0).voyages;
    EXPECT_EQ(moved.at(0).vessel.id, after);
    EXPECT_EQ(moved.at(1).vessel.id, "v7") << "one that is not of the fleet keeps its name";
}

TEST_F(ListTransferTest, OwnPortsGoToTheByte) {
    ASSERT_TRUE(from.storage->Places().AddPlace("ann", {{}, "Berth \"7\"", 1.0 / 3.0, -90}).Succeeded());
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_EQ(done, "imported 1 user, 2 categories, 3 voyages, 5 remarks, 1 own port");
    ASSERT_TRUE(Export(to, {"ann", false}, "again"));
    EXPECT_EQ(Bytes("again"), Bytes());
    EXPECT_EQ(to.storage->Places().LoadPlaces("ann").Value(),
              from.storage->Places().LoadPlaces("ann").Value());
}

TEST_F(ListTransferTest, PortCallsFollowOwnPortsToNewIds) {
    MakeSmall(*to.storage, "bob");
    const std::string place = from.storage->Places().AddPlace("ann", {{}, "Berth 7", 4.05, 51.98}).Value();
    const std::string voyage = from.storage->Catalog().LoadCatalog("ann").Value().at(0).voyages.at(0).id;
    ASSERT_TRUE(
        from.storage->Schedule()
            .ReplacePortCalls("ann", voyage,
                              {{0, place, "Berth 7", "L", 18.52, 0, 0}, {1, "40208", "x", "D", 18.52, 0, 0}})
            .Succeeded());
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    const std::string after = to.storage->Places().LoadPlaces("ann").Value().at(0).id;
    EXPECT_NE(after, place);
    const std::string moved = to.storage->Catalog().LoadCatalog("ann").Value().at(0).voyages.at(0).id;
    const auto calls = to.storage->Schedule().LoadPortCalls("ann", moved).Value();
    EXPECT_EQ(calls.at(0).portId, after);
    EXPECT_EQ(calls.at(1).portId, "40208") << "a port of the network is the same everywhere";
}

TEST_F(ListTransferTest, UserOfNothingButAFleetIsAUser) {
    ASSERT_TRUE(to.storage->Fleet().AddVessel("zoe", Meridian()).Succeeded());
    EXPECT_EQ(to.storage->Transfer().ListOwners().Value(), std::vector<std::string>{"zoe"});
    ASSERT_TRUE(Export(to, {"zoe", false}));
    from.accounts.users["zoe"] = {"zoe", "hash", false};
    ASSERT_TRUE(Import(from)) << error;
    EXPECT_FALSE(Import(from)) << "there is a fleet already";
    ASSERT_TRUE(Import(from, {"", true})) << error;
    EXPECT_EQ(from.storage->Fleet().LoadFleet("zoe").Value().size(), 2U);
}

}  // namespace
}  // namespace Tarvik::Server

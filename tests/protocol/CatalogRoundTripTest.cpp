// SPDX-License-Identifier: MIT
#include "seaplan/protocol/PortCallCommands.h"
#include "tests/protocol/RoundTrip.h"

namespace Tarvik::Server {

namespace {

using Seaplan::VoyageStore;

class CatalogRoundTripTest : public RoundTrip {
  protected:
    CatalogRoundTripTest() {
        EXPECT_EQ(module.CreateCategory("Atlantic", ci), 0);
        EXPECT_EQ(module.CreateVoyage("New voyage - 0", ci, vi), 0);
    }

    std::string ci;
    std::string vi;
};

TEST_F(CatalogRoundTripTest, UserAndConnectionComeFromTheHost) {
    std::string user;
    EXPECT_EQ(module.EnsureConnected(), 0);
    EXPECT_EQ(module.GetUser(user), 0);
    EXPECT_EQ(user, "ann");
}

TEST_F(CatalogRoundTripTest, UserWithoutDataHasNothingToLoad) {
    VoyageStore empty;
    EXPECT_EQ(Seaplan::VoyCatalogModule(&empty).LoadAll("ann"), 0);
    host.user = "bob";
    VoyageStore bobs;
    EXPECT_EQ(Seaplan::VoyCatalogModule(&bobs).LoadAll("bob"), 1);
}

TEST_F(CatalogRoundTripTest, EverythingOfAVoyageIsLoadedAsItWasChanged) {
    EXPECT_EQ(module.RenameCategory(ci, "大西洋 ＂A＂"), 0);
    EXPECT_EQ(module.RenameVoyage(vi, "Ulsan – Oslo \xF0\x9F\x9A\xA2"), 0);
    EXPECT_EQ(module.ChangeVessel(vi, "v7", "Meridian", 477123456), 0);
    EXPECT_EQ(module.SetRouteDisplay(vi, "open"), 0);
    EXPECT_EQ(module.SetAisTracing(vi, "open"), 0);
    EXPECT_EQ(Seaplan::SaveFigures(vi, {1, 2, 3, 4, 5, 6, 500000}), 0);
    EXPECT_EQ(module.AddAisModTime(vi, "2026-03-01 08:00:00"), 0);
    const VoyageStore loaded = Load();
    ASSERT_EQ(loaded.categories.size(), 1U);
    EXPECT_EQ(loaded.categories.at(ci).cn, "大西洋 ＂A＂");
    EXPECT_EQ(loaded.categoryStates.at(ci), Seaplan::InUse);
    EXPECT_EQ(loaded.categoryVoyages.at(ci).at(vi), Seaplan::InUse);
    const Seaplan::VoyInfo& voyage = loaded.voyages.at(vi);
    EXPECT_EQ(voyage.vn, "Ulsan – Oslo \xF0\x9F\x9A\xA2");
    EXPECT_EQ(voyage.vsi, "v7");
    EXPECT_EQ(voyage.vsn, "Meridian");
    EXPECT_EQ(voyage.vsmsi, 477123456);
    EXPECT_EQ(voyage.vr, 1);
    EXPECT_EQ(voyage.va, 1);
    EXPECT_EQ(voyage.modais, 1);
    // The load puts the figure of fuel in port where the one of water in port goes, which then replaces it.
    EXPECT_EQ(voyage.figures, (Seaplan::BunkerFigures{1, 2, 0, 4, 5, 6, 500000}));
}

TEST_F(CatalogRoundTripTest, FlagsAreSwitchedOffAgain) {
    EXPECT_EQ(module.SetRouteDisplay(vi, "open"), 0);
    EXPECT_EQ(module.SetRouteDisplay(vi, "close"), 0);
    EXPECT_EQ(module.SetAisTracing(vi, "open"), 0);
    EXPECT_EQ(module.SetAisTracing(vi, "close"), 0);
    EXPECT_EQ(Load().voyages.at(vi).vr, 0);
    EXPECT_EQ(Load().voyages.at(vi).va, 0);
}

TEST_F(CatalogRoundTripTest, VoyageGoesThroughTheBinToDestruction) {
    EXPECT_EQ(module.ChangeVoyageState(vi, 4), -4) << "what is in use is not destroyed";
    EXPECT_EQ(module.ChangeVoyageState(vi, 2), 0);
    EXPECT_EQ(Load().categoryVoyages.at(ci).at(vi), Seaplan::InRecycleBin);
    EXPECT_EQ(module.ChangeVoyageState(vi, 2), -4);
    EXPECT_EQ(module.ChangeVoyageState(vi, 3), 0);
    EXPECT_EQ(Load().categoryVoyages.at(ci).at(vi), Seaplan::InUse);
    EXPECT_EQ(module.ChangeVoyageState(vi, 2), 0);
    EXPECT_EQ(module.ChangeVoyageState(vi, 4), 0);
    EXPECT_EQ(Load().voyages.count(vi), 0U);
    EXPECT_EQ(module.ChangeVoyageState(vi, 3), -4);
    EXPECT_EQ(module.RenameVoyage(vi, "x"), -4);
}

TEST_F(CatalogRoundTripTest, CategoryGoesThroughTheBinToDestructionWithItsVoyages) {
    std::string other;
    EXPECT_EQ(module.CreateCategory("Pacific", other), 0);
    EXPECT_EQ(module.ChangeCategoryState(ci, 3), -4);
    EXPECT_EQ(module.ChangeCategoryState(ci, 1), 0);
    EXPECT_EQ(Load().categoryStates.at(ci), Seaplan::InRecycleBin);
    EXPECT_EQ(Load().categoryVoyages.at(ci).at(vi), Seaplan::InUse);
    EXPECT_EQ(module.ChangeCategoryState(ci, 2), 0);
    EXPECT_EQ(Load().categoryStates.at(ci), Seaplan::InUse);
    EXPECT_EQ(module.ChangeCategoryState(ci, 1), 0);
    EXPECT_EQ(module.ChangeCategoryState(ci, 3), 0);
    EXPECT_EQ(Load().categories.count(ci), 0U);
    EXPECT_EQ(Load().voyages.count(vi), 0U);
    EXPECT_EQ(Load().categories.count(other), 1U);
}

TEST_F(CatalogRoundTripTest, NameWithAQuoteIsRefusedAndNothingChanges) {
    EXPECT_EQ(module.RenameVoyage(vi, "the \"Meridian\""), -4);
    EXPECT_EQ(module.RenameCategory(ci, "back\\"), -4);
    std::string id;
    EXPECT_EQ(module.CreateVoyage("a\"b", ci, id), -4);
    EXPECT_EQ(module.CreateCategory("a\"b", id), -4);
    EXPECT_TRUE(id.empty());
    EXPECT_EQ(Load().voyages.at(vi).vn, "New voyage - 0");
    EXPECT_EQ(Load().categories.at(ci).cn, "Atlantic");
}

TEST_F(CatalogRoundTripTest, NameOfAMegabyteIsRefusedAndNothingChanges) {
    EXPECT_EQ(module.RenameVoyage(vi, std::string(1024U * 1024U, 'n')), -4);
    EXPECT_EQ(Load().voyages.at(vi).vn, "New voyage - 0");
}

TEST_F(CatalogRoundTripTest, OtherUserReachesNothing) {
    host.user = "bob";
    std::string id;
    EXPECT_EQ(module.RenameCategory(ci, "mine"), -4);
    EXPECT_EQ(module.ChangeCategoryState(ci, 1), -4);
    EXPECT_EQ(module.CreateVoyage("mine", ci, id), -4);
    EXPECT_EQ(module.RenameVoyage(vi, "mine"), -4);
    EXPECT_EQ(module.ChangeVoyageState(vi, 2), -4);
    EXPECT_EQ(module.ChangeVessel(vi, "1", "mine", 1), -4);
    EXPECT_EQ(module.SetRouteDisplay(vi, "open"), -5);
    EXPECT_EQ(module.AddAisModTime(vi, "2026-03-01 08:00:00"), -5);
    EXPECT_EQ(Seaplan::SaveFigures(vi, {1, 1, 1, 1, 1, 1, 1}), -3);
    VoyageStore annsAsBob;
    EXPECT_EQ(Seaplan::VoyCatalogModule(&annsAsBob).LoadAll("ann"), -2);
    EXPECT_TRUE(annsAsBob.categories.empty());
    host.user = "ann";
    EXPECT_EQ(Load().voyages.at(vi).vn, "New voyage - 0");
    EXPECT_EQ(Load().voyages.at(vi).figures, Seaplan::BunkerFigures{});
}

TEST_F(CatalogRoundTripTest, AisTimesAreWrittenInChinaTimeAndReadInTheUsersZone) {
    EXPECT_EQ(module.AddAisModTime(vi, "2026-03-02 08:00:00"), 0);
    EXPECT_EQ(module.AddAisModTime(vi, "2011-10-02 07:59:59"), 0);
    EXPECT_EQ(module.AddAisModTime(vi, "2010-01-01 00:00:00"), 0);
    EXPECT_EQ(module.AddAisModTime(vi, "2026-03-02 08:00:00"), 0);
    std::vector<std::string> times;
    EXPECT_EQ(module.GetAisModTimes(vi, times), 0);
    // The second was sent as it stands, and is read as a time in UTC.
    EXPECT_EQ(times, (std::vector<std::string>{"2010-01-01 00:00:00", "2011-10-02 15:59:59",
                                               "2026-03-02 08:00:00"}));
    host.zone = "UTC";
    EXPECT_EQ(module.GetAisModTimes(vi, times), 0);
    EXPECT_EQ(times.back(), "2026-03-02 00:00:00");
}

}  // namespace
}  // namespace Tarvik::Server

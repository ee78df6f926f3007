// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using Names = std::map<std::string, int>;
using Texts = std::vector<std::string>;

class VoyCatalogControllerTest : public testing::Test {
  protected:
    VoyCatalogControllerTest() { catalog.SetVoyController(&voyages); }

    /// Category "1" with voyage "9".
    void Fill() {
        store.categories["1"].cn = "A";
        store.categoryStates["1"] = InUse;
        store.voyages["9"].vi = "9";
        store.voyages["9"].vn = "V";
        store.categoryVoyages["1"]["9"] = InUse;
    }

    TestSupport::ManualClock clock;
    TestSupport::RecordingHost host;
    VoyageStore store;
    VoyCatalogModule module{&store};
    VoyCatalogController catalog{&module, &store};
    PortDirectory directory;
    VoyPortCallModule portCalls{&store, &directory};
    VoyController voyages{&portCalls, &catalog, &store};
    std::string id;
};

TEST_F(VoyCatalogControllerTest, ConnectTellsConnectionAndUserApart) {
    std::string user;
    host.connected = false;
    EXPECT_EQ(catalog.Connect(user), -1);
    host.connected = true;
    host.user.reset();
    EXPECT_EQ(catalog.Connect(user), -2);
    host.user = "7";
    EXPECT_EQ(catalog.Connect(user), 0);
    EXPECT_EQ(user, "7");
}

TEST_F(VoyCatalogControllerTest, LoadForAnotherUserThanConnectedSendsNothing) {
    std::string user;
    EXPECT_EQ(catalog.Load("7"), -1);
    host.user = "7";
    catalog.Connect(user);
    EXPECT_EQ(catalog.Load("8"), -1);
    EXPECT_EQ(catalog.Load(""), -1);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(catalog.Load("7"), -2);
    host.Reply(3, "[]");
    EXPECT_EQ(catalog.Load("7"), 0) << "a user without data is a success";
    EXPECT_TRUE(store.categories.empty());
}

TEST_F(VoyCatalogControllerTest, UniqueNamesCountFromZeroAndNeverTakeThePlainBase) {
    catalog.MakeUniqueName("New", {}, id);
    EXPECT_EQ(id, "New - 0");
    catalog.MakeUniqueName("New", {{"New - 0", 2}, {"New - 1", 0}}, id);
    EXPECT_EQ(id, "New - 2");
}

TEST_F(VoyCatalogControllerTest, NameMapsHoldStatesByName) {
    Fill();
    store.categories["2"].cn = "stateless";
    store.voyages["8"].vn = "homeless";
    Names categories;
    Names names;
    catalog.GetNameMaps(categories, names);
    EXPECT_EQ(categories, (Names{{"A", 0}}));
    EXPECT_EQ(names, (Names{{"V", 0}, {"homeless", 1}}));
}

TEST_F(VoyCatalogControllerTest, FilledCategoryMapStopsBothTables) {
    Fill();
    Names categories{{"x", 0}};
    Names names;
    catalog.GetNameMaps(categories, names);
    EXPECT_EQ(categories.size(), 1U);
    EXPECT_TRUE(names.empty());
    categories.clear();
    names["x"] = 0;
    catalog.GetNameMaps(categories, names);
    EXPECT_EQ(categories.count("A"), 1U);
    EXPECT_EQ(names.size(), 1U);
}

TEST_F(VoyCatalogControllerTest, ListedCategoriesAreThoseInUseInOrderOfId) {
    Fill();
    store.categories["10"].cn = "B";
    store.categoryStates["10"] = InUse;
    store.categories["2"].cn = "C";
    store.categoryStates["2"] = InRecycleBin;
    Texts names;
    catalog.ListCategories(names);
    EXPECT_EQ(names, (Texts{"A", "B"}));
}

TEST_F(VoyCatalogControllerTest, AddedCategoryAndVoyageJoinTheStore) {
    EXPECT_EQ(catalog.AddCategory("A", id), -1);
    EXPECT_TRUE(store.categories.empty());
    host.Reply(4, R"({eid:0,ci:"1"})");
    EXPECT_EQ(catalog.AddCategory("A", id), 0);
    EXPECT_EQ(id, "1");
    EXPECT_EQ(store.categories.at("1").ci, "1");
    EXPECT_EQ(store.categories.at("1").cn, "A");
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    EXPECT_EQ(catalog.AddVoyage("V", "1", id), -1);
    host.Reply(5, R"({eid:0,vi:"9"})");
    EXPECT_EQ(catalog.AddVoyage("V", "1", id), 0);
    EXPECT_EQ(store.voyages.at("9").vi, "9");
    EXPECT_EQ(store.voyages.at("9").vn, "V");
    EXPECT_EQ(store.categoryVoyages.at("1").at("9"), InUse);
}

TEST_F(VoyCatalogControllerTest, IdThatTheStoreKnowsIsRefused) {
    Fill();
    host.Reply(4, R"({eid:0,ci:"1"})");
    EXPECT_EQ(catalog.AddCategory("B", id), -2);
    EXPECT_EQ(store.categories.at("1").cn, "A");
    host.Reply(5, R"({eid:0,vi:"9"})");
    EXPECT_EQ(catalog.AddVoyage("B", "1", id), -2);
    EXPECT_EQ(store.voyages.at("9").vn, "V");
}

TEST_F(VoyCatalogControllerTest, RenamingFollowsTheServer) {
    Fill();
    EXPECT_EQ(catalog.RenameCategory("", "B"), -1);
    EXPECT_EQ(catalog.RenameCategory("1", ""), -1);
    EXPECT_EQ(catalog.RenameCategory("1", "B"), -2);
    EXPECT_EQ(store.categories.at("1").cn, "A");
    host.Reply(4, "{eid:0}");
    EXPECT_EQ(catalog.RenameCategory("x", "B"), -3);
    host.Reply(4, "{eid:0}");
    EXPECT_EQ(catalog.RenameCategory("1", "B"), 0);
    EXPECT_EQ(store.categories.at("1").cn, "B");
    EXPECT_EQ(catalog.RenameVoyage("9", ""), -1);
    EXPECT_EQ(catalog.RenameVoyage("9", "W"), -2);
    host.Reply(5, "{eid:0}");
    EXPECT_EQ(catalog.RenameVoyage("x", "W"), -3);
    host.Reply(5, "{eid:0}");
    EXPECT_EQ(catalog.RenameVoyage("9", "W"), 0);
    EXPECT_EQ(store.voyages.at("9").vn, "W");
}

TEST_F(VoyCatalogControllerTest, CategoryGoesToTheBinBackAndAway) {
    Fill();
    EXPECT_EQ(catalog.DeleteCategory(""), -1);
    EXPECT_EQ(catalog.DeleteCategory("1"), -2);
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    for (int i = 0; i < 4; ++i) {
        host.Reply(4, "{eid:0}");
    }
    EXPECT_EQ(catalog.DeleteCategory("x"), -3);
    EXPECT_EQ(catalog.DeleteCategory("1"), 0);
    EXPECT_EQ(store.categoryStates.at("1"), InRecycleBin);
    EXPECT_EQ(catalog.RecoverCategory("1"), 0);
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    EXPECT_EQ(catalog.DestroyCategory("1"), 0);
    EXPECT_EQ(store.categoryStates.at("1"), Destroyed);
    const Texts sent = host.TextsOf(4);
    EXPECT_EQ(Texts(sent.end() - 3, sent.end()),
              (Texts{R"({ci:"1",type:"1"})", R"({ci:"1",type:"2"})", R"({ci:"1",type:"3"})"}));
    EXPECT_EQ(store.categories.size(), 1U) << "nothing is erased before logout";
}

TEST_F(VoyCatalogControllerTest, VoyageGoesToTheBinBackAndAway) {
    Fill();
    EXPECT_EQ(catalog.DeleteVoyage("1", ""), -1);
    EXPECT_EQ(catalog.DeleteVoyage("1", "9"), -2);
    for (int i = 0; i < 6; ++i) {
        host.Reply(5, "{eid:0}");
    }
    EXPECT_EQ(catalog.DeleteVoyage("x", "9"), -3);
    EXPECT_EQ(catalog.DeleteVoyage("", "9"), -3) << "an empty category is sent and then unknown";
    EXPECT_EQ(catalog.DeleteVoyage("1", "x"), -4);
    EXPECT_EQ(catalog.DeleteVoyage("1", "9"), 0);
    EXPECT_EQ(store.categoryVoyages["1"]["9"], InRecycleBin);
    EXPECT_EQ(catalog.RecoverVoyage("1", "9"), 0);
    EXPECT_EQ(store.categoryVoyages["1"]["9"], InUse);
    EXPECT_EQ(catalog.DestroyVoyage("1", "9"), 0);
    EXPECT_EQ(store.categoryVoyages["1"]["9"], Destroyed);
    const Texts sent = host.TextsOf(5);
    EXPECT_EQ(Texts(sent.end() - 3, sent.end()),
              (Texts{R"({vi:"9",type:"2"})", R"({vi:"9",type:"3"})", R"({vi:"9",type:"4"})"}));
}

TEST_F(VoyCatalogControllerTest, VesselWithoutIdButWithNameGoesThrough) {
    Fill();
    EXPECT_EQ(catalog.ChangeVessel("9", "", "", 1), -1);
    EXPECT_EQ(catalog.ChangeVessel("9", "", "Ship", 1), -2);
    host.Reply(5, "{eid:0}");
    EXPECT_EQ(catalog.ChangeVessel("x", "s", "Ship", 1), -3);
    host.Reply(5, "{eid:0}");
    EXPECT_EQ(catalog.ChangeVessel("9", "", "Ship", 1), 0) << "there is no vessel id to ask positions for";
    EXPECT_EQ(store.voyages.at("9").vsn, "Ship") << "the store has followed the server all the same";
    host.Reply(5, "{eid:0}");
    host.positions = {{"s", 1, 0, 100, 1.0, 2.0}};
    EXPECT_EQ(catalog.ChangeVessel("9", "s", "Ship", 1), 0);
    EXPECT_EQ(store.voyages.at("9").lastPosText, "1.000,2.000");
}

TEST_F(VoyCatalogControllerTest, FlagsFollowTheServer) {
    Fill();
    EXPECT_EQ(catalog.OpenRoute(""), -1);
    EXPECT_EQ(catalog.OpenRoute("9"), -2);
    EXPECT_EQ(store.voyages.at("9").vr, 0);
    for (int i = 0; i < 5; ++i) {
        host.Reply(5, "{eid:0}");
    }
    EXPECT_EQ(catalog.OpenRoute("x"), -3);
    EXPECT_EQ(catalog.OpenRoute("9"), 0);
    EXPECT_EQ(store.voyages.at("9").vr, 1);
    EXPECT_EQ(catalog.CloseRoute("9"), 0);
    EXPECT_EQ(store.voyages.at("9").vr, 0);
    EXPECT_EQ(catalog.OpenAis("9"), 0);
    EXPECT_EQ(store.voyages.at("9").va, 1);
    EXPECT_EQ(catalog.CloseAis("9"), 0);
    EXPECT_EQ(store.voyages.at("9").va, 0);
}

TEST_F(VoyCatalogControllerTest, VoyageInNoCategoryCountsAsDeleted) {
    Fill();
    store.categoryVoyages["1"]["9"] = Destroyed;
    store.categoryVoyages["2"]["9"] = InUse;
    int state = 7;
    EXPECT_EQ(catalog.GetVoyageState("", state), -1);
    EXPECT_EQ(catalog.GetVoyageState("none", state), 0);
    EXPECT_EQ(state, 1);
    EXPECT_EQ(catalog.GetVoyageState("9", state), 0);
    EXPECT_EQ(state, 2) << "the first category by id answers";
}

TEST_F(VoyCatalogControllerTest, AddedAisTimeIsKeptInTheRecord) {
    Fill();
    EXPECT_EQ(catalog.AddAisModTime("9", "2024-01-01 08:00"), -1) << "seconds are missing";
    EXPECT_EQ(catalog.AddAisModTime("9", ""), -1);
    EXPECT_EQ(catalog.AddAisModTime("", "2024-01-01 08:00:00"), -1);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(catalog.AddAisModTime("9", "2024-01-01 08:00:00"), -2);
    host.Reply(13, "{eid:0}");
    EXPECT_EQ(catalog.AddAisModTime("x", "2024-01-01 08:00:00"), -3);
    host.Reply(13, "{eid:0}");
    EXPECT_EQ(catalog.AddAisModTime("9", "2024-01-01 08:00:00"), 0);
    const VoyInfo& voyage = store.voyages.at("9");
    EXPECT_EQ(voyage.aisModTimes, Texts{"2024-01-01 08:00:00"});
    EXPECT_EQ(voyage.modais, 1);
    EXPECT_EQ(voyage.lastAisModTime, 1704067200);
}

TEST_F(VoyCatalogControllerTest, AisTimeThatDoesNotParseIsCountedAndKeptBeforeItFails) {
    Fill();
    host.Reply(13, "{eid:0}");
    EXPECT_EQ(catalog.AddAisModTime("9", "1999-99-99 00:00:00"), -4);
    EXPECT_EQ(store.voyages.at("9").modais, 1);
    EXPECT_EQ(store.voyages.at("9").aisModTimes.size(), 1U);
    EXPECT_EQ(store.voyages.at("9").lastAisModTime, 0);
}

TEST_F(VoyCatalogControllerTest, AisTimesAreReadOnce) {
    Fill();
    Texts times;
    EXPECT_EQ(catalog.GetAisModTimes("", times), -1);
    EXPECT_EQ(catalog.GetAisModTimes("x", times), -2);
    EXPECT_EQ(catalog.GetAisModTimes("9", times), -3);
    host.Reply(12, R"({times:["2024-01-01 00:00:00"]})");
    EXPECT_EQ(catalog.GetAisModTimes("9", times), 0);
    EXPECT_EQ(times, Texts{"2024-01-01 08:00:00"});
    times.clear();
    EXPECT_EQ(catalog.GetAisModTimes("9", times), 0);
    EXPECT_EQ(times, Texts{"2024-01-01 08:00:00"});
    EXPECT_EQ(host.TextsOf(12).size(), 2U);
}

}  // namespace
}  // namespace Tarvik::Seaplan

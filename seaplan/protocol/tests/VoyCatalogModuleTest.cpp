// SPDX-License-Identifier: MIT
#include <functional>

#include <gtest/gtest.h>

#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

class VoyCatalogModuleTest : public testing::Test {
  protected:
    TestSupport::RecordingHost host;
    VoyageStore store;
    VoyCatalogModule module{&store};

    /// Runs a command through the ladder that begins at `first`, then once with success.
    void ExpectLadder(std::uint16_t command, int first, const std::function<int()>& run) {
        host.ReplyNothing(command);
        EXPECT_EQ(run(), first);
        host.Reply(command, "no json");
        EXPECT_EQ(run(), first);
        host.Reply(command, "{}");
        EXPECT_EQ(run(), first - 1);
        host.Reply(command, "{eid:3,emsg:\"no\"}");
        EXPECT_EQ(run(), first - 2);
        host.Reply(command, "{ci:\"1\",vi:\"1\"}");
        EXPECT_EQ(run(), first - 2);
        host.Reply(command, "{eid:0,ci:\"1\",vi:\"1\"}");
        EXPECT_EQ(run(), 0);
    }
};

TEST_F(VoyCatalogModuleTest, LoadOfAnEmptyUserSendsNothing) {
    EXPECT_EQ(module.LoadAll(""), -1);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VoyCatalogModuleTest, LoadReportsAFailedExchange) {
    EXPECT_EQ(module.LoadAll("u"), -2);
    EXPECT_EQ(host.Texts(), Texts{R"(3 {ui:"u"})"});
}

TEST_F(VoyCatalogModuleTest, LoadReportsAReplyThatDoesNotParse) {
    host.Reply(3, "[{ci:");
    EXPECT_EQ(module.LoadAll("u"), -2);
    EXPECT_TRUE(store.categories.empty());
}

TEST_F(VoyCatalogModuleTest, StatusInsteadOfAListLoadsNothing) {
    for (const char* reply : {R"({eid:-1,emsg:"no"})", R"({eid:50,emsg:"no"})", "{eid:0}", "{}", "0"}) {
        host.Reply(3, reply);
        EXPECT_EQ(module.LoadAll("u"), -2) << reply;
        EXPECT_TRUE(store.categories.empty());
        EXPECT_TRUE(store.categoryStates.empty());
    }
}

TEST_F(VoyCatalogModuleTest, ConnectionAndUserComeFromTheHost) {
    std::string user;
    EXPECT_EQ(module.EnsureConnected(), 0);
    EXPECT_EQ(module.GetUser(user), 0);
    EXPECT_EQ(user, "1000001");
    host.connected = false;
    host.user.reset();
    EXPECT_EQ(module.EnsureConnected(), -1);
    EXPECT_EQ(host.logins, 1);
    EXPECT_EQ(module.GetUser(user), -1);
}

TEST_F(VoyCatalogModuleTest, CommandsLeaveTheStoreAlone) {
    host.Reply(3, R"([{ci:"1",cn:"A",voys:[{vi:"9",vn:"V"}]}])");
    EXPECT_EQ(module.LoadAll("u"), 0);
    for (int i = 0; i < 3; ++i) {
        host.Reply(4, R"({eid:0,ci:"2"})");
        host.Reply(5, R"({eid:0,vi:"8"})");
    }
    std::string id;
    EXPECT_EQ(module.CreateCategory("B", id), 0);
    EXPECT_EQ(module.RenameCategory("1", "C"), 0);
    EXPECT_EQ(module.ChangeCategoryState("1", 3), 0);
    EXPECT_EQ(module.CreateVoyage("W", "1", id), 0);
    EXPECT_EQ(module.RenameVoyage("9", "X"), 0);
    EXPECT_EQ(module.ChangeVoyageState("9", 4), 0);
    EXPECT_EQ(store.categories.size(), 1U);
    EXPECT_EQ(store.categories.at("1").cn, "A");
    EXPECT_EQ(store.voyages.at("9").vn, "V");
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    EXPECT_EQ(store.categoryVoyages.at("1").at("9"), InUse);
}

TEST_F(VoyCatalogModuleTest, LoadOfAUserWithoutDataGivesOne) {
    host.Reply(3, "[]");
    EXPECT_EQ(module.LoadAll("u"), 1);
    EXPECT_TRUE(store.categories.empty());
}

TEST_F(VoyCatalogModuleTest, LoadedStoreIsNotAskedAgainAlsoForAnotherUser) {
    host.Reply(3, R"([{ci:"1",cn:"A"}])");
    EXPECT_EQ(module.LoadAll("u"), 0);
    EXPECT_EQ(module.LoadAll("other"), 0);
    EXPECT_EQ(module.LoadAll(""), 0);
    EXPECT_EQ(host.requests.size(), 1U);
}

TEST_F(VoyCatalogModuleTest, ClearedStoreIsAskedAgain) {
    host.Reply(3, R"([{ci:"1"}])");
    host.Reply(3, R"([{ci:"2"}])");
    EXPECT_EQ(module.LoadAll("u"), 0);
    store.Clear();
    EXPECT_TRUE(store.categoryStates.empty());
    EXPECT_EQ(module.LoadAll("u"), 0);
    EXPECT_EQ(store.categories.count("2"), 1U);
}

TEST_F(VoyCatalogModuleTest, CreateCategoryLadder) {
    std::string id;
    EXPECT_EQ(module.CreateCategory("", id), -1);
    ExpectLadder(4, -2, [&] { return module.CreateCategory("A", id); });
    EXPECT_EQ(id, "1");
    EXPECT_EQ(host.Texts().back(), R"(4 {ci:"",cn:"A",type:0})");
    host.Reply(4, "{eid:0,ci:\"\"}");
    EXPECT_EQ(module.CreateCategory("A", id), -5);
    EXPECT_EQ(host.requests.size(), 7U);
}

TEST_F(VoyCatalogModuleTest, CreateVoyageLadderAndEmptyCategoryGoesOut) {
    std::string id;
    EXPECT_EQ(module.CreateVoyage("", "1", id), -1);
    EXPECT_TRUE(host.requests.empty());
    ExpectLadder(5, -2, [&] { return module.CreateVoyage("V", "", id); });
    EXPECT_EQ(host.Texts().back(), R"(5 {ci:"",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})");
    host.Reply(5, "{eid:0}");
    EXPECT_EQ(module.CreateVoyage("V", "1", id), -5);
}

TEST_F(VoyCatalogModuleTest, QuoteInANameGoesOutAndTheServerDecides) {
    std::string id = "before";
    host.Reply(4, R"({eid:22,emsg:"bad text"})");
    EXPECT_EQ(module.CreateCategory("a\"b", id), -4);
    EXPECT_EQ(host.Texts(), Texts{R"(4 {ci:"",cn:"a"b",type:0})"});
    EXPECT_EQ(id, "before");
    host.Reply(4, R"({eid:0,ci:"2"})");
    EXPECT_EQ(module.CreateCategory("a\"b", id), 0);
}

TEST_F(VoyCatalogModuleTest, StatusWithoutErrorNumberIsAFailureAndChangesNothing) {
    host.Reply(3, R"([{ci:"1",cn:"A",voys:[{vi:"9",vn:"V"}]}])");
    EXPECT_EQ(module.LoadAll("u"), 0);
    for (int i = 0; i < 2; ++i) {
        host.Reply(4, R"({ci:"2",emsg:""})");
        host.Reply(5, R"({vi:"8",emsg:""})");
    }
    host.Reply(5, R"({vi:"8",emsg:""})");
    host.Reply(13, R"({vi:"9"})");
    std::string id = "before";
    EXPECT_EQ(module.CreateCategory("B", id), -4);
    EXPECT_EQ(module.ChangeCategoryState("1", 3), -4);
    EXPECT_EQ(module.CreateVoyage("W", "1", id), -4);
    EXPECT_EQ(module.ChangeVessel("9", "s", "Ship", 1), -4);
    EXPECT_EQ(module.SetRouteDisplay("9", "open"), -5);
    EXPECT_EQ(module.AddAisModTime("9", "2024-01-01 08:00:00"), -5);
    EXPECT_EQ(id, "before");
    EXPECT_EQ(store.categories.size(), 1U);
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    ASSERT_EQ(store.voyages.size(), 1U);
    EXPECT_EQ(store.voyages.at("9").vsn, "");
    EXPECT_EQ(store.voyages.at("9").vr, 0);
    EXPECT_TRUE(store.voyages.at("9").aisModTimes.empty());
}

TEST_F(VoyCatalogModuleTest, RenameNeedsIdAndName) {
    EXPECT_EQ(module.RenameCategory("", "A"), -1);
    EXPECT_EQ(module.RenameCategory("1", ""), -1);
    EXPECT_EQ(module.RenameVoyage("", "A"), -1);
    EXPECT_EQ(module.RenameVoyage("1", ""), -1);
    EXPECT_TRUE(host.requests.empty());
    ExpectLadder(4, -2, [&] { return module.RenameCategory("1", "A"); });
    ExpectLadder(5, -2, [&] { return module.RenameVoyage("1", "A"); });
}

TEST_F(VoyCatalogModuleTest, StateChangeLadders) {
    EXPECT_EQ(module.ChangeCategoryState("", 1), -1);
    EXPECT_EQ(module.ChangeVoyageState("", 2), -1);
    EXPECT_TRUE(host.requests.empty());
    ExpectLadder(4, -2, [&] { return module.ChangeCategoryState("1", 2); });
    EXPECT_EQ(host.Texts().back(), R"(4 {ci:"1",type:"2"})");
    ExpectLadder(5, -2, [&] { return module.ChangeVoyageState("1", 3); });
    EXPECT_EQ(host.Texts().back(), R"(5 {vi:"1",type:"3"})");
}

TEST_F(VoyCatalogModuleTest, VesselChangeNeedsOneOfIdAndName) {
    EXPECT_EQ(module.ChangeVessel("", "s", "n", 1), -1);
    EXPECT_EQ(module.ChangeVessel("1", "", "", 1), -1);
    EXPECT_TRUE(host.requests.empty());
    ExpectLadder(5, -2, [&] { return module.ChangeVessel("1", "", "Ship", 0); });
    EXPECT_EQ(host.Texts().back(), R"(5 {vi:"1",type:"5",vsi:"",vsn:"Ship",vsmsi:"0"})");
}

TEST_F(VoyCatalogModuleTest, DisplayFlagsTakeTheExactModeWordsOnly) {
    for (const char* word : {"OPEN", "Close", "", "open "}) {
        EXPECT_EQ(module.SetRouteDisplay("1", word), -2) << word;
        EXPECT_EQ(module.SetAisTracing("1", word), -2) << word;
    }
    EXPECT_EQ(module.SetRouteDisplay("", "OPEN"), -1);
    EXPECT_EQ(module.SetAisTracing("", "open"), -1);
    EXPECT_TRUE(host.requests.empty());
    ExpectLadder(5, -3, [&] { return module.SetRouteDisplay("1", "open"); });
    EXPECT_EQ(host.Texts().back(), R"(5 {vi:"1",type:"6",vr:"1"})");
    ExpectLadder(5, -3, [&] { return module.SetAisTracing("1", "close"); });
    EXPECT_EQ(host.Texts().back(), R"(5 {vi:"1",type:"7",va:"0"})");
}

TEST_F(VoyCatalogModuleTest, AddedAisTimeGoesOutAsServerTime) {
    EXPECT_EQ(module.AddAisModTime("", "2024-01-01 08:00:00"), -1);
    EXPECT_EQ(module.AddAisModTime("1", "2024-01-32 08:00:00"), -2);
    EXPECT_TRUE(host.requests.empty());
    ExpectLadder(13, -3, [&] { return module.AddAisModTime("1", "2024-01-01 08:00:00"); });
    EXPECT_EQ(host.Texts().back(), R"(13 {vi:"1",time:"2024-01-01 00:00:00"})");
}

TEST_F(VoyCatalogModuleTest, AisTimesComeSortedWithoutDuplicatesAndWithoutBadTexts) {
    host.Reply(12, R"({times:["2024-01-02 00:00:00","","2024-99-01 00:00:00","2011-01-01 00:00:00",)"
                   R"("2024-01-02 00:00:00","2024-01-01 00:00:00"]})");
    Texts times{"before"};
    EXPECT_EQ(module.GetAisModTimes("1", times), 0);
    EXPECT_EQ(times, (Texts{"2011-01-01 00:00:00", "2024-01-01 08:00:00", "2024-01-02 08:00:00"}));
    EXPECT_EQ(host.Texts(), Texts{R"(12 {vi:"1"})"});
}

TEST_F(VoyCatalogModuleTest, AisTimesThatFallTogetherInTheChosenZoneAreOne) {
    host.zone = "UTC";
    host.Reply(12, R"({times:["2011-10-02 08:00:00","2011-10-02 08:00:00","2011-10-01 08:00:00",7]})");
    Texts times;
    EXPECT_EQ(module.GetAisModTimes("1", times), 0);
    EXPECT_EQ(times, (Texts{"2011-10-01 08:00:00", "2011-10-02 08:00:00"}));
}

TEST_F(VoyCatalogModuleTest, AisTimesFromTheCutOverOnAreSkippedWithoutAZone) {
    host.zone.reset();
    host.Reply(12, R"({times:["2024-01-01 00:00:00","2011-10-01 23:59:59"]})");
    Texts times;
    EXPECT_EQ(module.GetAisModTimes("1", times), 0);
    EXPECT_EQ(times, Texts{"2011-10-01 23:59:59"});
}

TEST_F(VoyCatalogModuleTest, ReadingAisTimesLadder) {
    Texts times{"before"};
    EXPECT_EQ(module.GetAisModTimes("", times), -1);
    EXPECT_TRUE(times.empty()) << "cleared before anything is looked at";
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(module.GetAisModTimes("1", times), -2);
    EXPECT_TRUE(times.empty()) << "cleared before anything is sent";
    host.Reply(12, "no json");
    EXPECT_EQ(module.GetAisModTimes("1", times), -2);
    host.Reply(12, "{}");
    EXPECT_EQ(module.GetAisModTimes("1", times), -3);
    for (const char* reply : {"{eid:0}", "{eid:50}", R"({eid:50,times:["2024-03-01 00:00:00"]})", "[1]"}) {
        host.Reply(12, reply);
        EXPECT_EQ(module.GetAisModTimes("1", times), -2)
            << "a reply without times is no empty list: " << reply;
        EXPECT_TRUE(times.empty());
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <filesystem>
#include <limits>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"
#include "seaplan/data/Position.h"
#include "seaplan/plugin/PlanService.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

/// A server that is not there would be stood in for by known legs.
constexpr const char* kNoWay = R"({eid:64,emsg:"no way joins these points"})";

class PlanServiceTest : public ScheduleFixture {
  protected:
    PlanServiceTest() {
        folder.WriteSamplePoints();
        store.Clear();
        for (int i = 0; i < 30; ++i) {
            host.Reply(3, "[]");  // an empty catalog is asked for at every plan
        }
        request.start = Util::_datetime_t(0, 0, 8, 1, 3, 2024);
        request.ports = {{"A", "", 10.0F, 0.0F, 6.0F}, {"B", "", 10.0F, 0.0F, 0.0F}};
    }
    /// The user's voyages have been loaded before; nothing of this user is in use.
    void LoadStore() {
        store.categories["1"].ci = "1";
        store.categories["1"].cn = "Old";
        store.categoryStates["1"] = InRecycleBin;
    }
    void AskToSave() {
        request.save = true;
        request.category = "Cat";
        request.voyage = "V";
        host.Reply(4, R"({eid:0,ci:"11"})");
        host.Reply(5, R"({eid:0,vi:"22"})");
        host.Reply(11, "{eid:0}");
        host.Reply(7, "[]");
        host.Reply(8, R"({eid:0,psb:"5"})");
        host.Reply(9, "{eid:0}");
    }
    /// Plans and expects failure `code`, with nothing but words in the answer.
    void ExpectFailure(int code) {
        const PlanResult& result = service.Plan(request);
        EXPECT_EQ(result.code, code);
        EXPECT_FALSE(result.step.empty());
        EXPECT_TRUE(result.rows.empty());
        EXPECT_TRUE(result.linePieces.empty());
    }

    PlanService service{&catalog, &voyages, &store, &directory};
    PlanRequest request;
};

TEST_F(PlanServiceTest, PlanWithoutSavingGivesScheduleBookAndLine) {
    host.Reply(1, kRouteAb);
    const PlanResult& result = service.Plan(request);
    ASSERT_EQ(result.code, Interface::PlanDone) << result.step;
    ASSERT_EQ(result.rows.size(), 2U);
    EXPECT_EQ(result.rows[0].purpose, "L");
    EXPECT_EQ(result.rows[1].purpose, "D");
    ASSERT_EQ(result.route.size(), 3U);
    EXPECT_EQ(result.route[0].etd, result.rows[0].etd);
    EXPECT_EQ(result.route[2].eta.fmt("%H:%M"), result.rows[1].eta.fmt("%H:%M"));
    EXPECT_NEAR(result.totals.distance, 60.107F, 0.01F);
    EXPECT_NEAR(result.summary.averageSpeed, 10.0F, 0.01F);
    EXPECT_EQ(result.linePieces, (std::vector<PointTexts>{{"0.000,0.000", "0.500,0.000", "1.000,0.000"}}));
    EXPECT_EQ(result.voyageId, "");
    EXPECT_FALSE(module.Pending().IsThere()) << "a panel must not save this route as its own";
    EXPECT_EQ(host.requests.size(), 2U);
}

TEST_F(PlanServiceTest, NameOfADestroyedVoyageIsFreeAgain) {
    LoadStore();
    for (const auto& [vi, state] : {std::pair("7", Destroyed), std::pair("8", InRecycleBin)}) {
        store.voyages[vi].vi = vi;
        store.voyages[vi].vn = "V";
        store.categoryVoyages["1"][vi] = state;
    }
    AskToSave();
    ExpectFailure(Interface::PlanNameTaken);
    store.categoryVoyages["1"]["8"] = Destroyed;
    host.Reply(1, kRouteAb);
    EXPECT_EQ(service.Plan(request).code, Interface::PlanDone);
}

TEST_F(PlanServiceTest, AnswerCarriesIdsPurposesAndFiguresAsAskedFor) {
    host.Reply(1, kRouteAb);
    request.ports = {{"A", "B", 12.0F, 0.5F, 6.0F}, {"B", "O", 12.0F, 0.5F, 24.0F}};
    const PlanResult& result = service.Plan(request);
    ASSERT_EQ(result.code, Interface::PlanDone) << result.step;
    EXPECT_EQ(result.rows[0].portId, "40001");
    EXPECT_EQ(result.rows[1].portId, "40002");
    EXPECT_EQ(result.rows[0].purpose, "B") << "not turned into loading";
    EXPECT_EQ(result.rows[1].purpose, "O");
    EXPECT_EQ(result.rows[1].weather, 0.5F);
    EXPECT_NEAR(result.rows[1].speed, 12.0F, 1e-4F);
    EXPECT_NEAR(result.rows[1].steamTime, 60.107F / 6.0F, 1e-3F);
    EXPECT_EQ(result.rows[0].eta.fmt("%Y-%m-%d %H:%M:%S"), "2024-03-01 08:00:00");
    EXPECT_EQ(result.rows[0].etd.fmt("%Y-%m-%d %H:%M:%S"), "2024-03-01 14:00:00");
    EXPECT_EQ(result.totals.portTime, 30.0F);
    EXPECT_EQ(result.totals.etd, result.rows[1].etd);
    EXPECT_NEAR(result.summary.totalTime, 60.107F / 6.0F + 24.0F, 1e-3F) << "without the first stay";
}

TEST_F(PlanServiceTest, BookRowsCarryTheLegsSpeedAndTheirTimes) {
    host.Reply(1, kRouteAb);
    request.ports[1].speed = 15.0F;
    const PlanResult& result = service.Plan(request);
    ASSERT_EQ(result.code, Interface::PlanDone) << result.step;
    EXPECT_EQ(result.route[0].id, "40001");
    EXPECT_EQ(result.route[0].name, "A");
    EXPECT_EQ(result.route[0].kind, Interface::WaypointKind::Port);
    EXPECT_NEAR(result.route[1].speed, 15.0F, 1e-4F);
    EXPECT_EQ(result.route[1].kind, Interface::WaypointKind::Plain);
    EXPECT_EQ(result.route[1].eta.fmt("%H:%M"), "16:00") << "half the leg of four hours behind 14:00";
    EXPECT_EQ(result.route[2].id, "40002");
}

TEST_F(PlanServiceTest, PlanWithoutStartBeginsNow) {
    host.Reply(1, kRouteAb);
    clock.SetUtc(2026, 5, 6, 7);
    PlanRequest now;
    now.ports = request.ports;
    EXPECT_EQ(service.Plan(now).rows.at(0).eta.fmt("%Y-%m-%d %H:%M"), "2026-05-06 07:00");
}

TEST_F(PlanServiceTest, FiguresThatAllowNoVoyageAreRefusedBeforeAnythingIsAsked) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float endless = std::numeric_limits<float>::infinity();
    for (const float speed : {0.0F, -3.0F, 0.001F, nan, endless}) {
        request.ports[1].speed = speed;
        ExpectFailure(Interface::PlanNotCalculated);
        EXPECT_NE(service.Plan(request).step.find("speed"), std::string::npos);
    }
    request.ports[1].speed = 10.0F;
    for (const float weather : {1.0F, 0.9995F, 0.99999F, 1.5F, -0.01F, nan}) {
        request.ports[1].weather = weather;
        ExpectFailure(Interface::PlanNotCalculated);
        EXPECT_NE(service.Plan(request).step.find("weather"), std::string::npos);
    }
    request.ports[1].weather = 0;
    request.ports[0].portTime = -1;
    ExpectFailure(Interface::PlanNotCalculated);
    EXPECT_TRUE(host.TextsOf(1).empty());
}

TEST_F(PlanServiceTest, StayBeyondTheCalendarIsToldAsSuch) {
    host.Reply(1, kRouteAb);
    request.ports[0].portTime = 1e30F;
    ExpectFailure(Interface::PlanNotCalculated);
}

TEST_F(PlanServiceTest, MissingTableOfPointsIsNamed) {
    std::filesystem::remove(folder.PointsFile());
    host.Reply(1, kRouteAb);
    const PlanResult& result = service.Plan(request);
    EXPECT_EQ(result.code, Interface::PlanNotCalculated);
    EXPECT_NE(result.step.find("table of ports"), std::string::npos);
}

TEST_F(PlanServiceTest, NamesAreKeptAsTheTreeKeepsTypedOnes) {
    LoadStore();
    host.Reply(1, kRouteAb);
    AskToSave();
    request.category = " R&D ";
    request.voyage = "say \"V\"";
    ASSERT_EQ(service.Plan(request).code, Interface::PlanDone);
    EXPECT_EQ(host.TextsOf(4)[0],
              "{ci:\"\",cn:\"R\xEF\xBC\x86"
              "D\",type:0}");
    EXPECT_EQ(store.voyages.at("22").vn, "say \xEF\xBC\x82V\xEF\xBC\x82");
    host.Reply(1, kRouteAb);
    ExpectFailure(Interface::PlanNameTaken);
    request.voyage = "  ";
    ExpectFailure(Interface::PlanNameMissing);
}

TEST_F(PlanServiceTest, SavedPlanMakesCategoryAndVoyageAndSavesTheSchedule) {
    host.Reply(1, kRouteAb);
    AskToSave();
    const PlanResult& result = service.Plan(request);
    ASSERT_EQ(result.code, Interface::PlanDone) << result.step;
    EXPECT_EQ(result.categoryId, "11");
    EXPECT_EQ(result.voyageId, "22");
    EXPECT_TRUE(store.categories.empty()) << "nothing was loaded before";
    Texts commands;
    for (const auto& sent : host.requests) {
        commands.push_back(std::to_string(sent.Command()));
    }
    EXPECT_EQ(commands, (Texts{"3", "1", "4", "5", "11", "7", "8", "9"}));
    EXPECT_EQ(host.TextsOf(4)[0], R"({ci:"",cn:"Cat",type:0})");
    EXPECT_EQ(host.TextsOf(5)[0], R"({ci:"11",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})");
}

TEST_F(PlanServiceTest, SavedVoyageIsInAStoreThatWasLoaded) {
    LoadStore();
    host.Reply(1, kRouteAb);
    AskToSave();
    ASSERT_EQ(service.Plan(request).code, Interface::PlanDone);
    EXPECT_TRUE(host.TextsOf(3).empty()) << "once loaded is enough";
    EXPECT_EQ(store.voyages.at("22").portCalls.size(), 2U);
    EXPECT_EQ(store.categoryVoyages.at("11").at("22"), InUse);
}

TEST_F(PlanServiceTest, StoreThatWasNotLoadedIsLeftForThePanelToLoad) {
    host.Reply(1, kRouteAb);
    AskToSave();
    ASSERT_EQ(service.Plan(request).code, Interface::PlanDone);
    for (int round = 1; round <= 2; ++round) {
        EXPECT_TRUE(store.categories.empty());
        EXPECT_TRUE(store.voyages.empty());
        EXPECT_TRUE(store.categoryStates.empty());
        EXPECT_TRUE(store.categoryVoyages.empty());
        EXPECT_EQ(host.TextsOf(3).size(), round) << "asked for at every plan";
        host.Reply(4, R"({eid:0,ci:"11"})");
        host.Reply(1, kNoWay);
        ExpectFailure(Interface::PlanNotCalculated);
    }
}

TEST_F(PlanServiceTest, RouteThatAPanelHasCalculatedStaysTheOneItSaves) {
    LoadStore();
    request.save = false;
    for (const bool known : {true, false}) {
        RouteStops calculated(3);
        calculated[0].point_cd = "40003";
        module.Pending().Take(calculated);
        host.Reply(1, known ? kRouteAb : kNoWay);
        EXPECT_EQ(service.Plan(request).code, known ? Interface::PlanDone : Interface::PlanNotCalculated);
        ASSERT_EQ(module.Pending().Stops().size(), 3U) << known;
        EXPECT_EQ(module.Pending().Stops()[0].point_cd, "40003");
    }
}

TEST_F(PlanServiceTest, CategoryInUseIsTakenAndOneInTheBinIsNot) {
    store.categories["3"].cn = "Cat";
    store.categoryStates["3"] = InRecycleBin;
    host.Reply(1, kRouteAb);
    AskToSave();
    EXPECT_EQ(service.Plan(request).categoryId, "11");
    request.voyage = "W";
    host.Reply(1, kRouteAb);
    host.Reply(5, R"({eid:0,vi:"23"})");
    host.Reply(11, "{eid:0}");
    host.Reply(7, R"([{pbi:"6"}])");
    host.Reply(9, "{eid:0}");
    const PlanResult& result = service.Plan(request);
    EXPECT_EQ(result.code, Interface::PlanDone) << result.step;
    EXPECT_EQ(result.categoryId, "11");
    EXPECT_EQ(host.TextsOf(4).size(), 1U);
}

TEST_F(PlanServiceTest, UnconnectedOrUnloadedClientPlansNothing) {
    host.connected = false;
    ExpectFailure(Interface::PlanNotConnected);
    host.connected = true;
    host.user = "";
    ExpectFailure(Interface::PlanNotLoaded);
}

TEST_F(PlanServiceTest, UnknownPortIsNamed) {
    request.ports[1].name = "Atlantis";
    ExpectFailure(Interface::PlanUnknownPort);
    EXPECT_NE(service.Plan(request).step.find("Atlantis"), std::string::npos);
    EXPECT_TRUE(host.TextsOf(1).empty());
}

TEST_F(PlanServiceTest, OnePlaceTwiceIsNoVoyage) {
    request.ports[1].name = "A";
    ExpectFailure(Interface::PlanTooFewPorts);
    request.ports.clear();
    ExpectFailure(Interface::PlanTooFewPorts);
}

TEST_F(PlanServiceTest, MissingRouteMakesNoVoyageOnTheServer) {
    AskToSave();
    ExpectFailure(Interface::PlanNotCalculated);
    EXPECT_TRUE(host.TextsOf(4).empty());
    EXPECT_TRUE(host.TextsOf(5).empty());
}

TEST_F(PlanServiceTest, SavingNeedsNamesAndAFreeOne) {
    AskToSave();
    request.category.clear();
    ExpectFailure(Interface::PlanNameMissing);
    request.category = "Cat";
    store.categories["1"].ci = "1";
    store.voyages["9"].vn = "V";
    ExpectFailure(Interface::PlanNameTaken);
}

TEST_F(PlanServiceTest, NamesAreAsWideAsThoseOfTheTree) {
    LoadStore();
    AskToSave();
    request.voyage = std::string(21, 'v');
    ExpectFailure(Interface::PlanNameMissing);
    EXPECT_NE(service.Plan(request).step.find("20"), std::string::npos);
    request.voyage = std::string(18, 'v') + "\xE8\x88\xB9";  // a wide character counts twice
    request.category = std::string(31, 'c');
    ExpectFailure(Interface::PlanNameMissing);
    request.category = std::string(30, 'c');
    host.Reply(1, kRouteAb);
    EXPECT_EQ(service.Plan(request).code, Interface::PlanDone);
}

TEST_F(PlanServiceTest, RefusedSaveIsToldByItsStep) {
    LoadStore();
    request.save = true;
    request.category = "Cat";
    request.voyage = "V";
    host.Reply(1, kRouteAb);
    ExpectFailure(Interface::PlanNoCategory);
    host.Reply(1, kRouteAb);
    host.Reply(4, R"({eid:0,ci:"11"})");
    ExpectFailure(Interface::PlanNoVoyage);
    host.Reply(1, kRouteAb);
    host.Reply(5, R"({eid:0,vi:"22"})");
    host.Reply(5, "{eid:0}");
    host.Reply(4, "{eid:0}");
    ExpectFailure(Interface::PlanNotSaved);
}

TEST_F(PlanServiceTest, FailedSaveTakesVoyageAndNewCategoryBack) {
    LoadStore();
    request.save = true;
    request.category = "Cat";
    request.voyage = "V";
    host.Reply(1, kRouteAb);
    host.Reply(4, R"({eid:0,ci:"11"})");
    host.Reply(5, R"({eid:0,vi:"22"})");
    for (int step = 0; step < 2; ++step) {  // into the bin, then away
        host.Reply(5, "{eid:0}");
        host.Reply(4, "{eid:0}");
    }
    ExpectFailure(Interface::PlanNotSaved);
    EXPECT_EQ(host.TextsOf(5).at(1), R"({vi:"22",type:"2"})");
    EXPECT_EQ(host.TextsOf(5).back(), R"({vi:"22",type:"4"})");
    EXPECT_EQ(host.TextsOf(4).at(1), R"({ci:"11",type:"1"})");
    EXPECT_EQ(host.TextsOf(4).back(), R"({ci:"11",type:"3"})");
    EXPECT_EQ(store.categoryVoyages.at("11").at("22"), Destroyed);
    EXPECT_EQ(store.categoryStates.at("11"), Destroyed);
}

TEST_F(PlanServiceTest, FailedSaveLeavesACategoryThatWasThere) {
    store.categories["3"].cn = "Cat";
    store.categoryStates["3"] = InUse;
    request.save = true;
    request.category = "Cat";
    request.voyage = "V";
    host.Reply(1, kRouteAb);
    ExpectFailure(Interface::PlanNoVoyage);
    EXPECT_TRUE(host.TextsOf(4).empty());
    EXPECT_EQ(store.categoryStates.at("3"), InUse);
}

TEST_F(PlanServiceTest, NullRequestHasNoAnswer) {
    const Interface::Binding offered = Interface::Offer(
        Interface::Bus::PlanVoyage, [this](const PlanRequest& asked) { return &service.Plan(asked); });
    ASSERT_TRUE(offered.IsBound());
    EXPECT_EQ(Interface::Call(Interface::Bus::PlanVoyage, nullptr), nullptr);
    EXPECT_TRUE(host.requests.empty());
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include "seaplan/plugin/PlanService.h"

#include "seaplan/data/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {
namespace {

using Texts = std::vector<std::string>;

class PlanServiceTest : public ScheduleFixture {
  protected:
    PlanServiceTest() {
        std::filesystem::create_directories(Folder() / "businessdata");
        const auto here = std::filesystem::path(__FILE__).parent_path();
        std::filesystem::copy_file(here / "../../data/controllers/tests/points.db",
                                   Folder() / "businessdata" / "trvdb.db");
        store.Clear();
        for (int i = 0; i < 4; ++i) {
            host.Reply(3, "[]");  // an empty catalog is asked for at every plan
        }
        request.start = Util::_datetime_t(0, 0, 8, 1, 3, 2024);
        request.ports = {{"A", "", 10.0F, 0.0F, 6.0F}, {"B", "", 10.0F, 0.0F, 0.0F}};
    }
    void askToSave() {
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
    void expectFailure(int code) {
        const PlanResult& result = service.Plan(request);
        EXPECT_EQ(result.code, code);
        EXPECT_FALSE(result.step.empty());
        EXPECT_TRUE(result.rows.empty());
        EXPECT_TRUE(result.linePieces.empty());
    }

    PlanService service{&catalog, &voyages, &store};
    PlanRequest request;
};

TEST_F(PlanServiceTest, PlanWithoutSavingGivesScheduleBookAndLine) {
    host.Reply(1, kRouteAb);
    const PlanResult& result = service.Plan(request);
    ASSERT_EQ(result.code, PlanDone) << result.step;
    ASSERT_EQ(result.rows.size(), 2U);
    EXPECT_EQ(result.rows[0].pp, "L");
    EXPECT_EQ(result.rows[1].pp, "D");
    ASSERT_EQ(result.book.size(), 3U);
    EXPECT_EQ(result.book[0].etd, result.rows[0].etd);
    EXPECT_EQ(result.book[2].eta.fmt("%H:%M"), result.rows[1].eta.fmt("%H:%M"));
    EXPECT_NEAR(result.totals.distance, 60.107F, 0.01F);
    EXPECT_NEAR(result.summary.averageSpeed, 10.0F, 0.01F);
    EXPECT_EQ(result.linePieces, (std::vector<PointTexts>{{"0.000,0.000", "0.500,0.000", "1.000,0.000"}}));
    EXPECT_EQ(result.vi, "");
    EXPECT_FALSE(voyages.HasPendingRoute()) << "a panel must not save this route as its own";
    EXPECT_EQ(host.requests.size(), 2U);
}

TEST_F(PlanServiceTest, SavedPlanMakesCategoryAndVoyageAndSavesTheSchedule) {
    host.Reply(1, kRouteAb);
    askToSave();
    const PlanResult& result = service.Plan(request);
    ASSERT_EQ(result.code, PlanDone) << result.step;
    EXPECT_EQ(result.ci, "11");
    EXPECT_EQ(result.vi, "22");
    Texts commands;
    for (const auto& sent : host.requests) {
        commands.push_back(std::to_string(sent.Command()));
    }
    EXPECT_EQ(commands, (Texts{"3", "1", "4", "5", "11", "7", "8", "9"}));
    EXPECT_EQ(host.TextsOf(4)[0], R"({ci:"",cn:"Cat",type:0})");
    EXPECT_EQ(host.TextsOf(5)[0], R"({ci:"11",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})");
    EXPECT_EQ(store.voyages.at("22").portCalls.size(), 2U);
}

TEST_F(PlanServiceTest, CategoryInUseIsTakenAndOneInTheBinIsNot) {
    store.categories["3"].cn = "Cat";
    store.categoryStates["3"] = InRecycleBin;
    host.Reply(1, kRouteAb);
    askToSave();
    EXPECT_EQ(service.Plan(request).ci, "11");
    request.voyage = "W";
    host.Reply(1, kRouteAb);
    host.Reply(5, R"({eid:0,vi:"23"})");
    host.Reply(11, "{eid:0}");
    host.Reply(7, R"([{pbi:"6"}])");
    host.Reply(9, "{eid:0}");
    const PlanResult& result = service.Plan(request);
    EXPECT_EQ(result.code, PlanDone) << result.step;
    EXPECT_EQ(result.ci, "11");
    EXPECT_EQ(host.TextsOf(4).size(), 1U);
}

TEST_F(PlanServiceTest, UnconnectedOrUnloadedClientPlansNothing) {
    host.connected = false;
    expectFailure(PlanNotConnected);
    host.connected = true;
    host.user = "";
    expectFailure(PlanNotLoaded);
}

TEST_F(PlanServiceTest, UnknownPortIsNamed) {
    request.ports[1].name = "Atlantis";
    expectFailure(PlanUnknownPort);
    EXPECT_NE(service.Plan(request).step.find("Atlantis"), std::string::npos);
    EXPECT_TRUE(host.TextsOf(1).empty());
}

TEST_F(PlanServiceTest, OnePlaceTwiceIsNoVoyage) {
    request.ports[1].name = "A";
    expectFailure(PlanTooFewPorts);
    request.ports.clear();
    expectFailure(PlanTooFewPorts);
}

TEST_F(PlanServiceTest, MissingRouteMakesNoVoyageOnTheServer) {
    askToSave();
    expectFailure(PlanNotCalculated);
    EXPECT_TRUE(host.TextsOf(4).empty());
    EXPECT_TRUE(host.TextsOf(5).empty());
}

TEST_F(PlanServiceTest, SavingNeedsNamesAndAFreeOne) {
    askToSave();
    request.category.clear();
    expectFailure(PlanNameMissing);
    request.category = "Cat";
    store.categories["1"].ci = "1";
    store.voyages["9"].vn = "V";
    expectFailure(PlanNameTaken);
}

TEST_F(PlanServiceTest, RefusedSaveIsToldByItsStep) {
    request.save = true;
    request.category = "Cat";
    request.voyage = "V";
    host.Reply(1, kRouteAb);
    expectFailure(PlanNoCategory);
    host.Reply(1, kRouteAb);
    host.Reply(4, R"({eid:0,ci:"11"})");
    expectFailure(PlanNoVoyage);
    host.Reply(1, kRouteAb);
    host.Reply(5, R"({eid:0,vi:"22"})");
    expectFailure(PlanNotSaved);
}

TEST_F(PlanServiceTest, NullRequestHasNoAnswer) {
    EXPECT_EQ(service.OnPlan(nullptr), nullptr);
}

}  // namespace
}  // namespace Tarvik::Seaplan

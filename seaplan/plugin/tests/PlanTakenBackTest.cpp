// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/plugin/PlanService.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

/// What a plan that could not be saved leaves on the real server.
namespace Tarvik::Seaplan {

namespace {

class PlanTakenBackTest : public testing::Test {
  protected:
    PlanTakenBackTest() {
        for (const char* name : {"ROTTERDAM", "HAMBURG"}) {
            request.ports.push_back({name, "", 10.0F, 0.0F, 0.0F});
        }
        request.save = true;
        request.category = "Cat";
        request.voyage = "V";
    }
    /// Names of what the server has, for good or in the bin.
    std::string OnServer() {
        VoyageStore all;
        VoyCatalogModule(&all).LoadAll(*desk.host.user);
        std::string names;
        for (const auto& [ci, category] : all.categories) {
            names += all.categoryStates[ci] == Destroyed ? "" : category.cn + ";";
        }
        for (const auto& [vi, voyage] : all.voyages) {
            names += StateOfVoyage(all, vi) == Destroyed ? "" : voyage.vn + ";";
        }
        return names;
    }

    PanelDesk desk;
    PlanService service{&desk.catalog, &desk.voyages, &desk.store, &desk.directory};
    PlanRequest request;
};

TEST_F(PlanTakenBackTest, FailedSaveLeavesNothingAndCanBeRepeated) {
    for (const DeskRequest refused : {Ask::kSavePortCalls, DeskRequest{8}, Ask::kSaveBook}) {
        desk.Refuse(refused);
        EXPECT_EQ(service.Plan(request).code, Interface::PlanNotSaved);
        desk.Heal();
        EXPECT_EQ(OnServer(), "") << refused.command;
    }
    const PlanResult& result = service.Plan(request);
    EXPECT_EQ(result.code, Interface::PlanDone) << result.step;
    EXPECT_EQ(OnServer(), "Cat;V;");
}

TEST_F(PlanTakenBackTest, WhatAServerThatIsGoneKeepsIsTold) {
    desk.AddCategory("Cat");
    desk.Lose(Ask::kSaveBook);
    desk.Lose(Ask::kDeleteVoyage);
    const std::string step = service.Plan(request).step;
    EXPECT_NE(step.find("may be left"), std::string::npos) << step;
    desk.Heal();
    EXPECT_EQ(OnServer(), "Cat;V;");
    request.voyage = "W";
    request.category = "Other";
    desk.Lose(Ask::kSaveBook);
    desk.Lose(Ask::kDeleteCategory);
    const std::string empty = service.Plan(request).step;
    EXPECT_NE(empty.find("category may be left empty"), std::string::npos) << empty;
    EXPECT_EQ(service.Plan(request).step.find("left"), std::string::npos) << "that one was there";
}

TEST_F(PlanTakenBackTest, KnownLegsThatStandInAreToldWithTheDayOfTheOldest) {
    KeyTexts texts;
    texts.given[u"IDS_VIEW_KNOWNLEGS"] = u"known since %1";
    request.save = false;
    EXPECT_TRUE(service.Plan(request).notes.empty());
    desk.clock.AdvanceSeconds(200 * 24 * 3600);
    desk.Lose(Ask::kRoute);
    const PlanResult& known = service.Plan(request);
    EXPECT_EQ(known.code, Interface::PlanDone) << known.step;
    EXPECT_EQ(known.notes, std::vector<std::string>{"known since 2024-03-01"});
    std::swap(request.ports[0], request.ports[1]);
    const PlanResult& failed = service.Plan(request);
    EXPECT_EQ(failed.code, Interface::PlanNotCalculated);
    EXPECT_TRUE(failed.notes.empty());
}

TEST_F(PlanTakenBackTest, FailedSaveLeavesACategoryThatWasThere) {
    desk.AddCategory("Cat");
    desk.Refuse(Ask::kSaveBook);
    EXPECT_EQ(service.Plan(request).code, Interface::PlanNotSaved);
    EXPECT_EQ(OnServer(), "Cat;");
}

TEST_F(PlanTakenBackTest, RefusedLoadSavesNothing) {
    desk.AddCategory("Cat");
    desk.Refuse(Ask::kLoad);
    EXPECT_EQ(service.Plan(request).code, Interface::PlanNotLoaded);
    EXPECT_EQ(desk.Count(Ask::kAddCategory) + desk.Count(Ask::kAddVoyage), 0);
}

}  // namespace
}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TrvKernel.h>

#include "host/client/plan/PlanCommand.h"
#include "host/client/plan/PlanFormats.h"
#include "host/client/plan/StatusEcho.h"
#include "host/client/tests/SamplePlan.h"

namespace Tarvik::Client {

namespace {

using testing::HasSubstr;

PortLookup Lookup() {
    return PortLookup({{"40001", "Alpha", "", "XXALP", 0, 0},
                       {"40002", "Beta", "", "", 0, 0},
                       {"40003", "Bert", "", "", 1, 0}});
}

PlanArguments Arguments(const std::vector<std::string>& words) {
    const ParsedPlan parsed = ParsePlanArguments(words);
    EXPECT_EQ(parsed.error, "");
    return parsed.arguments;
}

/// Answers the planning service with a given result and keeps the request.
class ScriptedPlanner : public Core::TObject {
  public:
    ScriptedPlanner() {
        event_.Set<&ScriptedPlanner::OnPlan>(this);
        Core::TrvKernel::Instance()->CreateTrvService(Interface::Bus::PlanVoyage.name, this, "", "", nullptr);
        Core::TrvKernel::Instance()->BindTrvService(Interface::Bus::PlanVoyage.name, &event_);
    }
    ~ScriptedPlanner() override {
        Core::TrvKernel::Instance()->UnBindTrvService(Interface::Bus::PlanVoyage.name, &event_);
        Core::TrvKernel::Instance()->DeleteTrvService(Interface::Bus::PlanVoyage.name, this);
    }
    void* OnPlan(void* input) {
        request = *static_cast<const Interface::PlanRequest*>(input);
        return &result;
    }
    Interface::PlanRequest request;
    Interface::PlanResult result = SamplePlan();

  private:
    Core::TEvent event_;
};

TEST(PlanRequest, CarriesPortsAndFigures) {
    Interface::PlanRequest request;
    const auto outcome = MakePlanRequest(
        Arguments({"xxalp", "40002", "--speed", "14", "--weather", "5", "--stay", "6,7", "--purpose", "B,C",
                   "--depart", "2026-12-01 08:00", "--save", "Mine/First"}),
        Lookup(), "UTC", request);
    EXPECT_EQ(outcome.exitCode, kExitDone);
    ASSERT_EQ(request.ports.size(), 2U);
    EXPECT_EQ(request.ports[0].name, "Alpha");
    EXPECT_EQ(request.ports[1].name, "Beta");
    EXPECT_EQ(request.ports[1].purpose, "C");
    EXPECT_EQ(request.ports[1].speed, 14.0F);
    EXPECT_EQ(request.ports[1].weather, 0.05F);
    EXPECT_EQ(request.ports[1].portTime, 7.0F);
    EXPECT_EQ(request.start.fmt("%Y-%m-%d %H:%M:%S"), "2026-12-01 08:00:00");
    EXPECT_TRUE(request.save);
    EXPECT_EQ(request.category + "|" + request.voyage, "Mine|First");
}

TEST(PlanRequest, NamesAnUnknownPortWithTheNearest) {
    Interface::PlanRequest request;
    const auto outcome = MakePlanRequest(Arguments({"Alfa", "Beta"}), Lookup(), "UTC", request);
    EXPECT_EQ(outcome.exitCode, kExitBadInput);
    EXPECT_THAT(outcome.message, HasSubstr("Unknown port \"Alfa\". Did you mean Alpha (XXALP, 40001)"));
}

TEST(PlanRequest, NamesAnAmbiguousPortWithItsCandidates) {
    Interface::PlanRequest request;
    const auto outcome = MakePlanRequest(Arguments({"Alpha", "be"}), Lookup(), "UTC", request);
    EXPECT_EQ(outcome.exitCode, kExitBadInput);
    EXPECT_THAT(outcome.message,
                HasSubstr("\"be\" is ambiguous. Did you mean Beta (40002) or Bert (40003)?"));
}

TEST(PlanRequest, RefusesAPortBehindItself) {
    Interface::PlanRequest request;
    EXPECT_EQ(MakePlanRequest(Arguments({"Alpha", "40001"}), Lookup(), "UTC", request).exitCode,
              kExitBadInput);
}

TEST(PlanCall, SaysSoWhenNobodyPlans) {
    const Interface::PlanResult* result = nullptr;
    const auto outcome = CallPlanService({}, result);
    EXPECT_EQ(outcome.exitCode, kExitFailed);
    EXPECT_THAT(outcome.message, HasSubstr("plug-in is not loaded"));
}

TEST(PlanCall, HandsTheRequestOverAndTheResultBack) {
    ScriptedPlanner planner;
    Interface::PlanRequest request;
    request.voyage = "V";
    const Interface::PlanResult* result = nullptr;
    EXPECT_EQ(CallPlanService(request, result).exitCode, kExitDone);
    EXPECT_EQ(planner.request.voyage, "V");
    EXPECT_EQ(result, &planner.result);
}

TEST(PlanCall, WhatIsToBeKnownOfAPlanIsToldALineEach) {
    ScriptedPlanner planner;
    const Interface::PlanResult* result = nullptr;
    EXPECT_EQ(CallPlanService({}, result).message, "");
    planner.result.notes = {"Known legs since 2024-03-01", "Another"};
    const auto noted = CallPlanService({}, result);
    EXPECT_EQ(noted.exitCode, kExitDone);
    EXPECT_EQ(noted.message, "Known legs since 2024-03-01\nAnother");
}

TEST(StatusEchoTest, EachOwnersWordsAreToldWhenTheyChange) {
    std::vector<std::string> told;
    const auto say = [](const char* owner, const char* text) {
        const Interface::StatusWord word{owner, text, "tip"};
        Interface::Raise(Interface::Bus::TellStatus, &word);
    };
    {
        const StatusEcho echo([&told](const std::string& words) { told.push_back(words); });
        say("Ports", "");
        say("Ports", "no own ports");
        say("Ports", "no own ports");
        say("Voyages", "not saved");
        say("Ports", "");
        say("Ports", "no own ports");
    }
    say("Ports", "to nobody");
    EXPECT_EQ(told, (std::vector<std::string>{"no own ports", "not saved", "no own ports"}));
}

TEST(PlanCall, TellsBadInputFromAFailedPlan) {
    ScriptedPlanner planner;
    const Interface::PlanResult* result = nullptr;
    planner.result.step = "a voyage of this name exists";
    planner.result.code = Interface::PlanNameTaken;
    EXPECT_EQ(CallPlanService({}, result).exitCode, kExitBadInput);
    planner.result.code = Interface::PlanNotConnected;
    const auto down = CallPlanService({}, result);
    EXPECT_EQ(down.exitCode, kExitFailed);
    EXPECT_THAT(down.message, HasSubstr("Start the server"));
    planner.result.code = Interface::PlanNotCalculated;
    EXPECT_EQ(CallPlanService({}, result).exitCode, kExitFailed);
}

TEST(PlanOutput, FollowsTheFormat) {
    const auto text = [](const char* format) {
        return FormatPlan(Arguments({"A", "B", "--format", format}), SamplePlan(), "UTC", LanguageFiles());
    };
    EXPECT_THAT(text("json"), HasSubstr("\"rows\""));
    EXPECT_THAT(text("geojson"), HasSubstr("FeatureCollection"));
    EXPECT_THAT(text("csv"), HasSubstr("RES,"));
    EXPECT_THAT(text("table"), HasSubstr("UTC"));
}

}  // namespace
}  // namespace Tarvik::Client

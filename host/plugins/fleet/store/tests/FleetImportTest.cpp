// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/fleet/store/FleetImport.h"
#include "host/plugins/fleet/tests/FleetServer.h"

namespace Tarvik::Fleet {

namespace {

class FleetImportTest : public testing::Test {
  protected:
    FleetServer server;
    FleetStore store;
};

TEST_F(FleetImportTest, AddsWhatIsNewAndLeavesOutWhatIsWrong) {
    const auto report =
        ImportVessels(store, "name,imo,mmsi\nFar Star,9074729,232000001\nBad Star,9074728,\n,9134270,\n");
    ASSERT_TRUE(report);
    EXPECT_EQ(report->added, 1);
    ASSERT_EQ(report->leftOut.size(), 2U);
    EXPECT_EQ(report->leftOut[0].line, 3);
    EXPECT_EQ(std::get<Fault>(report->leftOut[0].why), Fault::ImoCheck);
    EXPECT_EQ(std::get<Fault>(report->leftOut[1].why), Fault::NameMissing);
    EXPECT_EQ(store.Vessels().size(), 1U);
}

TEST_F(FleetImportTest, TheSameFileTwiceAddsNothing) {
    const std::string file =
        "name,imo,mmsi,length,speed\nFar Star,9074729,,189.9,14.5\nNear Star,,232000001,,\nBare,,,,\n";
    EXPECT_EQ(ImportVessels(store, file)->added, 3);
    const auto again = ImportVessels(store, file);
    EXPECT_EQ(again->added, 0);
    EXPECT_EQ(again->changed, 0);
    EXPECT_EQ(again->same, 3);
}

TEST_F(FleetImportTest, AKnownVesselTakesWhatTheFileSaysAndKeepsTheRest) {
    EXPECT_EQ(ImportVessels(store, "name,imo,type\nFar Star,9074729,Tanker\n")->added, 1);
    EXPECT_EQ(ImportVessels(store, "name,imo,mmsi\nFar Star II,9074729,232000001\n")->changed, 1);
    ASSERT_EQ(store.Vessels().size(), 1U);
    EXPECT_EQ(store.Vessels()[0].name, "Far Star II");
    EXPECT_EQ(store.Vessels()[0].mmsi, 232000001);
    EXPECT_EQ(store.Vessels()[0].type, "Tanker");
}

TEST_F(FleetImportTest, AServerThatDoesNotAnswerEndsIt) {
    server.host.server = nullptr;
    const auto report = ImportVessels(store, "name\nFar Star\nNear Star\n");
    ASSERT_EQ(report->leftOut.size(), 1U);
    EXPECT_EQ(std::get<Outcome>(report->leftOut[0].why), Outcome::NoServer);
    EXPECT_FALSE(ImportVessels(store, "no names"));
}

}  // namespace
}  // namespace Tarvik::Fleet

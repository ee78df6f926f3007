// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/fleet/core/FleetText.h"

namespace Tarvik::Fleet {

namespace {

TEST(FleetText, RequestsHoldWhatTheServerReads) {
    const Interface::FleetVessel vessel{"", "Meridian", 477123456, 9134270, "VRAB2", "Tanker", 229, 14};
    EXPECT_EQ(LoadRequest("anna"), R"({ui:"anna"})");
    EXPECT_EQ(
        ChangeRequest(Operation::Add, vessel),
        R"({vsi:"",type:"0",vsn:"Meridian",vsmsi:"477123456",vsimo:"9134270",vscs:"VRAB2",vst:"Tanker",)"
        R"(vsl:"229.0",vsp:"25.928"})");
    Interface::FleetVessel gone;
    gone.id = "31";
    EXPECT_EQ(ChangeRequest(Operation::Remove, gone), R"({vsi:"31",type:"2"})");
}

TEST(FleetText, AReplyIsAListOfVessels) {
    const auto fleet = ReadFleet(
        R"([{"vsi":"31","vsn":"Meridian","vsmsi":"477123456","vsimo":"9134270","vscs":"VRAB2","vst":"Tanker",)"
        R"("vsl":"229.0","vsp":"25.928"},{"vsi":"32","vsn":"Bare"}])");
    ASSERT_TRUE(fleet);
    ASSERT_EQ(fleet->size(), 2U);
    EXPECT_EQ((*fleet)[0].mmsi, 477123456);
    EXPECT_DOUBLE_EQ((*fleet)[0].length, 229);
    EXPECT_NEAR((*fleet)[0].serviceSpeed, 14, 1e-9);
    EXPECT_EQ((*fleet)[1].imo, 0);
    EXPECT_FALSE(ReadFleet(R"({"eid":9})"));
    EXPECT_FALSE(ReadFleet("[{"));
}

TEST(FleetText, AStatusTellsTheIdOrTheRefusal) {
    EXPECT_EQ(ReadVerdict(R"({"eid":0,"vsi":"31"})").id, "31");
    EXPECT_EQ(ReadVerdict(R"({"eid":17})").code, 17);
    EXPECT_EQ(ReadVerdict("nonsense").code, -1);
    EXPECT_EQ(ReadVerdict("{}").code, -1);
}

}  // namespace
}  // namespace Tarvik::Fleet

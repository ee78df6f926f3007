// SPDX-License-Identifier: MIT
// The store over the server itself.
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/fleet/store/FleetStore.h"
#include "host/plugins/fleet/tests/FleetServer.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Fleet {

namespace {

class FleetStoreTest : public testing::Test {
  protected:
    Outcome Add(const std::string& name, std::int32_t mmsi = 0) {
        Interface::FleetVessel vessel;
        vessel.name = name;
        vessel.mmsi = mmsi;
        return store.Change(Operation::Add, vessel);
    }
    TestSupport::ManualClock clock;
    FleetServer server;
    TestSupport::RecordingHost& host = server.host;
    FleetStore store;
};

TEST_F(FleetStoreTest, VesselsAreAddedChangedAndRemovedAtTheServer) {
    Interface::FleetVessel vessel{"", "Meridian", 477123456, 9134270, "VRAB2", "Tanker", 229, 14};
    ASSERT_EQ(store.Change(Operation::Add, vessel), Outcome::Done);
    EXPECT_NE(vessel.id, "");
    FleetStore again;
    ASSERT_NE(again.Find(vessel.id), nullptr);
    EXPECT_EQ(again.Find(vessel.id)->callSign, "VRAB2");
    EXPECT_NEAR(again.Find(vessel.id)->serviceSpeed, 14, 0.001);
    vessel.name = "Meridian II";
    EXPECT_EQ(store.Change(Operation::Set, vessel), Outcome::Done);
    EXPECT_EQ(store.Find(vessel.id)->name, "Meridian II");
    EXPECT_TRUE(again.Reload());
    EXPECT_EQ(again.Find(vessel.id)->name, "Meridian II");
    EXPECT_EQ(store.Change(Operation::Remove, vessel), Outcome::Done);
    EXPECT_TRUE(store.Vessels().empty());
    EXPECT_EQ(again.Change(Operation::Set, vessel), Outcome::Gone);
}

TEST_F(FleetStoreTest, WhatTheServerRefusesChangesNothing) {
    EXPECT_EQ(Add("Near Star", 1), Outcome::Refused);
    EXPECT_TRUE(store.Vessels().empty());
}

TEST_F(FleetStoreTest, TheServerIsAskedAtMostTwiceAMinute) {
    EXPECT_EQ(Add("Near Star"), Outcome::Done);
    host.requests.clear();
    EXPECT_EQ(store.Vessels().size(), 1U);
    EXPECT_EQ(store.Vessels().size(), 1U);
    EXPECT_TRUE(host.requests.empty()) << "what it has is new";
    clock.AdvanceSeconds(30);
    EXPECT_EQ(store.Vessels().size(), 1U);
    EXPECT_EQ(host.requests.size(), 1U);
    clock.AdvanceSeconds(-100);
    store.Vessels();
    EXPECT_EQ(host.requests.size(), 2U) << "a clock that went back";
}

TEST_F(FleetStoreTest, AServerThatStopsAnsweringLeavesTheLastKnownVessels) {
    EXPECT_EQ(Add("Near Star"), Outcome::Done);
    host.server = nullptr;
    clock.AdvanceSeconds(60);
    EXPECT_EQ(store.Vessels().size(), 1U);
    EXPECT_FALSE(store.Reload());
    EXPECT_EQ(Add("Far Star"), Outcome::NoServer);
}

TEST_F(FleetStoreTest, EachUserHasTheirOwn) {
    EXPECT_EQ(Add("Near Star"), Outcome::Done);
    host.user = "1000002";
    EXPECT_TRUE(store.Vessels().empty());
    host.user.reset();
    EXPECT_EQ(Add("Far Star"), Outcome::NoUser);
    EXPECT_TRUE(store.Vessels().empty());
    host.user = "1000001";
    EXPECT_EQ(store.Vessels().size(), 1U);
}

}  // namespace
}  // namespace Tarvik::Fleet

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/places/OwnPortDraft.h"

namespace Tarvik::Client {

namespace {

const std::vector<Port> kKnown = {{"40011", "ROTTERDAM", "鹿特丹", "NLRTM", 4.4, 51.9},
                                  {"1000040", "Berth 7", "Berth 7", "", 4.05, 51.98}};
const std::vector<Ports::Place> kOwn = {{"1000040", "Berth 7", "", "", Server::GeoPoint{4.05, 51.98}, true}};
constexpr const char* kPlace = "51 54.5N 4 29E";

std::optional<PortFault> FaultOf(const std::string& name, const std::string& place = kPlace,
                                 const std::string& id = {}) {
    return OwnPortDraft{name, place}.Check(kKnown, kOwn, id);
}

TEST(OwnPortDraftTest, ANameIsNeededAndMustBeOneThatRowsCarry) {
    EXPECT_EQ(FaultOf("Berth 8"), std::nullopt);
    EXPECT_EQ(FaultOf("七号泊位"), std::nullopt);
    EXPECT_EQ(FaultOf(" \t"), PortFault::NameMissing);
    EXPECT_EQ(FaultOf(std::string(256, 'a')), std::nullopt);
    EXPECT_EQ(FaultOf(std::string(257, 'a')), PortFault::NameLong);
    for (const char* name : {"A|B", "A\"B", "A\\B", "A&B", "A#B", "A\x01"}) {
        EXPECT_EQ(FaultOf(name), PortFault::NameSigns) << name;
    }
}

TEST(OwnPortDraftTest, ANameThatAPortHasIsTakenInAnyCase) {
    EXPECT_EQ(FaultOf("Rotterdam "), PortFault::NameTaken);
    EXPECT_EQ(FaultOf("鹿特丹"), PortFault::NameTaken);
    EXPECT_EQ(FaultOf("BERTH 7"), PortFault::NameOwn);
    EXPECT_EQ(FaultOf("BERTH 7", kPlace, "1000040"), std::nullopt) << "its own name in other letters";
}

TEST(OwnPortDraftTest, APositionIsNeededInAFormThatPeopleType) {
    EXPECT_EQ(FaultOf("A", " "), PortFault::PlaceMissing);
    for (const char* place : {"51 60N 4 29E", "51.9", "somewhere"}) {
        EXPECT_EQ(FaultOf("A", place), PortFault::PlaceUnread) << place;
        EXPECT_EQ((OwnPortDraft{"A", place}).Understood(), "") << place;
    }
    for (const char* place : {"51 54.5N 4 29E", "51.908333, 4.483333", "51°54'30\"N 004°29'00\"E"}) {
        EXPECT_EQ((OwnPortDraft{"A", place}).Understood(), "51° 54.50' N 004° 29.00' E") << place;
    }
}

TEST(OwnPortDraftTest, AnotherNameAloneLeavesThePortWhereItIs) {
    const Ports::Place before{"1000040", "Berth 7", "", "", Server::GeoPoint{4.0501234, 51.9801234}, true};
    OwnPortDraft draft = OwnPortDraft::Of(before);
    draft.name = " Berth 9 ";
    EXPECT_EQ(draft.Kept(before).name, "Berth 9");
    EXPECT_EQ(draft.Kept(before).position, before.position);
    draft.position = "10S 20W";
    EXPECT_EQ(draft.Kept(before).position, (Server::GeoPoint{-20, -10}));
    EXPECT_EQ(draft.Kept(before).id, "1000040");
}

}  // namespace

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

constexpr int kLoad = 17;
constexpr int kChange = 18;
const std::string kSuccess = R"({"eid":0})";
const std::string kAdd = R"({ppi:"",type:"0",ppn:"Berth 7",xc:"4.050",yc:"51.980"})";
const std::string kAdded = R"({"eid":0,"ppi":"1000001"})";

using PlaceCommandsTest = ServiceTest;

TEST_F(PlaceCommandsTest, PortIsAddedReadChangedAndRemoved) {
    Converse({{kLoad, R"({ui:"ann"})", "[]"},
              {kChange, kAdd, kAdded},
              {kLoad, R"({ui:"ann"})", R"([{"ppi":"1000001","ppn":"Berth 7","xc":4.05,"yc":51.98}])"},
              {kChange, R"({ppi:"1000001",type:1,ppn:"七号泊位",xc:"-180",yc:"90"})", kSuccess},
              {kLoad, R"({ui:"ann"})", R"([{"ppi":"1000001","ppn":"七号泊位","xc":-180.0,"yc":90.0}])"},
              {kChange, R"({ppi:"1000001",type:"2"})", kSuccess},
              {kLoad, R"({ui:"ann"})", "[]"}});
}

TEST_F(PlaceCommandsTest, WhatIsNoPortIsRefusedAndNothingChanges) {
    ASSERT_EQ(Send(kChange, kAdd), kAdded);
    const std::string before = Send(kLoad, R"({ui:"ann"})");
    const std::pair<std::string, ErrorCode> requests[] = {
        {R"({ppi:"",type:"0",ppn:"",xc:"1",yc:"2"})", ErrorCode::EmptyName},
        {R"({ppi:"",type:"0",ppn:"a|b",xc:"1",yc:"2"})", ErrorCode::BadName},
        {R"({ppi:"",type:"0",ppn:")" + std::string(257, 'n') + R"(",xc:"1",yc:"2"})", ErrorCode::TextTooLong},
        {R"({ppi:"",type:"0",ppn:"A",xc:"180.1",yc:"2"})", ErrorCode::BadPosition},
        {R"({ppi:"",type:"0",ppn:"A",xc:"1",yc:"-90.1"})", ErrorCode::BadPosition},
        {R"({ppi:"",type:"0",ppn:"A",xc:"east",yc:"2"})", ErrorCode::BadNumber},
        {R"({ppi:"",type:"0",ppn:"A",xc:"nan",yc:"2"})", ErrorCode::BadNumber},
        {R"({ppi:"",type:"0",ppn:"A",xc:"1"})", ErrorCode::MissingValue},
        {R"({ppi:"9",type:"0",ppn:"A",xc:"1",yc:"2"})", ErrorCode::UnknownPlace},
        {R"({ppi:"9",type:"1",ppn:"A",xc:"1",yc:"2"})", ErrorCode::UnknownPlace},
        {R"({ppi:"9",type:"2"})", ErrorCode::UnknownPlace},
        {R"({ppi:"1000001",type:"3"})", ErrorCode::UnknownOperation}};
    for (const auto& [text, code] : requests) {
        EXPECT_EQ(Eid(Send(kChange, text)), static_cast<int>(code)) << text;
        EXPECT_EQ(Send(kLoad, R"({ui:"ann"})"), before) << text;
    }
}

TEST_F(PlaceCommandsTest, NobodyReachesAnothersPorts) {
    ASSERT_EQ(Send(kChange, kAdd), kAdded);
    const std::string before = Send(kLoad, R"({ui:"ann"})");
    EXPECT_EQ(Eid(Send(kLoad, R"({ui:"ann"})", "bob")), static_cast<int>(ErrorCode::OtherUser));
    EXPECT_EQ(Send(kLoad, R"({ui:"bob"})", "bob"), "[]");
    EXPECT_EQ(Eid(Send(kChange, R"({ppi:"1000001",type:"2"})", "bob")),
              static_cast<int>(ErrorCode::UnknownPlace));
    EXPECT_EQ(Send(kLoad, R"({ui:"ann"})"), before);
}

TEST_F(PlaceCommandsTest, VoyageMayCallAtAnOwnPortAndAtNobodyElses) {
    const World world = MakeWorld();
    const std::string made = Send(kChange, kAdd);
    const std::string id = made.substr(made.find("1000"), 7);
    routes_.unknownPort = id;
    const std::string calls = "[\"" + world.voyage + R"(","0|)" + id + R"(|Berth 7|L|18.520|0.000|0.0"])";
    EXPECT_EQ(Send(11, calls), kSuccess);
    ASSERT_EQ(Send(kChange, R"({ppi:")" + id + R"(",type:"2"})"), kSuccess);
    EXPECT_EQ(Eid(Send(11, calls)), static_cast<int>(ErrorCode::UnknownPort)) << "it is there no more";
    EXPECT_NE(Send(10, R"({vi:")" + world.voyage + R"("})").find("Berth 7"), std::string::npos)
        << "the voyage keeps its call";
}

TEST_F(PlaceCommandsTest, SearchForRoutesIsToldOfTheUsersPorts) {
    ASSERT_EQ(Send(kChange, kAdd), kAdded);
    EXPECT_EQ(Send(1, "x"), "plan x of Berth 7");
    EXPECT_EQ(Send(2, "x"), "nearest x of Berth 7");
    EXPECT_EQ(Send(1, "x", "bob"), "plan x");
}

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
// The names of the bus are a contract with plug-ins and hosts that were built elsewhere.
#include <string>

#include <gtest/gtest.h>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Interface {

namespace {

TEST(BusContractTest, NamesThatTheVoyagePlugInOwns) {
    EXPECT_STREQ(Bus::AddVessel.name, "TRV_S_VOY_ADDVSL");
    EXPECT_STREQ(Bus::AddPortName.name, "TRV_S_VOY_ADDPORTNAME");
    EXPECT_STREQ(Bus::TakesPortNames.name, "TRV_S_VOY_TAKESPORTNAMES");
    EXPECT_STREQ(Bus::CalculateVoyage.name, "TRV_S_CAL_VOYAGE");
    EXPECT_STREQ(Bus::PlanVoyage.name, "TRV_S_VOY_PLAN");
    EXPECT_STREQ(Bus::ClickVoyageType.name, "TRV_MAP_LCLICK_VOYAGETYPE");
    EXPECT_STREQ(Bus::ClickRoutePointType.name, "TRV_MAP_LCLICK_RPOINTTYPE");
    EXPECT_STREQ(Bus::ClickAisShipType.name, "TRV_MAP_LCLICK_AISSHIPTYPE");
    EXPECT_STREQ(Bus::ClickRPoint.name, "TRV_MAP_LCLICK_RPOINT");
    EXPECT_STREQ(Bus::ClickRRPoint.name, "TRV_MAP_LCLICK_RRPOINT");
    EXPECT_STREQ(Bus::ClickBookPoint.name, "TRV_MAP_LCLICK_BOOKPOINTTYPE");
    EXPECT_STREQ(Bus::DragBookPoint.name, "TRV_MAP_LDRAG_BOOKPOINTTYPE");
    EXPECT_STREQ(Bus::DragBookFront.name, "TRV_MAP_LDRAG_BOOKFRONTTYPE");
    EXPECT_STREQ(Bus::DragBookWay.name, "TRV_MAP_LDRAG_BOOKLINETYPE");
}

TEST(BusContractTest, EventsOfTheHost) {
    EXPECT_STREQ(Bus::ShowPanel.name, "TRV_MAP_WND_SHOW");
    EXPECT_STREQ(Bus::SwitchLanguage.name, "TRV_E_SWITCHLANGUAGE");
    EXPECT_STREQ(Bus::Logout.name, "TRV_E_LOGOUT");
    EXPECT_STREQ(Bus::SwitchTimeZone.name, "TRV_E_SWITCHTIMEZONE");
}

TEST(BusContractTest, ServicesOfTheHost) {
    EXPECT_STREQ(Bus::ServerExchange.name, "TRV_S_SYNCREQBISERVER");
    EXPECT_STREQ(Bus::IsConnected.name, "TRV_S_ISCONNECT");
    EXPECT_STREQ(Bus::Login.name, "TRV_S_LOGIN");
    EXPECT_STREQ(Bus::User.name, "TRV_S_USER");
    EXPECT_STREQ(Bus::CurrentTimeZone.name, "TRV_S_GETCURTIMEZONE");
}

TEST(BusContractTest, ServicesOfSiblingPlugIns) {
    EXPECT_STREQ(Bus::VesselPositions.name, "TRV_S_VOYAGE_VSLPOS");
    EXPECT_STREQ(Bus::VesselTrace.name, "TRV_S_VOYAGE_TRACE");
    EXPECT_STREQ(Bus::HideAisTrack.name, "TRV_S_VOYAGE_HIDEAISTRACK");
    EXPECT_STREQ(Bus::ShowVesselCard.name, "TRV_S_VOYAGE_SHOWVSL");
    EXPECT_STREQ(Bus::AllVessels.name, "TRV_S_SHIPROLL_GETALL");
    EXPECT_STREQ(Bus::ShowAddVessel.name, "TRV_S_SHIPPROLL_SHOWADDVSLDLG");
    EXPECT_STREQ(Bus::ShowVesselInfo.name, "TRV_S_INFOSEARCHSHOWVSL");
    EXPECT_STREQ(Bus::MatchPorts.name, "TRV_S_INFOSEARCH_SHOWMATCHPORTDLG");
}

TEST(BusContractTest, ServicesOfTheChart) {
    EXPECT_STREQ(Bus::MapAddLayer.name, "TRV_MAP_ADDLAYER");
    EXPECT_STREQ(Bus::MapRemoveLayer.name, "TRV_MAP_RMLAYER");
    EXPECT_STREQ(Bus::MapAddLine.name, "TRV_MAP_ADD_LINE");
    EXPECT_STREQ(Bus::MapAddPointLabel.name, "TRV_MAP_ADD_POINT_LABEL");
    EXPECT_STREQ(Bus::MapAddImage.name, "TRV_MAP_ADD_IMAGE");
    EXPECT_STREQ(Bus::MapRegisterImage.name, "TRV_MAP_REG_IMAGE");
    EXPECT_STREQ(Bus::MapDeleteObjects.name, "TRV_MAP_DEL_OBJECTS");
    EXPECT_STREQ(Bus::MapDeleteObjectsByType.name, "TRV_MAP_DEL_OBJECT_BY_TYPE");
    EXPECT_STREQ(Bus::MapStandOut.name, "TRV_MAP_STAND_OUT");
    EXPECT_STREQ(Bus::MapSetPlan.name, "TRV_MAP_SET_PLAN");
    EXPECT_STREQ(Bus::MapGetExtent.name, "TRV_MAP_GET_EXTENT");
    EXPECT_STREQ(Bus::MapSetExtent.name, "TRV_MAP_SET_EXTENT");
    EXPECT_STREQ(Bus::MapGetPort.name, "TRV_MAP_GET_PORT");
    EXPECT_STREQ(Bus::ChartWindow.name, "TRV_S_SEAMAP_WIDGET");
    EXPECT_STREQ(Bus::ChartCommand.name, "TRV_S_SEAMAP_COMMAND");
    EXPECT_STREQ(Bus::ChartCursor.name, "TRV_E_SEAMAP_CURSOR");
    EXPECT_STREQ(Bus::ChartPartTurned.name, "TRV_E_SEAMAP_PART");
}

/// Answers each call with its own input.
class Echo : public Core::TObject {
  public:
    void* Handle(void* input) { return input; }
};

TEST(BusContractTest, AnswerOfAServiceThatNobodyOffersIsNull) {
    Core::BusTesting::ForgetAll();
    EXPECT_EQ(Call(Bus::IsConnected), nullptr);
    EXPECT_EQ(Raise(Bus::Logout), 0U);
}

TEST(BusContractTest, AnswersOfAllSubscribersComeBack) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    Core::BusTesting::ForgetAll();
    Echo echo;
    Core::TEvent first;
    Core::TEvent second;
    first.Set<&Echo::Handle>(&echo);
    second.Set<&Echo::Handle>(&echo);
    kernel->BindTrvEvent("TRV_MAP_LCLICK_RPOINT", &first);
    kernel->BindTrvEvent("TRV_MAP_LCLICK_RPOINT", &second);
    const std::string id = "7";
    EXPECT_EQ(Raise(Bus::ClickRPoint, &id).size(), 2U);
    EXPECT_EQ(static_cast<const void*>(Raise(Bus::ClickRPoint, &id)[1]), &id);
    Core::BusTesting::ForgetAll();
}

}  // namespace
}  // namespace Tarvik::Interface

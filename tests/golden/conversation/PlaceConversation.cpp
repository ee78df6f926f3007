// SPDX-License-Identifier: MIT
#include <tarvik/util/Jsona.h>

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/graph/tests/SmallSea.h"
#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/protocol/Exchange.h"
#include "seaplan/protocol/PortCallCommands.h"
#include "tests/golden/conversation/Conversation.h"

namespace Tarvik::Server {

namespace {

using Interface::VoyCommand;

class PlaceConversation : public Conversation {
  protected:
    PlaceConversation() : Conversation("places", std::make_unique<GraphRouteSource>(SmallNetwork())) {}

    /// Asks and writes down; the result is that of the exchange.
    Util::Jsona Ask(const std::string& what, VoyCommand command, const std::string& text) {
        Util::Jsona reply;
        Note(what, Seaplan::SendText(text, command, reply));
        return reply;
    }
    /// Whether the client reads a route of this many stops in the reply.
    static bool IsRoute(const Util::Jsona& reply, std::size_t stops) {
        Seaplan::RouteStops route;
        return Seaplan::ParseRouteReply(reply, route) == 0 && route.size() == stops;
    }
};

TEST_F(PlaceConversation, IsAsItWasRecorded) {
    const std::string id = "1000001";
    Ask("load the own ports of a user who has none", VoyCommand::LoadPlaces, R"({ui:"ann"})");
    Ask("add an own port", VoyCommand::ChangePlace,
        R"({ppi:"",type:"0",ppn:"七号泊位",xc:"-9.000",yc:"1.000"})");
    Ask("add one that is nowhere", VoyCommand::ChangePlace, R"({ppi:"",type:"0",ppn:"A",xc:"181",yc:"1"})");
    Ask("add one whose name would part a row", VoyCommand::ChangePlace,
        R"({ppi:"",type:"0",ppn:"a|b",xc:"1",yc:"1"})");
    Ask("load the own ports", VoyCommand::LoadPlaces, R"({ui:"ann"})");
    EXPECT_TRUE(IsRoute(
        Ask("ask for a route there", VoyCommand::SearchRoute, Seaplan::RouteRequestText({"40002", id})), 2));
    EXPECT_TRUE(IsRoute(
        Ask("ask for a route from there", VoyCommand::SearchRoute, Seaplan::RouteRequestText({id, "40002"})),
        2));
    Ask("ask for the nearest way there", VoyCommand::NearestRoute,
        Seaplan::NearestRequestText("-9.5,0.5", id));
    Ask("move it", VoyCommand::ChangePlace, R"({ppi:"1000001",type:"1",ppn:"Berth 8",xc:"-9.5",yc:"1.5"})");
    std::string ci;
    std::string vi;
    Note("create a category", module.CreateCategory("Atlantic", ci));
    Note("create a voyage", module.CreateVoyage("V", ci, vi));
    Seaplan::PortCallRows rows(2);
    rows[0].ppi = "40001";
    rows[0].ppn = "West";
    rows[1].ppi = id;
    rows[1].ppn = "Berth 8";
    rows[0].pp = rows[1].pp = "L";
    Note("call there", Seaplan::SavePortCalls(vi, rows));
    host.user = "bob";
    Ask("another user asks for a route there", VoyCommand::SearchRoute,
        Seaplan::RouteRequestText({"40002", id}));
    Ask("and removes it", VoyCommand::ChangePlace, R"({ppi:"1000001",type:"2"})");
    host.user = "ann";
    Ask("remove it", VoyCommand::ChangePlace, R"({ppi:"1000001",type:"2"})");
    Note("call there no more", Seaplan::SavePortCalls(vi, rows));
    Ask("load the own ports", VoyCommand::LoadPlaces, R"({ui:"ann"})");
}

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include <tarvik/util/Jsona.h>

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/graph/tests/SmallSea.h"
#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/protocol/Exchange.h"
#include "tests/golden/conversation/Conversation.h"

namespace Tarvik::Server {

namespace {

class RouteConversation : public Conversation {
  protected:
    RouteConversation() : Conversation("routes", std::make_unique<GraphRouteSource>(SmallNetwork())) {}

    /// Asks and writes down; the result is that of the exchange.
    Util::Jsona Ask(const std::string& what, std::uint16_t command, const std::string& text) {
        Util::Jsona reply;
        const int result = Seaplan::SendText(text, static_cast<Interface::VoyCommand>(command), reply);
        Note(what, result);
        return reply;
    }
};

TEST_F(RouteConversation, IsAsItWasRecorded) {
    Seaplan::RouteStops stops;
    const auto route =
        Ask("ask for a route there and back", 1, Seaplan::RouteRequestText({"40001", "40002", "40001"}));
    ASSERT_EQ(Seaplan::ParseRouteReply(route, stops), 0);
    std::string text;
    ASSERT_TRUE(Seaplan::AlternativeRequestText(stops, "1", "2", text));
    const auto other = Ask("take the other cape", 1, text);
    ASSERT_EQ(Seaplan::ParseRouteReply(other, stops), 0);
    ASSERT_TRUE(Seaplan::AlternativeRequestText(stops, "2", "3", text));
    Ask("take the canal", 1, text);
    Ask("ask for a route to a port without a way", 1, Seaplan::RouteRequestText({"40001", "40005"}));
    Ask("ask for a route to a route point", 1, Seaplan::RouteRequestText({"40001", "1"}));
    Ask("ask for a route to a port that is not there", 1, Seaplan::RouteRequestText({"40001", "7"}));
    Ask("ask for a route of one port", 1, Seaplan::RouteRequestText({"40001"}));
    Ask("ask for the nearest point", 2, Seaplan::NearestRequestText("-9.5,0.5", "40002"));
    Ask("ask for it from land", 2, Seaplan::NearestRequestText("0.0,0.0", "40002"));
    Ask("ask for it towards a port that is not there", 2, Seaplan::NearestRequestText("-9.5,0.5", "7"));
}

}  // namespace
}  // namespace Tarvik::Server

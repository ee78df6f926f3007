// SPDX-License-Identifier: MIT
#include <algorithm>

#include <gtest/gtest.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/report/PortTable.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

TEST(PortTable, HasTheDistancesOfRequests) {
    const auto network = SmallNetwork();
    const RouteEngine engine(network);
    const auto& ports = network->data().ports;
    for (const unsigned threads : {1U, 3U}) {
        const PortTable table(*network, {}, threads);
        for (std::size_t a = 0; a < ports.size(); ++a) {
            for (std::size_t b = 0; b < ports.size(); ++b) {
                const RouteResult way = engine.Plan({{ports[a].id, {}, {}}, {ports[b].id, {}, {}}});
                const double expected = way.error == kRouteOk ? way.stops[1].distanceKm / kKmPerNm : -1.0;
                EXPECT_NEAR(table.Nm(a, b), expected, 0.01) << a << " " << b;
            }
        }
    }
}

TEST(PortTable, HoldsTheLimits) {
    const auto network = SmallNetwork();
    const PortTable usual(*network, {}, 1);
    const PortTable round(*network, {{"1"}, {}}, 1);
    EXPECT_GT(round.Nm(0, 1), usual.Nm(0, 1) + 50.0);
    EXPECT_LT(PortTable(*network, {{"1", "2", "3"}, {}}, 1).Nm(0, 1), 0.0);
}

TEST(PortTable, IsATextWithALineForEachPort) {
    const auto network = SmallNetwork();
    const PortTable table(*network, {}, 2);
    const std::string text = table.Text(*network);
    EXPECT_EQ(text.substr(0, text.find('\n')), "port,AAAAA,BBBBB,CCCCC,DDDDD,EEEEE");
    EXPECT_NE(text.find("\nEEEEE,,,,,0.0\n"), std::string::npos) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 6);
}

TEST(PortTable, OfASeaWithoutPortsIsEmpty) {
    NetworkData data = SmallSea();
    data.ports.clear();
    const SeaNetwork network(data);
    EXPECT_EQ(PortTable(network, {}, 2).Text(network), "port\n");
}

}  // namespace
}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
// What people type, over the ports that are shipped.
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/ports/PlaceTable.h"
#include "host/ports/search/Aliases.h"
#include "host/ports/search/PortIndex.h"

namespace Tarvik::Ports {

namespace {

std::vector<Port> ShippedPorts() {
    std::vector<Ports::Place> places;
    std::string error;
    EXPECT_TRUE(Ports::ReadPlaces(SEAPLAN_POINTS, places, error)) << error;
    return PortsOf(places);
}

TEST(Queries, TheExpectedPortStandsFirst) {
    const PortIndex index(ShippedPorts());
    std::ifstream file(QUERIES);
    int asked = 0;
    for (std::string line; std::getline(file, line);) {
        const std::size_t tab = line.find('\t');
        if (line.starts_with('#') || tab == std::string::npos) {
            continue;
        }
        ++asked;
        const std::string typed = line.substr(0, tab);
        const auto hits = index.Search(typed, 8);
        if (hits.empty()) {
            ADD_FAILURE() << typed << ": nothing is found";
            continue;
        }
        EXPECT_EQ(hits[0].port->unlocode, line.substr(tab + 1)) << typed << ": " << hits[0].port->name;
    }
    EXPECT_GE(asked, 200);
}

TEST(Queries, PortsAreFoundByTheirWholeNamesAndCodes) {
    constexpr std::size_t kStep = 7;
    const std::vector<Port> ports = ShippedPorts();
    const PortIndex index(ports);
    for (std::size_t i = 0; i < ports.size(); i += kStep) {
        for (const std::string& typed : {ports[i].name, ports[i].unlocode}) {
            const auto hits = index.Search(typed, 8);
            EXPECT_TRUE(!hits.empty() && hits[0].fit == Fit::Whole) << typed;
        }
    }
}

}  // namespace
}  // namespace Tarvik::Ports

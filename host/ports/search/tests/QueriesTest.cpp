// SPDX-License-Identifier: MIT
// What people type, over the ports that are shipped.
#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/ports/PlaceTable.h"
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

/// The port is among those whose whole name, alias, Chinese name or code was typed.
bool IsFound(const PortIndex& index, const std::string& typed, const std::string& code,
             const std::string& name) {
    const auto hits = index.Search(typed, 8);
    return std::any_of(hits.begin(), hits.end(), [&](const PortHit& hit) {
        const std::vector<std::string>& others = hit.port->aliases;
        return hit.fit == Fit::Whole &&
               (code.empty() ? hit.port->name == name
                             : hit.port->unlocode == code ||
                                   std::find(others.begin(), others.end(), code) != others.end());
    });
}

TEST(Queries, TheBusiestTerminalsAreFoundByEachOfTheirNames) {
    const PortIndex index(ShippedPorts());
    std::ifstream file(TERMINALS);
    int terminals = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) {
            continue;
        }
        ++terminals;
        std::istringstream fields(line);
        std::vector<std::string> names;
        for (std::string field; std::getline(fields, field, '\t');) {
            names.push_back(field);
        }
        ASSERT_GE(names.size(), 3U) << line;
        for (const std::string& typed : names) {
            EXPECT_TRUE(typed.empty() || IsFound(index, typed, names[0], names[1]))
                << typed << " of " << names[1] << " " << names[0];
        }
    }
    EXPECT_GE(terminals, 300);
}

TEST(Queries, PortsAreFoundByTheirWholeNamesAndCodes) {
    constexpr std::size_t kStep = 7;
    const std::vector<Port> ports = ShippedPorts();
    const PortIndex index(ports);
    for (std::size_t i = 0; i < ports.size(); i += kStep) {
        for (const std::string& typed : {ports[i].name, ports[i].unlocode}) {
            if (typed.empty()) {
                continue;  // a place without a code
            }
            const auto hits = index.Search(typed, 8);
            EXPECT_TRUE(!hits.empty() && hits[0].fit == Fit::Whole) << typed;
        }
    }
}

}  // namespace
}  // namespace Tarvik::Ports

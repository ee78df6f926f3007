// SPDX-License-Identifier: MIT
#include "host/client/services/PortTable.h"

#include "host/ports/PlaceTable.h"

namespace Tarvik::Client {

bool ReadPorts(const std::string& databaseFile, std::vector<Port>& ports, std::string& error) {
    ports.clear();
    std::vector<Ports::Place> places;
    std::string reason;
    if (!Ports::ReadPlaces(databaseFile, places, reason)) {
        error = "The port table " + databaseFile + " cannot be read (" + reason +
                "). Delete it and build or install the client again.";
        return false;
    }
    for (const Ports::Place& place : places) {
        if (place.isPort) {
            const Server::GeoPoint at = place.position.value_or(Server::GeoPoint());
            ports.push_back({place.id, place.name, place.nameCn, place.unlocode, at.x, at.y});
        }
    }
    if (ports.empty()) {
        error = "The port table " + databaseFile + " holds no ports. Build or install the client again.";
    }
    return !ports.empty();
}

}  // namespace Tarvik::Client

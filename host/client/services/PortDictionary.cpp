// SPDX-License-Identifier: MIT
#include "host/client/services/PortDictionary.h"

#include "host/ports/PlaceTable.h"

namespace Tarvik::Client {

namespace {

constexpr const char* kPointsPath = "/points";

std::string Answer(const std::unordered_map<std::string, std::string>& table, const std::string& path,
                   const std::string& key) {
    const auto found = table.find(key);
    return path != kPointsPath || found == table.end() ? std::string() : found->second;
}

}  // namespace

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

PortDictionary::PortDictionary(const std::vector<Port>& ports) {
    for (const Port& port : ports) {
        idOfName_.emplace(port.name, port.id);
        nameOfId_.emplace(port.id, port.name);
    }
}

std::string PortDictionary::KeyOfValue(const std::string& path, const std::string& value,
                                       int /*language*/) const {
    return Answer(idOfName_, path, value);
}

std::string PortDictionary::ValueOfKey(const std::string& path, const std::string& key,
                                       int /*language*/) const {
    return Answer(nameOfId_, path, key);
}

}  // namespace Tarvik::Client

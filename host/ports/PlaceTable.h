// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Ports {

/// A row of the host's table "t_point".
struct Place {
    std::string id;
    std::string name;
    std::string nameCn;
    std::string unlocode;
    std::optional<Server::GeoPoint> position;  ///< empty when the table has no readable one
    bool isPort = false;                       ///< a port, else a route point
    std::vector<std::string> aliases{};        ///< other names that people use for a port

    friend bool operator==(const Place&, const Place&) = default;
};

/// Reads all places of the data base in order of their names, then ids as numbers: of ports of one name a
/// shipped one comes before a user's own, whose id is longer. Columns that the table lacks (namecn,
/// unlocode and aliases may be missing) and fields without a value are empty. False with the data base's own
/// words when it cannot be read; `places` is then empty.
bool ReadPlaces(const std::string& databaseFile, std::vector<Place>& places, std::string& error);

}  // namespace Tarvik::Ports

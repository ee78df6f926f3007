// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::Client {

/// A port of trvdb.db; x and y are longitude and latitude in degrees.
struct Port {
    std::string id;
    std::string name;
    std::string nameCn;
    std::string unlocode;  ///< empty when the table has none
    double x = 0;
    double y = 0;
};

/// Reads all ports of the data base in order of their names. False with one line that says what to do.
bool ReadPorts(const std::string& databaseFile, std::vector<Port>& ports, std::string& error);

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::TestSupport {
struct PointTableRow;
}

namespace Tarvik::Seaplan {

/// A port of the test world, on the equator.
struct DeskPort {
    const char* id;
    const char* name;
    double x;            ///< longitude in degrees
    const char* origid;  ///< id of the port that it is one place with, "0" for none
};

/// Ports within a few degrees of each other; EUROPOORT is one place with ROTTERDAM.
const std::vector<DeskPort>& DeskPorts();
/// Id of a port by its name, empty for an unknown one.
std::string DeskPortId(const std::string& name);
/// The table of points that belongs to these ports, with the route points 105 "South Cape" and 118 "Mid
/// Cape".
std::vector<TestSupport::PointTableRow> DeskPoints();

}  // namespace Tarvik::Seaplan

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/ports/PlaceTable.h"
#include "host/ports/search/PortIndex.h"

namespace Tarvik::Ports {

/// Other names that people use for the port of this UN/LOCODE: former ones, those of another language, those
/// of a terminal. None for most.
std::vector<std::string> AliasesOf(const std::string& unlocode);

/// The ports among the places, with their aliases; one without a position stands at 0, 0.
std::vector<Port> PortsOf(const std::vector<Ports::Place>& places);

}  // namespace Tarvik::Ports

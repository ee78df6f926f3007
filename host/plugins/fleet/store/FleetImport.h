// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/plugins/fleet/core/VesselDraft.h"
#include "host/plugins/fleet/store/FleetStore.h"

namespace Tarvik::Fleet {

/// A line that was left out, and why: what is wrong with it, or what the server said.
struct LeftOut {
    int line = 0;
    std::variant<Fault, Outcome> why;
};

/// What came of an import.
struct ImportReport {
    int added = 0;
    int changed = 0;
    int same = 0;  ///< known as they are
    std::vector<LeftOut> leftOut;
};

/// Adds the vessels of a file's text (VesselFile.h) to the fleet. One that the fleet has, by its IMO number,
/// else its MMSI, else its name, takes what the file says of it and keeps the rest. A line with a fault is
/// left out; a server that does not answer ends the import. Nothing for a text that is no vessels' file.
std::optional<ImportReport> ImportVessels(FleetStore& store, const std::string& text);

}  // namespace Tarvik::Fleet

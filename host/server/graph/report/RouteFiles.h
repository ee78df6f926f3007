// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/server/graph/report/EmissionAreas.h"
#include "host/server/graph/report/PassageLimits.h"

namespace Tarvik::Server {

/// What a report tells beside what the network knows; each is nothing where its file is not there.
struct RouteFiles {
    std::optional<EmissionAreas> areas;   ///< emission_areas.csv
    std::optional<PassageLimits> limits;  ///< passage_limits.csv

    /// Reads the files in the folder of the network's file. Throws std::runtime_error with what is wrong.
    static RouteFiles Beside(const std::string& networkFile);
};

}  // namespace Tarvik::Server

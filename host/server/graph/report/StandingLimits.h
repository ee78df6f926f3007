// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/server/graph/RouteTypes.h"

namespace Tarvik::Server {

class Places;

/// What an operator says of passages for every route: names or ids of route points, parted by commas.
struct PassageLists {
    std::string forbidden;  ///< no route uses these, whatever it asks for
    std::string opened;     ///< used like any other although they are shut unless asked for
};

/// The lists as limits. Nothing, with a line in `error` that names the word, when a name is unknown or empty,
/// or a passage stands in both lists.
std::optional<RouteLimits> ReadStandingLimits(const Places& places, const PassageLists& lists,
                                              std::string& error);

}  // namespace Tarvik::Server

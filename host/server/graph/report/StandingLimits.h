// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/server/graph/NarrowedSea.h"
#include "host/server/graph/RouteTypes.h"

namespace Tarvik::Server {

class Places;
class SeaNetwork;

/// What an operator says of passages for every route: names or ids of route points, parted by commas.
struct PassageLists {
    std::string forbidden;  ///< no route uses these, whatever it asks for
    std::string opened;     ///< used like any other although they are shut unless asked for
};

/// The lists as limits. Nothing, with a line in `error` that names the word, when a name is unknown or empty,
/// or a passage stands in both lists.
std::optional<RouteLimits> ReadStandingLimits(const Places& places, const PassageLists& lists,
                                              std::string& error);

/// What an operator says for every route.
struct OperatorRules {
    PassageLists passages;
    std::string areas;     ///< a file with the columns `name` and `ring`, waters that no route touches
    double north = 90.0;   ///< no route runs north of this latitude
    double south = -90.0;  ///< nor south of this one
};

/// The waters that the rules forbid. Nothing, with a line in `error` that names file and area, when the file
/// cannot be read or an area is none.
std::optional<ForbiddenWaters> ReadForbiddenWaters(const OperatorRules& rules, std::string& error);

/// A network under an operator's rules.
struct RuledNetwork {
    std::shared_ptr<const SeaNetwork> network;  ///< without the ways that touch forbidden waters
    RouteLimits limits;
    std::vector<std::string> waters;  ///< what is forbidden of them, for a person: "area Red Sea"
};

/// The network of a file under rules; nothing, with a line in `error`, when the file or a rule is of no use.
std::optional<RuledNetwork> LoadUnderRules(const std::string& networkFile, const OperatorRules& rules,
                                           std::string& error);

}  // namespace Tarvik::Server

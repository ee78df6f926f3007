// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "host/server/graph/RouteTypes.h"

namespace Tarvik::Server {

class SeaNetwork;

/// Finds ports and passages by the names that a person types.
class Places {
  public:
    explicit Places(const SeaNetwork& network);

    /// The id of a port by id, UN/LOCODE or name, in any case of letters; empty when there is none.
    std::string PortId(const std::string& text) const;
    /// The id of a route point by id or name, the text in brackets left out or not; empty when there is none.
    std::string PassageId(const std::string& text) const;

    /// A stop at `to` by these passages, which must be known.
    RouteRequestPoint StopBy(const std::vector<std::string>& passages, const std::string& from,
                             const std::string& to) const;
    /// The limits of a request that may not use these passages, which must be known.
    RouteLimits WithoutPassages(const std::vector<std::string>& passages) const;

  private:
    std::unordered_map<std::string, std::string> ports_;
    std::unordered_map<std::string, std::string> passages_;
};

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/api/RouteSource.h"

namespace Tarvik::Server {

/// Refuses every request for a route, for a server without a sea network.
class NoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view requestJson) override;
    std::string Nearest(std::string_view requestJson) override;
};

/// The network file that was installed with `program` ("…/bin/seaplan-server":
/// "…/share/seaplan/network.bin"); empty when there is none.
std::string NetworkBeside(const std::string& program);

/// The source of routes over a network file; for an empty name and for "none" one that refuses every request.
/// Null, with an English text in `error`, when the file cannot be used.
std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, std::string& error);

}  // namespace Tarvik::Server

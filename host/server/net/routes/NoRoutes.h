// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/api/RouteSource.h"

namespace Tarvik::Server {

/// Refuses every request for a route, for a server without a sea network.
class NoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view requestJson) override;
    std::string Nearest(std::string_view requestJson) override;
};

}  // namespace Tarvik::Server

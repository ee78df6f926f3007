// SPDX-License-Identifier: MIT
// For a build with the route engine.
#include "host/server/app/GraphRouteSource.h"
#include "host/server/net/routes/NoRoutes.h"
#include "host/server/net/routes/OpenRoutes.h"

namespace Tarvik::Server {

std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, std::string& error) {
    if (networkFile.empty()) return std::make_unique<NoRoutes>();
    return GraphRouteSource::Open(networkFile, error);
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
#include "host/server/net/routes/OpenRoutes.h"

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/net/routes/NoRoutes.h"

namespace Tarvik::Server {

std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, std::string& error) {
    if (networkFile.empty()) return std::make_unique<NoRoutes>();
    return GraphRouteSource::Open(networkFile, error);
}

}  // namespace Tarvik::Server

// SPDX-License-Identifier: MIT
// For a build without the route engine.
#include "host/server/net/routes/NoRoutes.h"
#include "host/server/net/routes/OpenRoutes.h"

namespace Tarvik::Server {

std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, std::string& error) {
    if (networkFile.empty()) return std::make_unique<NoRoutes>();
    error = "this program was built without the route engine; leave the setting network empty";
    return nullptr;
}

}  // namespace Tarvik::Server

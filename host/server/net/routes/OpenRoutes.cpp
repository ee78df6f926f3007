// SPDX-License-Identifier: MIT
#include <filesystem>
#include <optional>
#include <utility>

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/graph/report/Places.h"
#include "host/server/net/service/Resources.h"

namespace fs = std::filesystem;

namespace Tarvik::Server {

std::string NetworkBeside(const std::string& program) {
    const fs::path file = fs::path(program).parent_path().parent_path() / "share/seaplan/network.bin";
    std::error_code failed;
    return fs::is_regular_file(file, failed) ? file.string() : std::string();
}

std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, const PassageLists& lists,
                                        std::string& error) {
    if (networkFile.empty() || networkFile == "none") {
        return std::make_unique<NoRoutes>();
    }
    std::shared_ptr<const SeaNetwork> network = SeaNetwork::Load(networkFile, error);
    if (network == nullptr) {
        return nullptr;
    }
    std::optional<RouteLimits> limits = ReadStandingLimits(Places(*network), lists, error);
    return limits ? std::make_unique<GraphRouteSource>(std::move(network), std::move(*limits)) : nullptr;
}

}  // namespace Tarvik::Server

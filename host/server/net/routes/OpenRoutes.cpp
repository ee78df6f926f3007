// SPDX-License-Identifier: MIT
#include <filesystem>
#include <optional>
#include <utility>

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/net/service/Resources.h"

namespace fs = std::filesystem;

namespace Tarvik::Server {

std::string NetworkBeside(const std::string& program) {
    const fs::path file = fs::path(program).parent_path().parent_path() / "share/seaplan/network.bin";
    std::error_code failed;
    return fs::is_regular_file(file, failed) ? file.string() : std::string();
}

std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, const OperatorRules& rules,
                                        std::string& error) {
    if (networkFile.empty() || networkFile == "none") {
        return std::make_unique<NoRoutes>();
    }
    std::optional<RuledNetwork> ruled = LoadUnderRules(networkFile, rules, error);
    return ruled ? std::make_unique<GraphRouteSource>(std::move(ruled->network), std::move(ruled->limits))
                 : nullptr;
}

}  // namespace Tarvik::Server

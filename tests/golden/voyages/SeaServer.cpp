// SPDX-License-Identifier: MIT
#include "tests/golden/voyages/SeaServer.h"

#include <stdexcept>

#include "host/server/graph/adapter/GraphRouteSource.h"

namespace Tarvik::Golden {

namespace {

std::shared_ptr<const Server::SeaNetwork> ShippedNetwork() {
    static const std::shared_ptr<const Server::SeaNetwork> network = [] {
        std::string error;
        auto read = Server::SeaNetwork::Load(SHARE_FOLDER "/network.bin", error);
        if (!read) {
            throw std::runtime_error(error);
        }
        return read;
    }();
    return network;
}

}  // namespace

bool IsShutUnlessAsked(const std::string& routePoint) {
    const auto network = ShippedNetwork();
    const auto index = network->RoutePointIndex(routePoint);
    return index && network->data().routePoints[*index].shut;
}

SeaServer::SeaServer() {
    std::string error;
    server_ = Server::EmbeddedServer::Open(
        ":memory:", std::make_unique<Server::GraphRouteSource>(ShippedNetwork()), error);
    if (!server_) {
        throw std::runtime_error(error);
    }
}

std::string SeaServer::Exchange(const std::string& user, const Interface::VoyServerRequest& request) {
    return server_->Exchange(user, &request);
}

}  // namespace Tarvik::Golden

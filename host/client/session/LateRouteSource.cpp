// SPDX-License-Identifier: MIT
#include "host/client/session/EmbeddedLink.h"
#include "host/server/api/Replies.h"
#include "host/server/graph/adapter/GraphRouteSource.h"

namespace Tarvik::Client {

LateRouteSource::LateRouteSource(const std::string& networkFile)
    : loaded_(std::async(std::launch::async, [networkFile] {
                  return std::make_shared<Loaded>(Load(networkFile));
              }).share()) {}

LateRouteSource::Loaded LateRouteSource::Load(const std::string& networkFile) {
    Loaded loaded;
    std::string error;
    loaded.source = Server::GraphRouteSource::Open(networkFile, error);
    if (!loaded.source) {
        loaded.failure = Server::Replies::Error(Server::ErrorCode::Internal, error);
    }
    return loaded;
}

std::string LateRouteSource::Plan(std::string_view requestJson) {
    const Loaded& loaded = *loaded_.get();
    return loaded.source ? loaded.source->Plan(requestJson) : loaded.failure;
}

std::string LateRouteSource::Nearest(std::string_view requestJson) {
    const Loaded& loaded = *loaded_.get();
    return loaded.source ? loaded.source->Nearest(requestJson) : loaded.failure;
}

std::string LateRouteSource::PlanWith(std::string_view requestJson,
                                      const std::vector<Server::PlaceRecord>& own) {
    const Loaded& loaded = *loaded_.get();
    return loaded.source ? loaded.source->PlanWith(requestJson, own) : loaded.failure;
}

std::string LateRouteSource::NearestWith(std::string_view requestJson,
                                         const std::vector<Server::PlaceRecord>& own) {
    const Loaded& loaded = *loaded_.get();
    return loaded.source ? loaded.source->NearestWith(requestJson, own) : loaded.failure;
}

bool LateRouteSource::KnowsPort(const std::string& id) {
    const Loaded& loaded = *loaded_.get();
    return !loaded.source || loaded.source->KnowsPort(id);
}

}  // namespace Tarvik::Client

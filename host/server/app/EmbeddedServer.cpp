// SPDX-License-Identifier: MIT
#include "host/server/app/EmbeddedServer.h"

#include <string_view>
#include <utility>

#include "host/server/api/Replies.h"
#include "host/server/api/VoyageService.h"
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

EmbeddedServer::EmbeddedServer(std::unique_ptr<SqliteStorage> storage, std::unique_ptr<RouteSource> routes,
                               const ServerClock& clock)
    : storage_(std::move(storage)),
      routes_(std::move(routes)),
      service_(std::make_unique<VoyageService>(*storage_, *routes_, clock)) {}

EmbeddedServer::~EmbeddedServer() = default;

std::unique_ptr<EmbeddedServer> EmbeddedServer::Open(const std::string& dbPath,
                                                     std::unique_ptr<RouteSource> routes, std::string& error,
                                                     const ServerClock& clock) {
    if (routes == nullptr) {
        error = "there is no source of routes";
        return nullptr;
    }
    auto storage = SqliteStorage::Open(dbPath, error);
    if (storage == nullptr) {
        return nullptr;
    }
    return std::unique_ptr<EmbeddedServer>(new EmbeddedServer(std::move(storage), std::move(routes), clock));
}

std::string EmbeddedServer::Exchange(const std::string& user, const Interface::VoyServerRequest* request) {
    if (request == nullptr) {
        return Replies::Error(ErrorCode::BadJson, "there is no request");
    }
    if (request->length > Interface::kMaxPayloadBytes) {
        return Replies::Error(ErrorCode::RequestTooLong, {});
    }
    std::string_view text(request->Payload(), request->length);
    if (text.ends_with('\0')) {
        text.remove_suffix(1);
    }
    VoyageReply reply = service_->Answer(user, request->moduleWord, request->command, text);
    // Who asks is who runs it.
    return reply.Failed() ? Replies::Error(reply.code, reply.failure) : std::move(reply.text);
}

}  // namespace Tarvik::Server

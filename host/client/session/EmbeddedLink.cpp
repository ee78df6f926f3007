// SPDX-License-Identifier: MIT
#include "host/client/session/EmbeddedLink.h"

#include "host/client/services/AppFolders.h"

namespace Tarvik::Client {

EmbeddedLink::EmbeddedLink(std::string databaseFile, std::string networkFile)
    : databaseFile_(std::move(databaseFile)), networkFile_(std::move(networkFile)) {}

bool EmbeddedLink::Connect(std::string& error) {
    if (server_) {
        return true;
    }
    if (!CheckNetworkFile(networkFile_, error)) {
        return false;
    }
    std::string reason;
    server_ =
        Server::EmbeddedServer::Open(databaseFile_, std::make_unique<LateRouteSource>(networkFile_), reason);
    if (!server_) {
        error = "The voyage data base " + databaseFile_ + " cannot be opened (" + reason +
                "). Make it readable and writable, or name another folder with --data DIR.";
    }
    return server_ != nullptr;
}

std::string EmbeddedLink::Exchange(const std::string& user, const Interface::VoyServerRequest& request) {
    return server_ ? server_->Exchange(user, &request) : std::string();
}

}  // namespace Tarvik::Client

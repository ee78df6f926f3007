// SPDX-License-Identifier: MIT
#include "host/server/net/http/HttpHost.h"

#include "host/server/accounts/LoginGuard.h"

namespace Tarvik::Server {

bool HttpHost::HasRoom(const std::string& address) const {
    if (open_.size() >= limits_.connections) {
        return false;
    }
    const auto found = perAddress_.find(AddressKey(address));
    return limits_.connectionsPerAddress == 0 || found == perAddress_.end() ||
           found->second < limits_.connectionsPerAddress;
}

void HttpHost::Add(OpenConnection* connection, const std::string& address) {
    open_.insert(connection);
    ++perAddress_[AddressKey(address)];
    service_.ConnectionsChanged(open_.size());
}

void HttpHost::Remove(OpenConnection* connection, const std::string& address) {
    open_.erase(connection);
    const auto found = perAddress_.find(AddressKey(address));
    if (found != perAddress_.end() && --found->second == 0) {
        perAddress_.erase(found);
    }
    service_.ConnectionsChanged(open_.size());
    if (whenEmpty_ && open_.empty()) {
        whenEmpty_();
    }
}

void HttpHost::Stop(std::function<void()> whenEmpty) {
    stopping_ = true;
    whenEmpty_ = std::move(whenEmpty);
    for (OpenConnection* connection : open_) {
        connection->StopIfIdle();
    }
    if (open_.empty()) {
        whenEmpty_();
    }
}

}  // namespace Tarvik::Server

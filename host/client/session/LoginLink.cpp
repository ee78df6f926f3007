// SPDX-License-Identifier: MIT
#include "host/client/session/LoginLink.h"

#include <utility>

#include "host/client/remote/RemoteLink.h"

namespace Tarvik::Client {

LoginLink::LoginLink(std::string server, std::string user, std::string caFile, AskCredentials ask)
    : server_(std::move(server)), user_(std::move(user)), caFile_(std::move(caFile)), ask_(std::move(ask)) {}

LoginLink::~LoginLink() {
    LogOut();
}

void LoginLink::LogOut() {
    owner_.clear();
    if (remote_) {
        remote_->Disconnect();
    }
}

bool LoginLink::Connect(std::string& error) {
    if (IsConnected()) {
        return true;
    }
    error.clear();
    while (true) {
        const std::optional<Credentials> login = ask_ ? ask_(server_, user_, error) : std::nullopt;
        if (!login) {
            break;
        }
        if (!owner_.empty() && login->user != owner_) {
            error = "The login of " + owner_ + " has run out. Log in as " + owner_ +
                    " again, or cancel and log out first.";
            continue;
        }
        user_ = login->user;
        RemoteSettings settings;
        settings.url = server_;
        settings.user = login->user;
        settings.password = login->password;
        settings.caFile = caFile_;
        remote_ = std::make_unique<RemoteLink>(std::move(settings));
        if (remote_->Connect(error)) {
            owner_ = user_;
            if (welcome_) {
                welcome_(user_);
            }
            return true;
        }
    }
    if (error.empty()) {
        error = "Nobody is logged in at the voyage server " + server_ + ".";
    }
    return false;
}

bool LoginLink::IsConnected() const {
    return remote_ && remote_->IsConnected();
}

std::string LoginLink::Exchange(const std::string& user, const Interface::VoyServerRequest& request) {
    return remote_ ? remote_->Exchange(user, request) : std::string();
}

std::string LoginLink::User(const std::string& /*local*/) const {
    return IsConnected() ? user_ : std::string();
}

std::string LoginLink::Failure() const {
    return remote_ ? remote_->LastFailure() : std::string();
}

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "host/client/services/ServerLink.h"

namespace Tarvik::Client {

class RemoteLink;

/// Who logs in.
struct Credentials {
    std::string user;
    std::string password;
};

/// Asks for a login at `server`: `user` is the one of last time, `failure` says why the try before failed,
/// empty at the first. Nothing when there is none to be had; the login then ends.
using AskCredentials = std::function<std::optional<Credentials>(
    const std::string& server, const std::string& user, const std::string& failure)>;

/// A voyage server elsewhere, at which somebody logs in first.
class LoginLink : public ServerLink {
  public:
    /// `server` is "https://host:port" or "http://host:port", `user` the name to offer first, `caFile` a file
    /// of certificates to trust, empty for the system's.
    LoginLink(std::string server, std::string user, std::string caFile, AskCredentials ask);
    ~LoginLink() override;

    /// Called with the name of a user whom the server has let in.
    void SetWelcome(std::function<void(const std::string& user)> welcome) { welcome_ = std::move(welcome); }
    /// Asks for credentials until the server takes them or there are no more. While a login has run out
    /// without a logout, nobody else can take its place: what is on show and not saved yet is that user's.
    bool Connect(std::string& error) override;
    bool IsConnected() const override;
    void LogOut() override;
    std::string Exchange(const std::string& user, const Interface::VoyServerRequest& request) override;
    std::string User(const std::string& local) const override;
    std::string Failure() const override;

  private:
    std::string server_;
    std::string user_;
    std::string owner_;  ///< whose login it is, from its making to the logout
    std::string caFile_;
    AskCredentials ask_;
    std::function<void(const std::string&)> welcome_;
    std::unique_ptr<RemoteLink> remote_;
};

}  // namespace Tarvik::Client
